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

// Brings the FIFO controls and the buttons that act on a UART into line with a channel; disables them for any
// other channel and for null.
void _RefreshFifoControls(HWND hDlg, BPPCHL* channel);

// A slider has moved. `params` is null until the page has been initialised.
void _OnHscroll(HWND hDlg, const BoardParams* params, u32 index, HWND slider);

bool _FifoEnableClicked(HWND hDlg, BoardParams* params, u32 index);
bool _RestoreDefaultClicked(HWND hDlg, BoardParams* params, u32 index);
// Every UART's pending values become the page's; nothing is stored.
bool _SetToAllClicked(HWND hDlg, BoardParams* params, u32 index);
// Takes the page's values and stores what is pending; false, after a box, if that failed.
bool _ApplyClicked(HWND hDlg, BoardParams* params, u32 index);

// The selected UART's pending values become the page's.
void TakeFifoSettings(HWND hDlg, BPPCHL* channel);

// Writes every UART whose pending values differ from the saved ones, in ascending channel number, and stops
// at the first failure. False, after a box owned by `hDlg`, if one failed: it and those behind it stay
// pending.
bool StoreFifoSettings(HWND hDlg, BoardParams* params);
