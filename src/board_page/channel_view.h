// The channel list box and what follows its selection.
#pragma once

#include "device_model/board_params.h"

// Fills the list box in ascending order of the channel numbers, and records each channel's position.
void _FillChannelList(HWND hDlg);

// Selects the channel at a position and updates the whole page to match. A position without a channel, such
// as -1, selects none. What the controls hold and the records don't is lost.
void _ChlListSelectChange(HWND hDlg, BoardParams* params, INT index);
