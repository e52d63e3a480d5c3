// Sort UART: redistributes the COM numbers of a board's UARTs so that they ascend with the channel numbers.
//
// A port can only move to a free number, so two ports exchange theirs through a temporary number, the highest
// that the database reports as free. The changes take effect at once and are not undone.
#pragma once

#include "device_model/board_params.h"

// Handles a click on IDC_SORT_COM in the Advanced Port Control dialog of `channel`. Always returns false. A
// port takes no part if its name gives no number from 1 to 256, and of more than 256 UARTs only the first 256
// take part. ChlListChanged of the board is set if there were ports to change, even if none was changed.
bool _SortCOMClicked(HWND dialog, BPPCHL* channel);
