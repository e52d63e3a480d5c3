// The pages on devices of the check's own, which it makes and takes back.
#pragma once

#include <functional>

#include "check/facts.h"

namespace check {

// Takes back what an earlier check has left, if it has left something, before anything else is done.
void TakeBackEarlier(Report& report);

// Whether the person at the console agrees to what is made. Windows Sandbox is not asked: it is thrown away.
bool MayMakeDevices();

// Makes the devices, runs the scripts on them, opens their pages so many times and takes everything back.
// Only tells that it was not allowed if it was not. `save` is called where the report has grown and what
// follows may end the program.
void LookAtDevices(bool allowed, int times, Report& report, const std::function<void()>& save);

} // namespace check
