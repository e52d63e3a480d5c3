// The 256 COM numbers that the pages know, as a map: what each is, at a glance.
#pragma once

#include <string>
#include <vector>

#include "host/worlds/records.h"

namespace host {

constexpr unsigned mapped_numbers = 256, map_columns = 16;

enum class NumberState {
    Unknown, // nothing has it as far as is known, and the database is not known
    Free,
    Claimed,  // in the database, by no device
    Absent,   // of a device that is not there
    Port,     // of a device that is there but not live
    Live,     // in the serial map
    Conflict, // of more than one device, live twice, or of a device that is there and not claimed
};

NumberState StateOf(const Records& records, unsigned long number);

// How a state is shown, and told.
struct StateSign {
    char letter;
    const char* name;
};
StateSign SignOf(NumberState state);

// How many numbers stand side by side: as many as fit, so that the map is seen at a glance.
constexpr unsigned MapColumns(int columns) {
    return columns >= 72 ? 2 * map_columns : map_columns;
}

// The map with its legend, for a screen of at least 40 columns.
std::vector<std::string> NumberMapLines(const Records& records, int columns);

} // namespace host
