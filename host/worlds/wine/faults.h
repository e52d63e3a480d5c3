// Failures on demand: the next call of an operation fails as it can fail at any time, without being carried
// out.
#pragma once

#include <string>

#include "platform/platform.h"

namespace host {

// Makes the library's calls pass here, below whoever observes them. One library at a time.
void AllowFaults(HMODULE library);

// Makes the `count`-th call from now on fail, from 1. False if this operation can't be made to fail.
bool FailCall(const std::string& operation, int count);

// Lets every device pass for one of another machine.
void PretendRemote();

} // namespace host
