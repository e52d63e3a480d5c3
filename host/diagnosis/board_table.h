// A board as a table: its channels in their order, as its page would find them.
#pragma once

#include <string>
#include <vector>

#include "host/worlds/records.h"

namespace host {

struct BoardTable {
    std::string heading;
    struct Row {
        std::string line;
        std::size_t listed = 0; // the channel's number in the list of devices; 0 if it has no sheet
    };
    std::vector<Row> rows;
};

// The table of the board that a device is or belongs to. No heading if it belongs to none.
BoardTable TableOfBoard(const Records& records, const DeviceRecord& device);

} // namespace host
