// From the settings line in the profile to the page's combos and back.
#pragma once

#include "reporting/trace.h"
#include "uart_page/uart_page_params.h"

// Units of a key, terminator included.
constexpr u32 SettingsKeyCapacity = 81;

// Reads the line under a key, keeps its fields in `params->Saved` and selects the five combos. A port without
// a line, or with a blank one, gets the default line at once.
void _GetSettingsFromRegistryAndApplyToUI(HWND dialog, const WCHAR* key, UartPageParams* params);

// Composes the line from the combos, and if one of the five selections differs from `params->Saved` writes
// it, tells the applications and the device. False, with nothing written, if a combo has no selection, or one
// that the line has no part for.
bool _SaveSettings(HWND dialog, const WCHAR* key, const UartPageParams* params);

// Selects the item of the baud rate combo that begins with a text; the first item if none does.
void SelectBaudRate(HWND dialog, const WCHAR* text, TraceName function = __builtin_FUNCTION());

// Selects the items of the other four combos.
void SelectSettings(HWND dialog, const PortSettings& settings);
