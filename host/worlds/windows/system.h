// The calls that differ under Wine: the host for Wine links `tests/windows/wine/system.cpp` instead of the
// file here. That one answers where Wine has no answer, and fails calls on demand; the host that ships does
// neither.
#pragma once

#include "host/worlds/records.h"
#include "platform/platform.h"

namespace host {

// Makes all calls of the library observable. Only one library at a time.
void AttachTo(HMODULE library);

// The DOS names of the serial ports and their targets.
TextPairs SerialDosNames();

// Makes a language the one whose resources are found if none is named. False if the system does not know it.
bool UseLanguage(LANGID language);

} // namespace host
