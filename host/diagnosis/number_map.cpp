#include "host/diagnosis/number_map.h"

#include <algorithm>

#include "host/text.h"

namespace host {
namespace {

// By state.
constexpr StateSign signs[] = {{'?', "not known"},
                               {'.', "free"},
                               {'c', "claimed, no device"},
                               {'a', "of an absent device"},
                               {'p', "port, not live"},
                               {'L', "live"},
                               {'!', "conflict"}};

} // namespace

NumberState StateOf(const Records& records, unsigned long number) {
    const NumberRecord& record = NumberIn(records, number);
    const bool has_database = (records.known & DatabasePlace) != 0;
    const bool is_present = std::ranges::any_of(
        record.holders, [&](std::size_t holder) { return records.devices[holder].present; });
    if (record.holders.size() > 1 || record.mapped.size() > 1 ||
        (has_database && is_present && !record.claimed)) {
        return NumberState::Conflict;
    }
    if (!record.mapped.empty()) {
        return NumberState::Live;
    }
    if (!record.holders.empty()) {
        return is_present ? NumberState::Port : NumberState::Absent;
    }
    return !has_database ? NumberState::Unknown : record.claimed ? NumberState::Claimed : NumberState::Free;
}

StateSign SignOf(NumberState state) {
    return signs[static_cast<std::size_t>(state)];
}

std::vector<std::string> NumberMapLines(const Records& records, int columns) {
    const unsigned across = MapColumns(columns);
    std::vector<std::string> lines;
    for (unsigned long first = 1; first <= mapped_numbers; first += across) {
        const std::string number = std::to_string(first);
        std::string line = std::string(5 - number.size(), ' ') + number + ' ';
        for (unsigned long column = 0; column < across; ++column) {
            line += std::string{' '} + SignOf(StateOf(records, first + column)).letter;
        }
        lines.push_back(std::move(line));
    }
    std::string legend;
    for (const StateSign& sign : signs) {
        legend += (legend.empty() ? "" : ", ") + std::string{sign.letter} + ' ' + sign.name;
    }
    for (const std::string& line : BrokenAt(legend, columns - 2)) {
        lines.push_back("  " + line);
    }
    return lines;
}

} // namespace host
