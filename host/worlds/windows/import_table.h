// The import table of a loaded library: what it calls of the system goes through here, so that a call can be
// seen, or answered where the system has no answer, without a trace of it in the library.
#pragma once

#include "platform/platform.h"

namespace host {

// Puts `function` in the place of what `library` imports under `name`, and gives what stood there; null if
// the library imports no such name. The library must be one that no other thread is using.
void* Redirect(HMODULE library, const char* name, void* function);

} // namespace host
