// A board as a table: its channels in their order, as its page would find them.
#pragma once

#include <string>
#include <vector>

#include "host/diagnosis/table.h"
#include "host/worlds/records.h"

namespace host {

// A row for each channel below the headings, as cells and as lines. Nothing if there is no such board.
struct BoardTable {
    std::vector<Row> cells;
    std::vector<std::string> lines;
    std::vector<std::size_t>
        listed; // each channel's number in the list of devices; 0 if it has no sheet, as in the first row
};

// The table of the board that a device is or belongs to.
BoardTable TableOfBoard(const Records& records, const DeviceRecord& device);

} // namespace host
