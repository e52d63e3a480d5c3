// What the stand-in of Windows lacks, answered within this program: the DOS names of serial ports, the two
// class installer calls, and the registry's share in the profile. On Windows itself none of it is used.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace host {

// Whether this system is one that stands in for Windows.
bool IsStandInSystem();

// Answers for what the system lacks, from the serial map and the [Ports] values of the registry as they are
// now.
void UseStandIns(HMODULE library);

// The DOS names of the serial ports and their targets, on either system.
std::vector<std::pair<std::wstring, std::wstring>> SerialDosNames();

// Makes the resources of a language those that are found when none is named. False if the system knows no
// such language.
bool UseLanguage(LANGID language);

} // namespace host
