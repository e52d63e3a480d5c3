// The Advanced Port Control dialog: a UART's electrical interface, and Sort UART for the whole board.
#pragma once

#include "device_model/board_params.h"

// Runs the dialog for a UART, modally over `hParent`; comes back when it has closed. What its OK chose is
// stored by then, and what Sort UART moved is in the records, with ChlListChanged of the board set.
void KvrBoardUartAdvancedDlgShow(HWND hParent, BPPCHL* channel);
