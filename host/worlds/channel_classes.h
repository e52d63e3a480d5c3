// The device interface classes through which a board finds its channels.
#pragma once

#include <array>

#include "platform/platform.h"

namespace host {

// The class of ports and the four of the board's own, in the order of the channel classes, which count from
// 1.
extern const std::array<GUID, 5> channel_interface_classes;

// The channel class of an interface class; 0 for any other.
unsigned ChannelClassOf(const GUID& interface_class);

} // namespace host
