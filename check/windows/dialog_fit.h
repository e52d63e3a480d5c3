// Measures on real windows whether every text of a dialog has enough room, with the texts that the library
// puts in at run time, in the dialog's own font and at the screen's scale; and whether the controls keep
// clear of each other.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "resources/resource_ids.h"

constexpr WORD all_dialogs[] = {IDD_PORT_SETTINGS, IDD_ADVANCED_PORT_SETTINGS, IDD_PORT_CONTROL,
                                IDD_ADVANCED_PORT_CONTROL};

// What has been measured so far.
struct Fit {
    int dialogs = 0, texts = 0, failures = 0;
    std::vector<std::string> lines; // one per finding; a known one, which is no failure, begins with "known"
};

// The languages of the library's dialogs, sorted.
std::vector<LANGID> Languages();

// Dots per inch.
int ScreenScale();

// A dialog of the library in one language, with a procedure that does nothing. Null if it can't be created.
// The caller destroys it.
HWND CreatePlainDialog(LANGID language, WORD id);

void MeasureDialog(HWND dialog, LANGID language, WORD id, Fit& fit);
