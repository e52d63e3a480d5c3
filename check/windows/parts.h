// The parts of the check that need no rights and change nothing. Each adds its facts to the report.
#pragma once

#include <windows.h>

#include <string>

#include "check/facts.h"

namespace check {

// Windows' version, language, scale, theme and rights: nothing of the person or of other devices.
void LookAtMachine(Report& report);

// Loads the library from the folder. Null if that fails; the caller frees it.
HMODULE LookAtLibrary(const std::wstring& folder, Report& report);

// These look at the library that has been loaded.
void LookAtStrings(Report& report);
void LookAtDialogs(Report& report); // in common controls 5 and 6
void LookAtRequests(Report& report);

// Opens and closes a sheet so many times, and two at once in two threads.
void LookAtSheets(int times, Report& report);

// "118 of 120"
std::string Of(int count, int all);
// "0x80004005"
std::string Hex(DWORD number);

} // namespace check
