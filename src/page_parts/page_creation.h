// How a provider makes its page, hands it to the device manager, and gets the page's record back at its end.
#pragma once

#include "platform/platform.h"

// Creates a property page and passes it to `addPage` with `addPageParam`. The page finds `record` in its
// description's lParam. From here on the record is the page's: `callback` releases it at PSPCB_RELEASE, also
// when the page can't be created or isn't taken, of which a box tells. True if the page was taken.
bool AddPropertyPage(int dialog, DLGPROC procedure, LPFNPSPCALLBACKW callback, void* record,
                     LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam);

// What a page's callback answers to a message: at PSPCB_RELEASE `release` gives back the record that the
// description holds. `function` is the callback's name for the trace.
UINT AnswerPageCallback(const char* function, UINT message, const PROPSHEETPAGEW* page,
                        void (*release)(LPARAM record));
