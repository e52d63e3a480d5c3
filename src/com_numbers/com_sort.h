// Sort UART: gives a board's UARTs the COM numbers that they hold in the order of their channel numbers.
//
// A number can only move to a free one, so two ports exchange theirs through a temporary number, the highest
// that the database reports as free. The work happens at once and is not undone.
#pragma once

#include "device_model/board_params.h"

// The click on IDC_SORT_COM of the Advanced Port Control dialog that stands on `channel`. Always false. A
// port whose name gives no number from 1 to 256 takes no part; of a board with more than 256 UARTs the first
// 256 do. ChlListChanged of the board is set if there were ports to change, also if none could be.
bool _SortCOMClicked(HWND dialog, BPPCHL* channel);
