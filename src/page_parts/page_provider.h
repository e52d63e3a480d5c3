// What both pages do alike for the device manager and the sheet: how a provider makes a page and hands it
// over, and how the page answers the sheet's OK and its own release.
#pragma once

#include "platform/platform.h"
#include "reporting/trace.h"

// A kind of page. `checkDevice` and `initRecord` show a box themselves if they fail.
struct PageKind {
    SIZE_T recordBytes;
    bool (*checkDevice)(const SP_PROPSHEETPAGE_REQUEST* request);
    // Fills the record, which is all zero. On failure the record goes to `releaseRecord` partly filled.
    bool (*initRecord)(void* record, const SP_PROPSHEETPAGE_REQUEST* request);
    HPROPSHEETPAGE (*initPage)(void* record); // null on failure, without a box
    void (*releaseRecord)(void* record);      // releases the record itself too
};

// Answers a request to a provider. The device is checked at every request, but a page is added, by `addPage`
// with `addPageParam`, only if the request is for a device's property sheet. The page then owns its record.
// False if a step failed; a box has said so.
bool ProvidePage(const PageKind& kind, const SP_PROPSHEETPAGE_REQUEST* request, LPFNADDPROPSHEETPAGE addPage,
                 LPARAM addPageParam);

// Creates a page whose description has `record` as its lParam. Null on failure.
HPROPSHEETPAGE CreatePage(int dialog, DLGPROC procedure, LPFNPSPCALLBACKW callback, void* record);

// Answers a message to a page's callback. At PSPCB_RELEASE the page's record goes to `releaseRecord`.
UINT AnswerPageCallback(UINT message, const PROPSHEETPAGEW* page, void (*releaseRecord)(void* record));

// Answers WM_NOTIFY to a page. At PSN_APPLY, the sheet's OK or Apply, `okClicked` runs if the page has been
// initialised, and the sheet may close whatever its outcome. Any other notification gets false.
template <typename Handler> bool AnswerNotify(HWND hDlg, LPARAM lParam, bool initiated, Handler okClicked) {
    if (reinterpret_cast<const NMHDR*>(lParam)->code != PSN_APPLY) {
        return false;
    }
    TraceOut("%s - PSN_APPLY, BasicSettingsDlgInitiateOK:%d\n", TraceOperation(), initiated);
    if (initiated) {
        okClicked();
    }
    SetWindowLongPtrW(hDlg, DWLP_MSGRESULT, PSNRET_NOERROR);
    return true;
}
