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

void ReleaseBoardParams(LPARAM record) {
    auto* params = reinterpret_cast<BoardParams*>(record);
    BoardDeinitiate(params);
    LocalFree(params);
}

UINT CALLBACK BoardBasicDlgCallback(HWND, UINT message, LPPROPSHEETPAGEW page) {
    return AnswerPageCallback(__func__, message, page, ReleaseBoardParams);
}

bool _InitBoardParams(BoardParams* params, const SP_PROPSHEETPAGE_REQUEST* request, u32* status) {
    params->DeviceInfoSet = request->DeviceInfoSet;
    params->DeviceInfoData = request->DeviceInfoData;
    for (HDEVINFO& set : params->InterfaceSet) {
        set = INVALID_HANDLE_VALUE;
    }
    return BoardInitiate(params, status);
}

// The values read first tell only that the device is a board; the record reads them anew.
bool ProvidePage(const SP_PROPSHEETPAGE_REQUEST* request, LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    BoardBasicInfo basic = {};
    u32 sStatus = Kavro_RegBoardGetBasic(request->DeviceInfoSet, request->DeviceInfoData, &basic);
    if (sStatus != 0) {
        ReportFailure(FailureBoardBasic, sStatus);
        return false;
    }
    auto* params = static_cast<BoardParams*>(LocalAlloc(LPTR, sizeof(BoardParams)));
    if (params == nullptr) {
        ReportFailure(FailureNoMemory, 0);
        return false;
    }
    if (request->PageRequested != SPPSR_ENUM_ADV_DEVICE_PROPERTIES) {
        LocalFree(params);
        return true;
    }
    if (!_InitBoardParams(params, request, &sStatus)) {
        ReportFailure(FailureInitBoard, sStatus);
        ReleaseBoardParams(reinterpret_cast<LPARAM>(params));
        return false;
    }
    return AddPropertyPage(IDD_PORT_CONTROL, BoardBasicDlgProc, BoardBasicDlgCallback, params, addPage,
                           addPageParam);
}

} // namespace

extern "C" BOOL WINAPI KvrBoardPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                                LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    TraceOut("----> %s( )\n", __func__);
    const bool bSuccess = ProvidePage(request, addPage, addPageParam);
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}
