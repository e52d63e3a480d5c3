// The FIFO settings of the Port Control page, from the controls to the device store.
//
// Of a UART's settings there are three states: the sliders (page state), `CurrentInfo` (pending) and
// `SavedInfo` (what the store holds). A slider changes page state only, Apply and the page's OK take it into
// pending, and every pending value that differs from the saved one is written.
//
// `index` is the list box position of the selected channel. Each click does nothing and gives false unless
// that is a UART.
#pragma once

#include "device_model/board_params.h"
#include "reporting/trace.h"

// Brings the FIFO controls and the buttons that act on a UART into line with a channel; disables them for any
// other channel and for null.
void _RefreshFifoControls(HWND hDlg, BPPCHL* channel);

// WM_HSCROLL: a slider, whose window `lParam` is, has moved. True.
bool _OnHscroll(HWND hDlg, LPARAM lParam);

bool _FifoEnableClicked(HWND hDlg, BoardParams* params, u32 index);
bool _RestoreDefaultClicked(HWND hDlg, BoardParams* params, u32 index);
// Every UART's pending values become the page's; nothing is stored.
bool _SetToAllClicked(HWND hDlg, BoardParams* params, u32 index);
// Takes the page's values and stores what is pending; false, after a box, if that failed.
bool _ApplyClicked(HWND hDlg, BoardParams* params, u32 index);

// The selected UART's pending values become the page's.
void TakeFifoSettings(HWND hDlg, BPPCHL* channel, TraceName function = __builtin_FUNCTION());

// Stores what is pending. False, after a box over `hDlg`, if a write failed: that UART and those after it
// stay pending.
bool StorePendingFifo(HWND hDlg, BoardParams* params);
