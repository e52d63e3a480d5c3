#include "board_page/board_page_provider.h"

#include "board_page/board_page_dialog.h"
#include "device_model/board_discovery.h"
#include "device_model/device_store.h"
#include "page_parts/page_creation.h"
#include "reporting/error_reporter.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

void ReportFailure(u32 oerr, u32 serr) {
    ErrorBoxShow(oerr, serr, nullptr, 0, 0, 0, nullptr);
}

void ReleaseBoardParams(BoardParams* params) {
    BoardDeinitiate(params);
    LocalFree(params);
}

// Releases the record once the page is gone, however it went.
UINT CALLBACK BoardBasicDlgCallback(HWND, UINT message, LPPROPSHEETPAGEW page) {
    TraceOut("----> %s( ), Message:%d\n", __func__, message);
    UINT nReturn = 1;
    switch (message) {
    case PSPCB_CREATE:
        TraceOut("%s - PSPCB_CREATE\n", __func__);
        break;
    case PSPCB_RELEASE:
        TraceOut("%s - PSPCB_RELEASE\n", __func__);
        ReleaseBoardParams(reinterpret_cast<BoardParams*>(page->lParam));
        nReturn = 0;
        break;
    }
    TraceOut("<---- %s, nReturn:%d\n", __func__, nReturn);
    return nReturn;
}

bool _InitBoardParams(BoardParams* params, const SP_PROPSHEETPAGE_REQUEST* request, u32* status) {
    params->DeviceInfoSet = request->DeviceInfoSet;
    params->DeviceInfoData = request->DeviceInfoData;
    for (HDEVINFO& set : params->InterfaceSet) {
        set = INVALID_HANDLE_VALUE;
    }
    return BoardInitiate(params, status);
}

bool _InitBoardBasicSettingsPage(const SP_PROPSHEETPAGE_REQUEST* request, LPFNADDPROPSHEETPAGE addPage,
                                 LPARAM addPageParam, BoardParams* params) {
    u32 sStatus = 0;
    if (!_InitBoardParams(params, request, &sStatus)) {
        ReportFailure(FailureInitBoard, sStatus);
        ReleaseBoardParams(params);
        return false;
    }
    return AddPropertyPage(IDD_PORT_CONTROL, BoardBasicDlgProc, BoardBasicDlgCallback, params, addPage,
                           addPageParam);
}

} // namespace

extern "C" BOOL WINAPI KvrBoardPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                                LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    TraceOut("----> %s( )\n", __func__);
    BoardBasicInfo basic = {};
    const u32 sStatus = Kavro_RegBoardGetBasic(request->DeviceInfoSet, request->DeviceInfoData, &basic);
    if (sStatus != 0) {
        ReportFailure(FailureBoardBasic, sStatus);
        return FALSE;
    }
    auto* params = static_cast<BoardParams*>(LocalAlloc(LPTR, sizeof(BoardParams)));
    if (params == nullptr) {
        ReportFailure(FailureNoMemory, 0);
        return FALSE;
    }
    bool bSuccess = true;
    if (request->PageRequested == SPPSR_ENUM_ADV_DEVICE_PROPERTIES) {
        bSuccess = _InitBoardBasicSettingsPage(request, addPage, addPageParam, params);
    } else {
        LocalFree(params);
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}
