// Numbers in the texts of controls.
#pragma once

#include "platform/platform.h"

// Units of every text that is loaded for a control, read from it or shown on it, terminator included.
constexpr u32 ControlTextCapacity = 260;

// Sets the control's text to the string with the number in it. If the string is missing, "(%d)" takes its
// place.
void _SetTextFromString(HWND control, UINT stringId, u32 value);

// Puts the number into the control's own text, which is the format. A text without a placeholder stays as it
// is.
void _SetTextFromOwnFormat(HWND hDlg, int controlId, u32 value);
