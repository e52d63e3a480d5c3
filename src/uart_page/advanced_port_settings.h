// The Advanced Port Settings dialog: one port's FIFO settings and its COM number, both stored at its OK.
#pragma once

#include "uart_page/uart_page_params.h"

// Runs the dialog, modally over `hParent`, with the port's name and values read afresh. False, after a box,
// if they can't be read; true once it has closed, whatever closed it. `NewComName` of the record is then the
// port's new name, if it got one.
bool KvrUartAdvancedDlgShow(HWND hParent, UartAdvancedParams* params);
