// What the library does when it is loaded, and the little state that belongs to the module as a whole. The
// state is written at attach and read-only afterwards.
#pragma once

#include "platform/platform.h"

// The library's instance, for every template and string that is loaded.
extern HINSTANCE ModuleInstance;

// The out-of-memory box, loaded at attach so that it needs neither memory nor resources when it is shown.
// Empty if the string was missing.
extern WCHAR OutOfMemoryText[200];
extern WCHAR OutOfMemoryCaption[30];

// The entry point, called by the system for attach and detach. Always TRUE.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);
