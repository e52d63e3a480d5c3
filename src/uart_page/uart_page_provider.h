// The Port Settings page, as the device manager asks for it.
#pragma once

#include "platform/platform.h"

// The device manager calls this for a serial port's device node. If the request is for a device's property
// sheet, `addPage` is called with one page and `addPageParam`; any other request gets TRUE and no page. FALSE
// means that the device is not a UART channel of a board or that the page can't be made; a box has said so.
// The request's set and device are borrowed for the page's life.
extern "C" BOOL WINAPI KvrUartPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                               LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam);
