// How a provider makes its page and hands it to the device manager.
#pragma once

#include "platform/platform.h"

// Creates a property page and passes it to `addPage` with `addPageParam`. The page finds `record` in its
// description's lParam. From here on the record is the page's: `callback` releases it at PSPCB_RELEASE, also
// when the page can't be created or isn't taken, of which a box tells. True if the page was taken.
bool AddPropertyPage(int dialog, DLGPROC procedure, LPFNPSPCALLBACKW callback, void* record,
                     LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam);
