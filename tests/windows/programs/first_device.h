// Which device a program opens that needs one of each kind and nobody to name it.
#pragma once

#include <optional>

#include "host/worlds/world.h"

namespace host {

// The first device of the kind that the board's driver has described, so that its provider has a page for it.
std::optional<Device> FirstDevice(World& world, DeviceKind kind);

} // namespace host
