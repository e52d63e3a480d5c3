// Failures on demand: the next call of an operation fails in a way that is always possible, without being
// carried out.
#pragma once

#include <string>

#include "platform/platform.h"

namespace host {

// Routes the calls of a program or library through here, below the observers. All that do so share what is
// behind an operation.
void AllowFaults(HMODULE module);

// What becomes of a call: it fails without being carried out, or the process ends there.
enum class Fate { Fails, EndsBefore, EndsAfter };

// Gives the `count`-th call from now on its fate, counted from 1. False if this operation can have none.
bool FailCall(const std::string& operation, int count, Fate fate = Fate::Fails);

// Makes every device appear to belong to another machine.
void PretendRemote();

} // namespace host
