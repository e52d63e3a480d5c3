// The places that hold a port's number, side by side: what a rename must change together. Where one of them
// does not agree with the port's name in its device store, a word says so.
#pragma once

#include "host/screen/listing.h"

namespace host {

// A line a port, then the numbers that the COM port database has claimed though no device holds them.
// Where that is wider than `columns`, without the DOS names, which follow from the serial map, and cut; 0 for
// any width.
Lines PortsTable(World& world, int columns);

} // namespace host
