// The live form of the trace: a line is composed here, in the same way for every build, and passed to the
// sink that the build links, the debugger or the simulated machine. Nothing is allocated.
#pragma once

#include "platform/platform.h"

// Bytes of a line in UTF-8, with its line feed and terminator. A longer line is cut after a whole character
// and still ends in its line feed.
constexpr u32 TraceLineCapacity = 1024;

// The sink. Returns whether anybody listens; if not, no line is composed.
bool TraceIsHeard();
// `line` ends in a line feed and a terminator, which `length` does not count.
void PassTraceLine(const char* line, u32 length);
