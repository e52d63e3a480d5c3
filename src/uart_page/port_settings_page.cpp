#include "uart_page/port_settings_page.h"

#include "device_model/device_store.h"
#include "reporting/error_reporter.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"
#include "uart_page/advanced_port_settings.h"
#include "uart_page/settings_combos.h"
#include "uart_page/settings_storage.h"

namespace {

constexpr int SettingsCombos[] = {IDC_BAUD_RATE, IDC_PARITY, IDC_DATA_BITS, IDC_STOP_BITS, IDC_FLOW_CONTROL};

constexpr PortSettings DefaultSettings = {9600, DefaultParityIndex, DefaultDataBitsIndex,
                                          DefaultStopBitsIndex, DefaultFlowControlIndex};

void NotifySheetOfChange(HWND hDlg) {
    SendMessageW(GetParent(hDlg), PSM_CHANGED, reinterpret_cast<WPARAM>(hDlg), 0);
}

bool _FillSettingsDlg(HWND hDlg, UartPageParams* params, u32* code, u32* status) {
    *code = 0;
    *status = Kavro_RegUartGetCOMName(params->DeviceInfoSet, params->DeviceInfoData, params->ComName,
                                      sizeof(params->ComName));
    if (*status != 0) {
        *code = FailurePagePortName;
        return false;
    }
    _GetSettingsFromRegistryAndApplyToUI(hDlg, params);
    if (!params->ChangesEnabled) {
        for (const int combo : SettingsCombos) {
            EnableWindow(GetDlgItem(hDlg, combo), FALSE);
        }
    }
    return true;
}

// A page that fails to initialise stays as far as it came, without its buttons.
bool _OnInitDialog(HWND hDlg, LPARAM page) {
    auto* params = reinterpret_cast<UartPageParams*>(reinterpret_cast<const PROPSHEETPAGEW*>(page)->lParam);
    SetWindowLongPtrW(hDlg, DWLP_USER, reinterpret_cast<LONG_PTR>(params));
    EnableWindow(GetDlgItem(hDlg, IDC_ADVANCED), FALSE);
    EnableWindow(GetDlgItem(hDlg, IDC_RESTORE_PORT), FALSE);
    u32 code = 0;
    u32 sStatus = 0;
    if (!_FillComboxDlg(hDlg, &code) || !_FillSettingsDlg(hDlg, params, &code, &sStatus)) {
        ErrorBoxShow(code, sStatus, hDlg, 0, 0, 0, nullptr);
        return false;
    }
    TraceOut("%s - ShowAdvanced:%d, ChangesEnabled:%d\n", __func__, params->ShowAdvanced,
             params->ChangesEnabled);
    EnableWindow(GetDlgItem(hDlg, IDC_ADVANCED), params->ShowAdvanced);
    EnableWindow(GetDlgItem(hDlg, IDC_RESTORE_PORT), params->ChangesEnabled);
    params->BasicSettingsDlgInitiateOK = true;
    return true;
}

// A rename in the dialog comes back as a new name, the key of the next save. The saved fields stay: the line
// has moved with the port.
void _AdvancedClicked(HWND hDlg, UartPageParams* params) {
    UartAdvancedParams* advanced = params->AdvancedParams;
    CopyText(advanced->NewComName, ComNameCapacity, params->ComName);
    if (KvrUartAdvancedDlgShow(hDlg, advanced)) {
        CopyText(params->ComName, ComNameCapacity, advanced->NewComName);
    }
}

void _RestoreDefaultClicked(HWND hDlg) {
    SelectBaudRate(hDlg, DefaultBaudText);
    SelectSettings(hDlg, DefaultSettings);
    NotifySheetOfChange(hDlg);
}

bool ButtonClicked(HWND hDlg, UartPageParams* params, int id, const char* function) {
    switch (id) {
    case IDCANCEL:
        TraceOut("%s - IDCANCEL\n", function);
        EndDialog(hDlg, 0);
        return true;
    case IDC_ADVANCED:
        TraceOut("%s - IDC_ADVANCED\n", function);
        _AdvancedClicked(hDlg, params);
        return true;
    case IDC_RESTORE_PORT:
        TraceOut("%s - IDC_RESTORE_PORT\n", function);
        _RestoreDefaultClicked(hDlg);
        return true;
    default:
        TraceOut("%s - DEFAULT:%d\n", function, id);
        return false;
    }
}

bool _OnCommand(HWND hDlg, int id, int notifyCode) {
    TraceOut("----> %s( ), NotifyCode:%d\n", __func__, notifyCode);
    auto* params = reinterpret_cast<UartPageParams*>(GetWindowLongPtrW(hDlg, DWLP_USER));
    bool bSuccess = true;
    if (params == nullptr) {
        bSuccess = false;
    } else if (notifyCode == CBN_SELCHANGE) {
        NotifySheetOfChange(hDlg);
    } else {
        bSuccess = ButtonClicked(hDlg, params, id, __func__);
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

bool _OnNotify(HWND hDlg, LPARAM lParam) {
    if (reinterpret_cast<const NMHDR*>(lParam)->code != PSN_APPLY) {
        return false;
    }
    const auto* params = reinterpret_cast<const UartPageParams*>(GetWindowLongPtrW(hDlg, DWLP_USER));
    const bool initiated = params != nullptr && params->BasicSettingsDlgInitiateOK;
    TraceOut("%s - PSN_APPLY, BasicSettingsDlgInitiateOK:%d\n", __func__, initiated);
    if (initiated) {
        _SaveSettings(hDlg, params);
    }
    SetWindowLongPtrW(hDlg, DWLP_MSGRESULT, PSNRET_NOERROR);
    return true;
}

} // namespace

INT_PTR CALLBACK UartBasicDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        TraceOut("%s - WM_INITDIALOG\n", __func__);
        return _OnInitDialog(hDlg, lParam);
    case WM_COMMAND:
        TraceOut("%s - WM_COMMAND\n", __func__);
        return _OnCommand(hDlg, LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY:
        return _OnNotify(hDlg, lParam);
    default:
        return false;
    }
}
