#include "uart_page/uart_page_provider.h"

#include "device_model/device_store.h"
#include "page_parts/page_provider.h"
#include "reporting/error_reporter.h"
#include "resources/resource_ids.h"
#include "uart_page/port_settings_page.h"
#include "uart_page/uart_page_params.h"

namespace {

// What the driver of a UART publishes as `ChlType`.
constexpr u32 ChlTypeUart = 1;

bool CheckUart(const SP_PROPSHEETPAGE_REQUEST* request) {
    ChlBasicInfo basic = {};
    const u32 sStatus = Kavro_RegChlGetBasic(request->DeviceInfoSet, request->DeviceInfoData, &basic);
    if (sStatus != 0) {
        ErrorBoxShow(FailureChannelBasic, sStatus, nullptr);
        return false;
    }
    if (basic.ChlType != ChlTypeUart) {
        ErrorBoxShow(FailureNotComPort, 0, nullptr, basic.ChlNumber);
        return false;
    }
    return true;
}

// A set that can't be asked counts as local.
bool IsRemote(HDEVINFO set) {
    SP_DEVINFO_LIST_DETAIL_DATA_W detail = {};
    detail.cbSize = sizeof(detail);
    return SetupDiGetDeviceInfoListDetailW(set, &detail) != 0 && detail.RemoteMachineHandle != nullptr;
}

bool _InitUartParams(UartPageParams* params, const SP_PROPSHEETPAGE_REQUEST* request) {
    TraceOut("----> %s( )\n", __func__);
    params->DeviceInfoSet = request->DeviceInfoSet;
    params->DeviceInfoData = request->DeviceInfoData;
    params->AdvancedParams = static_cast<UartAdvancedParams*>(LocalAlloc(LPTR, sizeof(UartAdvancedParams)));
    const bool bSuccess = params->AdvancedParams != nullptr;
    if (bSuccess) {
        params->ChangesEnabled = !IsRemote(params->DeviceInfoSet);
        params->ShowAdvanced = params->ChangesEnabled;
        params->AdvancedParams->DeviceInfoSet = params->DeviceInfoSet;
        params->AdvancedParams->DeviceInfoData = params->DeviceInfoData;
    } else {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

bool InitUartRecord(void* record, const SP_PROPSHEETPAGE_REQUEST* request) {
    const bool initiated = _InitUartParams(static_cast<UartPageParams*>(record), request);
    if (!initiated) {
        ErrorBoxShow(FailureInitPort, 0, nullptr);
    }
    return initiated;
}

void ReleaseUartRecord(void* record) {
    auto* params = static_cast<UartPageParams*>(record);
    if (params->AdvancedParams != nullptr) {
        LocalFree(params->AdvancedParams);
    }
    LocalFree(params);
}

UINT CALLBACK UartBasicDlgCallback(HWND, UINT message, LPPROPSHEETPAGEW page) {
    TraceOut("----> %s( ), Message:%d\n", __func__, message);
    const UINT nReturn = AnswerPageCallback(message, page, ReleaseUartRecord);
    TraceOut("<---- %s, nReturn:%d\n", __func__, nReturn);
    return nReturn;
}

HPROPSHEETPAGE _InitUartBasicSettingsPage(void* params) {
    TraceOut("----> %s( )\n", __func__);
    const HPROPSHEETPAGE page = CreatePage(IDD_PORT_SETTINGS, UartBasicDlgProc, UartBasicDlgCallback, params);
    TraceOut("<---- %s\n", __func__);
    return page;
}

constexpr PageKind UartPage = {sizeof(UartPageParams), CheckUart, InitUartRecord, _InitUartBasicSettingsPage,
                               ReleaseUartRecord};

} // namespace

extern "C" BOOL WINAPI KvrUartPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                               LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    TraceOut("----> %s( )\n", __func__);
    const bool bSuccess = ProvidePage(UartPage, request, addPage, addPageParam);
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}
