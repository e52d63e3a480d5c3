// The Advanced Port Settings dialog: the FIFO settings and the COM number of one port. Its OK stores both.
#pragma once

#include "uart_page/uart_page_params.h"

// Reads the port's name and values and runs the dialog, modally over `hParent`. True when it has closed,
// whatever closed it; if the port was renamed, `NewComName` of the record is its new name. False if the
// values can't be read; a box has said so.
bool KvrUartAdvancedDlgShow(HWND hParent, UartAdvancedParams* params);
