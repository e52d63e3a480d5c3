// The places that hold a port's number, side by side: a rename must change all of them together. A word marks
// each place that disagrees with the port's name in its device store.
#pragma once

#include "host/screen/listing.h"
#include "host/worlds/records.h"

namespace host {

// One line per port, then the numbers that the COM port database has claimed although no device holds them.
// If that is wider than `columns`, the DOS names are left out, because they follow from the serial map, and
// the lines are cut; 0 for any width.
Lines PortsTable(const Records& records, int columns);

} // namespace host
