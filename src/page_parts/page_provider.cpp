#include "page_parts/page_provider.h"

#include "reporting/error_reporter.h"
#include "reporting/module_entry.h"

bool ProvidePage(const PageKind& kind, const SP_PROPSHEETPAGE_REQUEST* request, LPFNADDPROPSHEETPAGE addPage,
                 LPARAM addPageParam) {
    if (!kind.checkDevice(request)) {
        return false;
    }
    // Even where no page is wanted: a lack of memory is told in any case.
    void* record = LocalAlloc(LPTR, kind.recordBytes);
    if (record == nullptr) {
        ErrorBoxShow(FailureNoMemory, 0, nullptr);
        return false;
    }
    if (request->PageRequested != SPPSR_ENUM_ADV_DEVICE_PROPERTIES) {
        LocalFree(record);
        return true;
    }
    if (!kind.initRecord(record, request)) {
        kind.releaseRecord(record);
        return false;
    }
    const HPROPSHEETPAGE page = kind.initPage(record);
    if (page == nullptr) {
        ErrorBoxShow(FailureCreatePage, 0, nullptr);
        kind.releaseRecord(record);
        return false;
    }
    if (addPage(page, addPageParam) != 1) {
        ErrorBoxShow(FailureAddPage, 0, nullptr);
        DestroyPropertySheetPage(page); // its callback releases the record
        return false;
    }
    return true;
}

HPROPSHEETPAGE CreatePage(int dialog, DLGPROC procedure, LPFNPSPCALLBACKW callback, void* record) {
    PropertyPageDescription description = {};
    PROPSHEETPAGEW& page = description.page;
    page.dwSize = sizeof(description);
    page.dwFlags = PSP_USECALLBACK;
    page.hInstance = ModuleInstance;
    page.pszTemplate = MAKEINTRESOURCEW(dialog);
    page.pfnDlgProc = procedure;
    page.lParam = reinterpret_cast<LPARAM>(record);
    page.pfnCallback = callback;
    return CreatePropertySheetPageW(&page);
}

UINT AnswerPageCallback(UINT message, const PROPSHEETPAGEW* page, void (*releaseRecord)(void* record)) {
    switch (message) {
    case PSPCB_CREATE:
        TraceOut("%s - PSPCB_CREATE\n", TraceOperation());
        return 1; // go on creating the page
    case PSPCB_RELEASE:
        TraceOut("%s - PSPCB_RELEASE\n", TraceOperation());
        releaseRecord(reinterpret_cast<void*>(page->lParam));
        return 0;
    default:
        return 1;
    }
}
