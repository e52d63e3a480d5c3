// The calls that differ under Wine: the host for Wine links `worlds/wine/system.cpp` in place of the file
// here. That one answers where Wine has no answer and fails calls on demand; the host that ships does
// neither.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/platform.h"

namespace host {

// Lets all that the library calls be observed. One library at a time.
void AttachTo(HMODULE library);

// The DOS names of the serial ports and their targets.
std::vector<std::pair<std::wstring, std::wstring>> SerialDosNames();

// Makes the resources of a language those that are found when none is named. False if the system knows no
// such language.
bool UseLanguage(LANGID language);

} // namespace host
