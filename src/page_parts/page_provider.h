// How a provider makes its page, hands it to the device manager, and gets the page's record back at its end.
// What is asked of every page alike, by the device manager and by the sheet, is answered here.
#pragma once

#include "platform/platform.h"
#include "reporting/trace.h"

// One kind of page. Each step that fails has said so in a box.
struct PageKind {
    SIZE_T recordBytes;
    bool (*checkDevice)(const SP_PROPSHEETPAGE_REQUEST* request);
    // Fills the record, which is all zero; whatever it leaves in it, `releaseRecord` gives back.
    bool (*initRecord)(void* record, const SP_PROPSHEETPAGE_REQUEST* request);
    HPROPSHEETPAGE (*initPage)(void* record); // null on failure, without a box
    void (*releaseRecord)(void* record);      // the record itself too
};

// What a provider does at a request. The device is checked for every request; a page is added, through
// `addPage` with `addPageParam`, only if a device's property sheet is asked for. From then on the record is
// the page's. False, after a box, if a step failed.
bool ProvidePage(const PageKind& kind, const SP_PROPSHEETPAGE_REQUEST* request, LPFNADDPROPSHEETPAGE addPage,
                 LPARAM addPageParam);

// A page of a dialog, which finds `record` in its description's lParam; null on failure.
HPROPSHEETPAGE CreatePage(int dialog, DLGPROC procedure, LPFNPSPCALLBACKW callback, void* record);

// What a page's callback answers to a message: at PSPCB_RELEASE `releaseRecord` gets the description's
// record.
UINT AnswerPageCallback(UINT message, const PROPSHEETPAGEW* page, void (*releaseRecord)(void* record),
                        TraceName function = __builtin_FUNCTION());

// What a page answers to WM_NOTIFY. The sheet's OK and Apply, PSN_APPLY, run `okClicked` on a page that has
// been initialised, and the sheet may close whatever came of it; any other notification is left alone, with
// false.
template <typename OkClicked>
bool AnswerNotify(HWND hDlg, LPARAM lParam, bool initiated, OkClicked okClicked,
                  TraceName function = __builtin_FUNCTION()) {
    if (reinterpret_cast<const NMHDR*>(lParam)->code != PSN_APPLY) {
        return false;
    }
    TraceOut("%s - PSN_APPLY, BasicSettingsDlgInitiateOK:%d\n", function, initiated);
    if (initiated) {
        okClicked();
    }
    SetWindowLongPtrW(hDlg, DWLP_MSGRESULT, PSNRET_NOERROR);
    return true;
}
