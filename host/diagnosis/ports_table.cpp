#include "host/diagnosis/ports_table.h"

#include <algorithm>
#include <array>
#include <set>

#include "host/diagnosis/number_ranges.h"
#include "host/text.h"

namespace host {
namespace {

constexpr std::array<const char*, std::tuple_size_v<Row>> port_headings = {
    "device", "channel", "PortName", "friendly", "DOS name", "serial map", "database", "settings line"};
constexpr std::size_t dos_names = 4; // the column that is left out if room is short
using Lines = std::vector<std::string>;

constexpr const char* differs = " differs";
constexpr const char* missing = "missing";
constexpr const char* unknown = "not known";

// The texts, each with a word if it is not the wanted one; `none` if there are none.
std::string Joined(const Lines& texts, const std::string* wanted, const char* none) {
    constexpr std::ptrdiff_t most = 8; // an export may hold any number for each port
    std::string joined;
    for (const std::string& text : texts) {
        if (&text - texts.data() == most) {
            return joined + ", …";
        }
        joined += (joined.empty() ? "" : ", ") + Escaped(text) +
                  (wanted != nullptr && Folded(text) == Folded(*wanted) ? "" : differs);
    }
    return joined.empty() ? none : joined;
}

Row RowOf(const Records& records, const DeviceRecord& device) {
    const std::string name = StoredText(device.store, "PortName");
    const unsigned long number = PortNumber(name), friendly = FriendlyNumber(device.friendly_name);
    const NumberRecord& record = NumberIn(records, number);
    const auto known = [&](Place place, const std::string& text) {
        return (records.known & place) != 0 ? text : unknown;
    };
    const std::string* const target = record.targets.empty() ? nullptr : &record.targets.front();
    return {std::to_string(device.listed),
            FindValue(device.store, "ChlNumber") != nullptr
                ? std::to_string(StoredNumber(device.store, "ChlNumber"))
                : "-",
            name.empty() ? "none" : Escaped(name),
            (friendly != 0 ? std::to_string(friendly) : "none") +
                (friendly != 0 && friendly != number ? differs : ""),
            target != nullptr ? "-> " + Escaped(*target) : missing,
            known(SerialMapPlace, Joined(record.mapped, target, missing)),
            known(DatabasePlace, record.claimed ? "claimed" : "not claimed"),
            known(SettingsPlace, record.lines.empty() ? "none" : Quoted(record.lines.front()))};
}

// A row for each port, below the headings.
std::vector<Row> RowsOf(const Records& records) {
    std::vector<Row> rows{{}};
    std::ranges::copy(port_headings, rows.front().begin());
    for (const DeviceRecord& device : records.devices) {
        if (device.role == Role::Port) {
            rows.push_back(RowOf(records, device));
        }
    }
    return rows;
}

// Marks the names that are not COM and a number, and those that several ports have.
void MarkNames(std::vector<Row>& rows) {
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

bool AreTooWide(const Lines& lines, int columns) {
    return columns != 0 &&
           std::ranges::any_of(lines, [&](const std::string& line) { return Columns(line) > columns; });
}

} // namespace

std::vector<Row> PortRows(const Records& records) {
    std::vector<Row> rows = RowsOf(records);
    MarkNames(rows);
    return rows;
}

std::string ClaimedWithoutDevice(const Records& records) {
    if ((records.known & DatabasePlace) == 0) {
        return unknown;
    }
    std::vector<unsigned long> unheld;
    for (const auto& [number, record] : records.numbers) {
        if (record.claimed && record.holders.empty()) {
            unheld.push_back(number);
        }
    }
    return RangesOf(unheld);
}

Lines PortsTable(const Records& records, int columns) {
    const std::vector<Row> rows = PortRows(records);
    Lines lines = TableLines(rows);
    if (AreTooWide(lines, columns)) {
        lines = TableLines(rows, dos_names);
    }
    lines.push_back("  claimed without a device: " + ClaimedWithoutDevice(records));
    if (AreTooWide(lines, columns)) {
        std::ranges::transform(lines, lines.begin(), [&](const auto& line) { return CutTo(line, columns); });
    }
    return lines;
}

} // namespace host
