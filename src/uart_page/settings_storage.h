// From the settings line in the profile to the page's combos and back.
#pragma once

#include "uart_page/uart_page_params.h"

// Reads the line under the key of `params->ComName`, keeps its fields in `params->Saved` and selects the five
// combos. A port without a line, or with a blank one, gets the default line at once.
void _GetSettingsFromRegistryAndApplyToUI(HWND dialog, UartPageParams* params);

// Composes the line from the combos, and if one of the five selections differs from `params->Saved` writes
// it, tells the applications and the device. False, with nothing written, if a combo has no selection, or one
// that the line has no part for.
bool _SaveSettings(HWND dialog, const UartPageParams* params);

// Selects the item of the baud rate combo that begins with a text; the first item if none does.
void SelectBaudRate(HWND dialog, const WCHAR* text);

// Selects the items of the other four combos.
void SelectSettings(HWND dialog, const PortSettings& settings);
