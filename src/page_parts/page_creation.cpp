#include "page_parts/page_creation.h"

#include "reporting/error_reporter.h"
#include "reporting/module_entry.h"
#include "reporting/trace.h"

bool AddPropertyPage(int dialog, DLGPROC procedure, LPFNPSPCALLBACKW callback, void* record,
                     LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    PropertyPageDescription description = {};
    PROPSHEETPAGEW& page = description.page;
    page.dwSize = sizeof(description);
    page.dwFlags = PSP_USECALLBACK;
    page.hInstance = ModuleInstance;
    page.pszTemplate = MAKEINTRESOURCEW(dialog);
    page.pfnDlgProc = procedure;
    page.lParam = reinterpret_cast<LPARAM>(record);
    page.pfnCallback = callback;
    const HPROPSHEETPAGE handle = CreatePropertySheetPageW(&page);
    if (handle == nullptr) {
        ErrorBoxShow(FailureCreatePage, 0, nullptr, 0, 0, 0, nullptr);
        callback(nullptr, PSPCB_RELEASE, &page);
        return false;
    }
    if (addPage(handle, addPageParam) != 1) {
        ErrorBoxShow(FailureAddPage, 0, nullptr, 0, 0, 0, nullptr);
        DestroyPropertySheetPage(handle);
        return false;
    }
    return true;
}

UINT AnswerPageCallback(const char* function, UINT message, const PROPSHEETPAGEW* page,
                        void (*release)(LPARAM record)) {
    TraceOut("----> %s( ), Message:%d\n", function, message);
    UINT nReturn = 1;
    switch (message) {
    case PSPCB_CREATE:
        TraceOut("%s - PSPCB_CREATE\n", function);
        break;
    case PSPCB_RELEASE:
        TraceOut("%s - PSPCB_RELEASE\n", function);
        release(page->lParam);
        nReturn = 0;
        break;
    }
    TraceOut("<---- %s, nReturn:%d\n", function, nReturn);
    return nReturn;
}
