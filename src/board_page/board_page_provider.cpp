#include "board_page/board_page_provider.h"

#include "board_page/board_page_dialog.h"
#include "device_model/board_discovery.h"
#include "device_model/device_store.h"
#include "page_parts/page_provider.h"
#include "reporting/error_reporter.h"
#include "resources/resource_ids.h"

namespace {

// The values only show that the device is a board. The page's record reads them again.
bool CheckBoard(const SP_PROPSHEETPAGE_REQUEST* request) {
    BoardBasicInfo basic = {};
    const u32 sStatus = Kavro_RegBoardGetBasic(request->DeviceInfoSet, request->DeviceInfoData, &basic);
    if (sStatus != 0) {
        ErrorBoxShow(FailureBoardBasic, sStatus, nullptr);
    }
    return sStatus == 0;
}

bool _InitBoardParams(BoardParams* params, const SP_PROPSHEETPAGE_REQUEST* request, u32* status) {
    TraceScope trace;
    params->DeviceInfoSet = request->DeviceInfoSet;
    params->DeviceInfoData = request->DeviceInfoData;
    for (HDEVINFO& set : params->InterfaceSet) {
        set = INVALID_HANDLE_VALUE;
    }
    return trace.Success(BoardInitiate(params, status));
}

bool InitBoardRecord(void* record, const SP_PROPSHEETPAGE_REQUEST* request) {
    u32 sStatus = 0;
    const bool initiated = _InitBoardParams(static_cast<BoardParams*>(record), request, &sStatus);
    if (!initiated) {
        ErrorBoxShow(FailureInitBoard, sStatus, nullptr);
    }
    return initiated;
}

void ReleaseBoardRecord(void* record) {
    BoardDeinitiate(static_cast<BoardParams*>(record));
    LocalFree(record);
}

UINT CALLBACK BoardBasicDlgCallback(HWND, UINT message, LPPROPSHEETPAGEW page) {
    TraceScope trace("----> %s( ), Message:%d\n", __func__, message);
    return trace.Exit("<---- %s, nReturn:%d\n", AnswerPageCallback(message, page, ReleaseBoardRecord));
}

HPROPSHEETPAGE _InitBoardBasicSettingsPage(void* params) {
    TraceScope trace;
    return CreatePage(IDD_PORT_CONTROL, BoardBasicDlgProc, BoardBasicDlgCallback, params);
}

constexpr PageKind BoardPage = {sizeof(BoardParams), CheckBoard, InitBoardRecord, _InitBoardBasicSettingsPage,
                                ReleaseBoardRecord};

} // namespace

extern "C" BOOL WINAPI KvrBoardPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                                LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    TraceScope trace;
    return trace.Success(ProvidePage(BoardPage, request, addPage, addPageParam));
}
