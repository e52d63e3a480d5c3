// Numbers in the texts of controls.
#pragma once

#include "platform/platform.h"

// Units of every text that is loaded for, read from or shown on a page's control, terminator included.
constexpr u32 ControlTextCapacity = 260;

// The control's text becomes the string with the number in it; "(%d)" stands for a string that is missing.
void _SetTextFromString(HWND control, UINT stringId, u32 value);

// The control's own text is the format for the number. A text without a placeholder stays as it is.
void _SetTextFromOwnFormat(HWND hDlg, int controlId, u32 value);
