// What the library does when it is loaded, and the state of the module as a whole, which is set at attach and
// read-only afterwards.
#pragma once

#include "platform/platform.h"

// The instance of the library, from which every template and string is loaded.
extern HINSTANCE ModuleInstance;

// The text and caption of the out-of-memory box. They are loaded at attach, so that the box needs neither
// memory nor resources when it is shown. Empty if the string was missing.
extern WCHAR OutOfMemoryText[200];
extern WCHAR OutOfMemoryCaption[30];

// The entry point, which the system calls at attach and detach. Always returns TRUE.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);
