// The items of the Port Settings page's five combos.
#pragma once

#include "platform/platform.h"

// Fills the combos and selects their defaults. False if the string of a list can't be loaded: `code` is then
// the failure code for it, and the combos are filled as far as it came.
bool _FillComboxDlg(HWND hDlg, u32* code);
