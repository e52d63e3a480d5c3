// The Port Settings page, as the device manager asks for it.
#pragma once

#include "platform/platform.h"

// Called by the device manager for a serial port's device node. Adds one page to the sheet through `addPage`,
// which is called with the page and `addPageParam`, if the request asks for a device's property sheet; TRUE
// without a page for any other request. FALSE, after a box, if the device is no UART channel of a board or
// the page can't be made. The request's set and device are borrowed for the page's life.
extern "C" BOOL WINAPI KvrUartPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                               LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam);
