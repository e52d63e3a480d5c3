// From the settings line in the profile to the page's combos and back.
#pragma once

#include "reporting/trace.h"
#include "uart_page/uart_page_params.h"

// Units of a key, terminator included.
constexpr u32 SettingsKeyCapacity = 81;

// Reads the line under `key`, keeps its fields in `params->Saved` and selects the five combos. A missing or
// blank line is replaced by the default line at once.
void _GetSettingsFromRegistryAndApplyToUI(HWND dialog, const WCHAR* key, UartPageParams* params);

// Composes the line from the combos. If one of the five fields differs from `params->Saved`, the line is
// written and applications and the device are notified. Returns false and writes nothing if a combo has no
// selection or one that the line can't express.
bool _SaveSettings(HWND dialog, const WCHAR* key, const UartPageParams* params);

// Selects the first item of the baud rate combo that begins with `text`, or the first item of all if none
// does.
void SelectBaudRate(HWND dialog, const WCHAR* text);

// Selects the items of the other four combos.
void SelectSettings(HWND dialog, const PortSettings& settings);
