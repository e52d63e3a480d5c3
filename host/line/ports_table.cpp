#include "host/line/ports_table.h"

#include <algorithm>
#include <array>
#include <set>

#include "host/diagnosis/number_ranges.h"
#include "host/diagnosis/records.h"
#include "host/text.h"
#include "host/worlds/store_values.h"

namespace host {
namespace {

constexpr std::array<const char*, 8> headings = {"device",   "channel",    "PortName", "friendly",
                                                 "DOS name", "serial map", "database", "settings line"};
constexpr std::size_t dos_names = 4; // the column that is left out if room is short
using Row = std::array<std::string, headings.size()>;
using PortRows = std::vector<Row>;

constexpr const char* differs = " differs";
constexpr const char* missing = "missing";
constexpr const char* unknown = "not known";

bool Same(const Text& left, std::string_view right) {
    return Folded(ToUtf8(left)) == Folded(right);
}

std::string DosName(const std::string& name, const PortRecords& records, const Text*& target) {
    for (const auto& [dos_name, its_target] : records.dos_names) {
        if (Same(dos_name, name)) {
            target = &its_target;
            return "-> " + Escaped(ToUtf8(its_target));
        }
    }
    return missing;
}

std::string Mapped(const std::string& name, const PortRecords& records, const Text* target) {
    if (!records.serial_map) {
        return unknown;
    }
    std::string devices;
    for (const auto& [device, mapped] : *records.serial_map) {
        if (Same(mapped, name)) {
            devices += (devices.empty() ? "" : ", ") + Escaped(ToUtf8(device)) +
                       (target != nullptr && Same(device, ToUtf8(*target)) ? "" : differs);
        }
    }
    return devices.empty() ? missing : devices;
}

std::string SettingsLine(const std::string& name, const PortRecords& records) {
    if (!records.settings_lines) {
        return unknown;
    }
    for (const auto& [key, line] : *records.settings_lines) {
        if (Same(key, name + ':')) {
            return Quoted(ToUtf8(line));
        }
    }
    return "none";
}

Row RowOf(const std::string& name, unsigned long number, const Device& device, const PortRecords& records) {
    Row row;
    row[2] = name.empty() ? "none" : Escaped(name);
    const unsigned long friendly = FriendlyNumber(ToUtf8(device.friendly_name));
    row[3] = friendly ? std::to_string(friendly) : "none";
    if (friendly != 0 && friendly != number) {
        row[3] += differs;
    }
    const Text* target = nullptr;
    row[4] = DosName(name, records, target);
    row[5] = Mapped(name, records, target);
    row[6] = !records.usage ? unknown : IsClaimed(records, number) ? "claimed" : "not claimed";
    row[7] = SettingsLine(name, records);
    return row;
}

// A row for each port, below the headings. `held` gets the numbers that the ports have.
PortRows RowsOf(World& world, const PortRecords& records, std::set<unsigned long>& held) {
    PortRows rows{{}};
    std::ranges::copy(headings, rows.front().begin());
    const std::vector<Device> devices = world.Devices();
    for (std::size_t index = 0; index < devices.size(); ++index) {
        if (devices[index].kind != DeviceKind::Port) {
            continue;
        }
        const std::vector<StoreValue> store = world.Store(devices[index].id);
        const StoreValue* const stored = FindValue(store, "PortName");
        const std::string name = stored != nullptr ? TextOf(*stored) : std::string{};
        const unsigned long number = PortNumber(name);
        rows.push_back(RowOf(name, number, devices[index], records));
        rows.back()[0] = std::to_string(index + 1);
        unsigned long channel = 0;
        const StoreValue* const channel_number = FindValue(store, "ChlNumber");
        rows.back()[1] =
            channel_number != nullptr && NumberOf(*channel_number, channel) ? std::to_string(channel) : "-";
        held.insert(number);
    }
    return rows;
}

// Marks the names that are not COM and a number, and those that several ports have.
void MarkNames(PortRows& rows) {
    std::multiset<std::string> names;
    for (const Row& row : rows) {
        names.insert(Folded(row[2]));
    }
    for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
        std::string& name = (*row)[2];
        if (name == "none") {
            continue;
        }
        if (PortNumber(name) == 0) {
            name += " is not COM";
        } else if (names.count(Folded(name)) > 1) {
            name += " twice";
        }
    }
}

Lines Written(const PortRows& rows, const std::array<int, headings.size()>& widths) {
    Lines lines;
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            line += widths[column] != 0 ? "  " + PaddedTo(row[column], widths[column]) : "";
        }
        lines.push_back(line.substr(0, line.find_last_not_of(' ') + 1));
    }
    return lines;
}

bool AreTooWide(const Lines& lines, int columns) {
    return columns != 0 &&
           std::ranges::any_of(lines, [&](const std::string& line) { return Columns(line) > columns; });
}

Lines FittedLines(const PortRows& rows, int columns) {
    std::array<int, headings.size()> widths{};
    for (const Row& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], Columns(row[column]));
        }
    }
    Lines lines = Written(rows, widths);
    if (!AreTooWide(lines, columns)) {
        return lines;
    }
    widths[dos_names] = 0;
    return Written(rows, widths);
}

std::string ClaimedWithoutDevice(const PortRecords& records, const std::set<unsigned long>& held) {
    if (!records.usage) {
        return unknown;
    }
    std::vector<unsigned long> unheld;
    for (unsigned long number = 1; number <= 8 * records.usage->size(); ++number) {
        if (IsClaimed(records, number) && !held.contains(number)) {
            unheld.push_back(number);
        }
    }
    return RangesOf(unheld);
}

} // namespace

Lines PortsTable(World& world, int columns) {
    const PortRecords records = world.Ports();
    std::set<unsigned long> held;
    PortRows rows = RowsOf(world, records, held);
    MarkNames(rows);
    Lines lines = FittedLines(rows, columns);
    lines.push_back("  claimed without a device: " + ClaimedWithoutDevice(records, held));
    if (AreTooWide(lines, columns)) {
        std::ranges::transform(lines, lines.begin(), [&](const auto& line) { return CutTo(line, columns); });
    }
    return lines;
}

} // namespace host
