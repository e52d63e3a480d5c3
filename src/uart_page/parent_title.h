// The title of the sheet that the advanced dialog lies over. It names the port.
#pragma once

#include "platform/platform.h"

// Replaces the first occurrence of the old name, as plain text, in the window's title. The title stays as it
// is if it doesn't contain the name or if there is no memory.
void _ChangeParentTitle(HWND hWindow, const WCHAR* oldName, const WCHAR* newName);
