// The full screen, as a program starts it.
#pragma once

#include <memory>
#include <string>

#include "host/session/seat.h"

namespace host {

// Fills the terminal until the seat is destroyed. Null if nobody is at a terminal, or with the reason if
// there is one that can't be filled.
std::unique_ptr<Seat> OpenFullScreen(std::string& reason);

} // namespace host
