// The COM numbers that are taken, according to the system's COM port database. Each operation opens the
// database, takes one snapshot of its usage, closes it and decides from the snapshot. Nothing is held or
// reserved.
//
// A port name is "COM" and a decimal number. Numbers run from 1 to 256.
#pragma once

#include "platform/platform.h"

constexpr u32 ComNumberMax = 256;

// Returns 0 if the number, 1 to 256, is free, or StatusNumberClaimed, StatusNoDatabase or StatusNoUsage.
u32 Kavro_COMPortCheckNumberInUse(u32 number);

// Finds the highest free number. Returns 0, StatusNoneFree, StatusNoDatabase or StatusNoUsage. On failure the
// number is 0.
u32 Kavro_COMPortGetMaxNumberAvailable(u32* MaxAvlComNumber);

// Adds all 256 numbers to the combo IDC_PORT_NUMBER of a dialog, marks those that others hold and selects the
// port's own. Entry i is COM number i + 1. Enables the combo and its caption, or disables both on failure.
// The caller empties the combo first. Returns 0, StatusNoCombo, StatusNoDatabase or StatusNoUsage.
u32 Kavro_COMPortFillPortNameCombox(HWND dialog, const WCHAR* portName);
