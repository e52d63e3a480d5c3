// The places that hold a port's number, side by side: a rename must change all of them together. A word marks
// each place that disagrees with the port's name in its device store.
#pragma once

#include <string>
#include <vector>

#include "host/diagnosis/table.h"
#include "host/worlds/records.h"

namespace host {

// A row for each port, below the headings.
std::vector<Row> PortRows(const Records& records);

// "9, 10, 33": the numbers that the database has claimed although no device holds them.
std::string ClaimedWithoutDevice(const Records& records);

// One line per port, then the numbers that the COM port database has claimed although no device holds them.
// If that is wider than `columns`, the DOS names are left out, because they follow from the serial map, and
// the lines are cut; 0 for any width.
std::vector<std::string> PortsTable(const Records& records, int columns);

} // namespace host
