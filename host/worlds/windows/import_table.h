// The import table of a loaded library. The library's calls into the system go through it, so a call can be
// observed, or answered where the system has no answer, without any change to the library.
#pragma once

#include "platform/platform.h"

namespace host {

// Replaces what `library` imports under `name` with `function`, and returns what was there; null if the
// library imports no such name. No other thread may be using the library.
void* Redirect(HMODULE library, const char* name, void* function);

} // namespace host
