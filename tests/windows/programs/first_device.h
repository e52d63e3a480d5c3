// The device that a program opens if it needs one of each kind and nobody names it.
#pragma once

#include <optional>

#include "host/worlds/world.h"

namespace host {

// The first device of the role with values from the board's driver, so that its provider has a page for it.
std::optional<DeviceRecord> FirstDevice(World& world, Role role);

} // namespace host
