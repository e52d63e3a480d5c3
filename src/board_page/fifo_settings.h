// The FIFO settings of the Port Control page, from the controls to the device store.
//
// A UART's settings have three states: the sliders (page state), `CurrentInfo` (pending) and `SavedInfo`
// (what the store holds). A slider changes only page state. Apply and the page's OK make it pending and then
// write every pending value that differs from the saved one.
//
// `index` is the list box position of the selected channel. Unless that is a UART, each click does nothing
// and returns false.
#pragma once

#include "device_model/board_params.h"
#include "reporting/trace.h"

// Shows a UART in the FIFO controls and enables the buttons that act on it. For any other channel, and for
// null, both are disabled.
void _RefreshFifoControls(HWND hDlg, BPPCHL* channel);

// Answers WM_HSCROLL, where `lParam` is the window of the slider that has moved. Returns true.
bool _OnHscroll(HWND hDlg, LPARAM lParam);

bool _FifoEnableClicked(HWND hDlg, BoardParams* params, INT index);
bool _RestoreDefaultClicked(HWND hDlg, BoardParams* params, INT index);
// Makes the page's values pending for every UART. Nothing is stored.
bool _SetToAllClicked(HWND hDlg, BoardParams* params, INT index);
// Makes the page's values pending and stores what is pending. False if that failed; a box has said so.
bool _ApplyClicked(HWND hDlg, BoardParams* params, INT index);

// Writes every UART whose pending values differ from the saved ones, in ascending order of the channel
// numbers. Stops with false at the first write that fails; `status` is that of the write, and `comNumber` the
// number of the port. Otherwise both are 0.
bool _SetEachUartUiFifoSettingsIfChange(BoardParams* params, u32* status, u32* comNumber);

// Makes the page's values pending for the selected UART.
void TakeFifoSettings(HWND hDlg, BPPCHL* channel);

// Stores what is pending. False if a write failed; a box over `hDlg` has said so. That UART and those after
// it stay pending.
bool StorePendingFifo(HWND hDlg, BoardParams* params);
