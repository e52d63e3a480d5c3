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
    TraceScope trace;
    params->DeviceInfoSet = request->DeviceInfoSet;
    params->DeviceInfoData = request->DeviceInfoData;
    params->AdvancedParams = static_cast<UartAdvancedParams*>(LocalAlloc(LPTR, sizeof(UartAdvancedParams)));
    if (params->AdvancedParams == nullptr) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return trace.Success(false);
    }
    params->ChangesEnabled = !IsRemote(params->DeviceInfoSet);
    params->ShowAdvanced = params->ChangesEnabled;
    params->AdvancedParams->DeviceInfoSet = params->DeviceInfoSet;
    params->AdvancedParams->DeviceInfoData = params->DeviceInfoData;
    return trace.Success(true);
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
    TraceScope trace("----> %s( ), Message:%d\n", __func__, message);
    return trace.Exit("<---- %s, nReturn:%d\n", AnswerPageCallback(message, page, ReleaseUartRecord));
}

HPROPSHEETPAGE _InitUartBasicSettingsPage(void* params) {
    TraceScope trace;
    return CreatePage(IDD_PORT_SETTINGS, UartBasicDlgProc, UartBasicDlgCallback, params);
}

constexpr PageKind UartPage = {sizeof(UartPageParams), CheckUart, InitUartRecord, _InitUartBasicSettingsPage,
                               ReleaseUartRecord};

} // namespace

extern "C" BOOL WINAPI KvrUartPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                               LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    TraceScope trace;
    return trace.Success(ProvidePage(UartPage, request, addPage, addPageParam));
}
