// What this folder answers in the place of a Windows.
#pragma once

#include "platform/platform.h"

namespace host {

// Answers the calls of a program or library that Wine has no answer to, and allows faults in them.
void StandIn(HMODULE module);

} // namespace host
