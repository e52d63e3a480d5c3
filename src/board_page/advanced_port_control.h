// The Advanced Port Control dialog: a UART's electrical interface, and Sort UART for the whole board.
#pragma once

#include "device_model/board_params.h"

// Runs the dialog for a UART, modally over `hParent`, and returns true when it has closed, whatever closed
// it. By then the choice of its OK is stored, and the records have the numbers that Sort UART gave, with
// ChlListChanged of the board set.
bool KvrBoardUartAdvancedDlgShow(HWND hParent, BPPCHL* channel);
