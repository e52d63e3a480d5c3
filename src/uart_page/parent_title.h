// The title of the sheet behind the advanced dialog, which names the port.
#pragma once

#include "platform/platform.h"

// Replaces the first occurrence of the old name, as plain text, in the window's title. The title stays if it
// doesn't contain the name or if there is no memory.
void _ChangeParentTitle(HWND hWindow, const WCHAR* oldName, const WCHAR* newName);
