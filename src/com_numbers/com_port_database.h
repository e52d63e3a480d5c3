// Which COM numbers are taken, as the system's COM port database has it. Each operation opens the database,
// takes one snapshot of its usage, closes it again and decides on the snapshot; nothing is held or reserved.
//
// Port names come in as "COM" and digits. The numbers of the system are 1 to 256.
#pragma once

#include "platform/platform.h"

constexpr u32 ComNumberMax = 256;

// 0 if the number, 1 to 256, is free; StatusNumberClaimed, StatusNoDatabase or StatusNoUsage.
u32 Kavro_COMPortCheckNumberInUse(u32 number);

// The highest free number. 0, StatusNoneFree, StatusNoDatabase or StatusNoUsage; the number is 0 unless the
// status is.
u32 Kavro_COMPortGetMaxNumberAvailable(u32* MaxAvlComNumber);

// Adds all 256 numbers to the combo IDC_PORT_NUMBER of a dialog, marks those that others hold, selects the
// port's own, and enables the combo with its caption, or disables both on failure. Entry i is COM number i
// + 1. The caller empties the combo first. 0, StatusNoCombo, StatusNoDatabase or StatusNoUsage.
u32 Kavro_COMPortFillPortNameCombox(HWND dialog, const WCHAR* portName);
