#include "uart_page/uart_page_provider.h"

#include "device_model/device_store.h"
#include "page_parts/page_creation.h"
#include "reporting/error_reporter.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"
#include "uart_page/port_settings_page.h"
#include "uart_page/uart_page_params.h"

namespace {

// What the driver publishes as `ChlType` of a UART.
constexpr u32 ChlTypeUart = 1;

void ReportFailure(u32 oerr, u32 serr, u32 channel) {
    ErrorBoxShow(oerr, serr, nullptr, channel, 0, 0, nullptr);
}

void ReleaseUartParams(LPARAM record) {
    auto* params = reinterpret_cast<UartPageParams*>(record);
    LocalFree(params->AdvancedParams);
    LocalFree(params);
}

UINT CALLBACK UartBasicDlgCallback(HWND, UINT message, LPPROPSHEETPAGEW page) {
    return AnswerPageCallback(__func__, message, page, ReleaseUartParams);
}

// A set that doesn't tell whose it is counts as local.
bool IsRemote(HDEVINFO set) {
    SP_DEVINFO_LIST_DETAIL_DATA_W detail = {};
    detail.cbSize = sizeof(detail);
    return SetupDiGetDeviceInfoListDetailW(set, &detail) && detail.RemoteMachineHandle != nullptr;
}

bool _InitUartParams(UartPageParams* params, const SP_PROPSHEETPAGE_REQUEST* request) {
    params->DeviceInfoSet = request->DeviceInfoSet;
    params->DeviceInfoData = request->DeviceInfoData;
    params->AdvancedParams = static_cast<UartAdvancedParams*>(LocalAlloc(LPTR, sizeof(UartAdvancedParams)));
    if (params->AdvancedParams == nullptr) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return false;
    }
    params->ChangesEnabled = !IsRemote(params->DeviceInfoSet);
    params->ShowAdvanced = params->ChangesEnabled;
    params->AdvancedParams->DeviceInfoSet = params->DeviceInfoSet;
    params->AdvancedParams->DeviceInfoData = params->DeviceInfoData;
    return true;
}

bool ProvidePage(const SP_PROPSHEETPAGE_REQUEST* request, LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    ChlBasicInfo basic = {};
    const u32 sStatus = Kavro_RegChlGetBasic(request->DeviceInfoSet, request->DeviceInfoData, &basic);
    if (sStatus != 0) {
        ReportFailure(FailureChannelBasic, sStatus, 0);
        return false;
    }
    if (basic.ChlType != ChlTypeUart) {
        ReportFailure(FailureNotComPort, 0, basic.ChlNumber);
        return false;
    }
    auto* params = static_cast<UartPageParams*>(LocalAlloc(LPTR, sizeof(UartPageParams)));
    if (params == nullptr) {
        ReportFailure(FailureNoMemory, 0, 0);
        return false;
    }
    if (request->PageRequested != SPPSR_ENUM_ADV_DEVICE_PROPERTIES) {
        LocalFree(params);
        return true;
    }
    if (!_InitUartParams(params, request)) {
        ReportFailure(FailureInitPort, 0, 0);
        LocalFree(params);
        return false;
    }
    return AddPropertyPage(IDD_PORT_SETTINGS, UartBasicDlgProc, UartBasicDlgCallback, params, addPage,
                           addPageParam);
}

} // namespace

extern "C" BOOL WINAPI KvrUartPropPageProvider(PSP_PROPSHEETPAGE_REQUEST request,
                                               LPFNADDPROPSHEETPAGE addPage, LPARAM addPageParam) {
    TraceOut("----> %s( )\n", __func__);
    const bool bSuccess = ProvidePage(request, addPage, addPageParam);
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}
