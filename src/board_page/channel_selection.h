// Which record a Port Control page has, and which of its channels is selected. The selection of the channel
// list box is the page's only record of that, so each handler asks for it afresh.
#pragma once

#include "device_model/board_params.h"

// The record of the page; null until WM_INITDIALOG has stored it.
BoardParams* PageParams(HWND hDlg);

// The position of the list box's selection, -1 if there is none.
INT SelectedChannel(HWND hDlg);

// The channel at a position of the list box; null if there is none, as at -1.
BPPCHL* ChannelAt(const BoardParams* params, INT index);
