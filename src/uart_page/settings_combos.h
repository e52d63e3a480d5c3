// The items of the Port Settings page's five combos.
#pragma once

#include "platform/platform.h"

// Fills the combos and selects their defaults; `code` is 0. False if the string of a list can't be loaded;
// `code` is then its failure code, and the combos before it are filled.
bool _FillComboxDlg(HWND hDlg, u32* code);
