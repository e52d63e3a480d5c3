// The places that hold a port's number, side by side: what a rename must change together. Where one of them
// does not agree with the port's name in its device store, ! stands behind it.
#pragma once

#include "host/screen/listing.h"

namespace host {

// A line a port, then the numbers that the COM port database has claimed though no device holds them.
Lines PortsTable(World& world);

} // namespace host
