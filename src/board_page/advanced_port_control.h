// The Advanced Port Control dialog: a UART's electrical interface, and Sort UART for the whole board.
#pragma once

#include "device_model/board_params.h"

// Runs the dialog for a UART, modally over `hParent`, and returns true when it has closed, whatever closed
// it. By then the choice made with OK is stored. If Sort UART gave new numbers, the records have them and
// ChlListChanged of the board is set.
bool KvrBoardUartAdvancedDlgShow(HWND hParent, BPPCHL* channel);
