// The Port Control page, as the device manager asks for it.
#pragma once

#include "platform/platform.h"

// Called by the device manager for the board's device node. Adds one page to the sheet through `addPage`,
// which is called with the page and `addPageParam`, if the request asks for a device's property sheet; TRUE
// without a page for any other request. FALSE, after a box, if the board's values can't be read or the page
// can't be made. The request's set and device are borrowed for the page's life.
extern "C" BOOL WINAPI KvrBoardPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                                LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam);
