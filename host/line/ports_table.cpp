#include "host/line/ports_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>

#include "host/text.h"

namespace host {
namespace {

constexpr std::array<const char*, 8> headings = {"device",   "channel",    "PortName", "friendly",
                                                 "DOS name", "serial map", "database", "settings line"};
using Cells = std::array<std::string, headings.size()>;

constexpr const char* disagrees = " !";

bool Same(const Text& left, std::string_view right) {
    return Folded(ToUtf8(left)) == Folded(right);
}

// The number in the last pair of parentheses of a friendly name.
unsigned long FriendlyNumber(const std::string& name) {
    const std::size_t open = name.rfind('('), close = name.rfind(')');
    return open == std::string::npos || close == std::string::npos || close < open
               ? 0
               : PortNumber(std::string_view{name}.substr(open + 1, close - open - 1));
}

bool IsClaimed(const PortRecords& records, unsigned long number) {
    return number >= 1 && number <= 256 && (records.usage[(number - 1) / 8] >> (number - 1) % 8 & 1) != 0;
}

Cells RowOf(const std::string& name, unsigned long number, const Device& device, const PortRecords& records) {
    Cells row;
    row[2] = name.empty() ? "none" : name;
    const unsigned long friendly = FriendlyNumber(ToUtf8(device.friendly_name));
    row[3] = friendly ? std::to_string(friendly) : "none";
    if (friendly != number) {
        row[3] += disagrees;
    }
    const auto dos = std::find_if(records.dos_names.begin(), records.dos_names.end(),
                                  [&](const auto& entry) { return Same(entry.first, name); });
    const bool has_target = dos != records.dos_names.end();
    row[4] = has_target ? "-> " + ToUtf8(dos->second) : std::string{"none"} + disagrees;
    for (const auto& [value, mapped] : records.serial_map) {
        if (Same(mapped, name)) {
            row[5] += (row[5].empty() ? "" : ", ") + ToUtf8(value) +
                      (has_target && Same(value, ToUtf8(dos->second)) ? "" : disagrees);
        }
    }
    if (row[5].empty()) {
        row[5] = std::string{"none"} + disagrees;
    }
    row[6] = IsClaimed(records, number) ? "claimed" : std::string{"free"} + disagrees;
    row[7] = "none";
    for (const auto& [key, line] : records.settings_lines) {
        if (Same(key, name + ':')) {
            row[7] = Quoted(ToUtf8(line));
        }
    }
    return row;
}

std::string Line(const Cells& cells, const std::array<int, headings.size()>& widths) {
    std::string line;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        line += "  " + PaddedTo(cells[column], widths[column]);
    }
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

} // namespace

unsigned long PortNumber(std::string_view name) {
    unsigned long number = 0;
    if (name.size() < 4 || Folded(name.substr(0, 3)) != "com") {
        return 0;
    }
    const char* const end = name.data() + name.size();
    const auto [stopped, error] = std::from_chars(name.data() + 3, end, number);
    return error == std::errc{} && stopped == end ? number : 0;
}

Lines PortsTable(World& world) {
    const PortRecords records = world.Ports();
    const std::vector<Device> devices = world.Devices();
    std::vector<Cells> rows{{}};
    std::copy(headings.begin(), headings.end(), rows.front().begin());
    std::multiset<std::string> names;
    std::set<unsigned long> held;
    for (std::size_t index = 0; index < devices.size(); ++index) {
        if (devices[index].kind != DeviceKind::Port) {
            continue;
        }
        const std::vector<StoreValue> store = world.Store(devices[index].id);
        const StoreValue* const stored = FindValue(store, "PortName");
        const std::string name = stored ? TextOf(*stored) : std::string{};
        const unsigned long number = PortNumber(name);
        rows.push_back(RowOf(name, number, devices[index], records));
        rows.back()[0] = std::to_string(index + 1);
        unsigned long channel = 0;
        const StoreValue* const channel_number = FindValue(store, "ChlNumber");
        rows.back()[1] = channel_number && NumberOf(*channel_number, channel) ? std::to_string(channel) : "-";
        names.insert(Folded(name));
        held.insert(number);
    }
    for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
        if (PortNumber((*row)[2]) == 0 || names.count(Folded((*row)[2])) > 1) {
            (*row)[2] += disagrees;
        }
    }

    std::array<int, headings.size()> widths{};
    for (const Cells& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], Columns(row[column]));
        }
    }
    Lines lines;
    for (const Cells& row : rows) {
        lines.push_back(Line(row, widths));
    }
    std::string unheld;
    for (unsigned long number = 1; number <= 256; ++number) {
        if (IsClaimed(records, number) && !held.contains(number)) {
            unheld += (unheld.empty() ? "" : ", ") + std::to_string(number);
        }
    }
    lines.push_back("  claimed without a device: " + (unheld.empty() ? "none" : unheld));
    return lines;
}

} // namespace host
