// The live form of the trace: a line is composed here, once for every build, and passed to the sink that the
// build links, the debugger or the simulated machine. Nothing is allocated.
#pragma once

#include "platform/platform.h"

// Bytes of a line, UTF-8, with its line feed and terminator. A longer one is cut behind a whole character and
// ends in its line feed all the same.
constexpr u32 TraceLineCapacity = 1024;

// The sink. Whether anybody listens: if not, no line is composed.
bool TraceIsHeard();
// `line` ends in a line feed and a terminator, which `length` does not count.
void PassTraceLine(const char* line, u32 length);
