// The Advanced Port Control dialog: a UART's electrical interface, and Sort UART for the whole board.
#pragma once

#include "device_model/board_params.h"

// Runs the dialog for a UART, modally over `hParent`; true when it has closed, whatever closed it. What its
// OK chose is stored by then, and what Sort UART moved is in the records, with ChlListChanged of the board
// set.
bool KvrBoardUartAdvancedDlgShow(HWND hParent, BPPCHL* channel);
