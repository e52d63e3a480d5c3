// What of the live system the tests replace: their host links an implementation of its own, which answers
// where the stand-in of Windows has no answer and fails calls on demand. The one that ships has nothing of
// that.
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
