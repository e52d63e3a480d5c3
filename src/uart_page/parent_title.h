// The title of the sheet above the advanced dialog, which names the port.
#pragma once

#include "platform/platform.h"

// Replaces the first occurrence of the old name, as plain text, in the window's title; a title without it, or
// without memory for a new one, stays.
void _ChangeParentTitle(HWND hWindow, const WCHAR* oldName, const WCHAR* newName);
