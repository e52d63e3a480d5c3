// The parts of the check. Each adds its facts to the report. These need no rights and change nothing; the
// part in devices.h does.
#pragma once

#include <windows.h>

#include <functional>
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

// Does something so many times, and tells how often it succeeded and what this process holds more afterwards.
void Repeat(const std::string& name, int times, const std::function<bool()>& once, Report& report);

// The folder of this program.
std::wstring OwnFolder();
// "administrator", "user" or "not known"
std::string Rights();
// "118 of 120"
std::string Of(int count, int all);
// "0x80004005"
std::string Hex(DWORD number);

} // namespace check
