// The channel list box and what follows its selection. The selection is the page's only record of which
// channel is selected.
#pragma once

#include "device_model/board_params.h"

// The record of the page; null until WM_INITDIALOG has stored it.
BoardParams* PageParams(HWND hDlg);

// The position of the list box's selection; all bits set if there is none.
u32 SelectedChannel(HWND hDlg);

// Fills the list box in ascending order of the channel numbers, and records each channel's position.
void _FillChannelList(HWND hDlg);

// Selects the channel at a position and updates the whole page to match. A position without a channel, such
// as -1, selects none. What the controls hold and the records don't is lost.
void _ChlListSelectChange(HWND hDlg, BoardParams* params, u32 index);
