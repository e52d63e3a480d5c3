// The full screen as a program starts it.
#pragma once

#include <string>

#include "host/worlds/world.h"

namespace host {

// Sits before the world until its user leaves. False if nothing has been done: with the reason if the
// terminal can't be filled, without one if there is no person at a terminal.
bool RunFullScreen(World& world, std::string& reason);

} // namespace host
