// Failures on demand: the next call of an operation fails in a way that is always possible, without being
// carried out.
#pragma once

#include <string>

#include "platform/platform.h"

namespace host {

// Routes the library's calls through here, below the observers. Only one library at a time.
void AllowFaults(HMODULE library);

// Makes the `count`-th call from now on fail, counted from 1. False if this operation can't be made to fail.
bool FailCall(const std::string& operation, int count);

// Makes every device appear to belong to another machine.
void PretendRemote();

} // namespace host
