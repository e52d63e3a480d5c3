// The full screen, as a program starts it.
#pragma once

#include <functional>
#include <string>

#include "host/screen/listing.h"
#include "host/worlds/world.h"

namespace host {

// Shows the world on the full screen until its user leaves; `command` produces the output of a command that
// the user gives. Returns false if nothing has been done: with the reason if the terminal can't be filled,
// without one if nobody is at a terminal.
bool RunFullScreen(World& world, const std::function<Lines(const std::string& line)>& command,
                   std::string& reason);

} // namespace host
