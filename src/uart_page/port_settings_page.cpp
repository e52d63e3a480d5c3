#include "uart_page/port_settings_page.h"

#include "device_model/device_store.h"
#include "page_parts/page_provider.h"
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

// The record of the page; null until WM_INITDIALOG has stored it.
UartPageParams* PageParams(HWND hDlg) {
    return reinterpret_cast<UartPageParams*>(GetWindowLongPtrW(hDlg, DWLP_USER));
}

bool _FillSettingsDlg(HWND hDlg, UartPageParams* params, u32* code, u32* status) {
    TraceScope trace;
    *code = 0;
    *status = Kavro_RegUartGetCOMName(params->DeviceInfoSet, params->DeviceInfoData, params->ComName,
                                      sizeof(params->ComName));
    if (*status != 0) {
        *code = FailurePagePortName;
        return trace.Success(false);
    }
    WCHAR key[SettingsKeyCapacity];
    MakeSettingsKey(key, ARRAYSIZE(key), params->ComName);
    _GetSettingsFromRegistryAndApplyToUI(hDlg, key, params);
    if (!params->ChangesEnabled) {
        for (const int combo : SettingsCombos) {
            EnableWindow(GetDlgItem(hDlg, combo), FALSE);
        }
    }
    return trace.Success(true);
}

// If the initialisation fails, the page stays partly filled, with its buttons disabled.
bool _OnInitDialog(HWND hDlg, LPARAM page) {
    TraceScope trace;
    auto* params = reinterpret_cast<UartPageParams*>(reinterpret_cast<const PROPSHEETPAGEW*>(page)->lParam);
    SetWindowLongPtrW(hDlg, DWLP_USER, reinterpret_cast<LONG_PTR>(params));
    EnableWindow(GetDlgItem(hDlg, IDC_ADVANCED), FALSE);
    EnableWindow(GetDlgItem(hDlg, IDC_RESTORE_PORT), FALSE);
    u32 code = 0;
    u32 sStatus = 0;
    if (!_FillComboxDlg(hDlg, &code) || !_FillSettingsDlg(hDlg, params, &code, &sStatus)) {
        ErrorBoxShow(code, sStatus, hDlg);
        return trace.Success(false);
    }
    TraceOut("%s - ShowAdvanced:%d, ChangesEnabled:%d\n", __func__, params->ShowAdvanced,
             params->ChangesEnabled);
    EnableWindow(GetDlgItem(hDlg, IDC_ADVANCED), params->ShowAdvanced);
    EnableWindow(GetDlgItem(hDlg, IDC_RESTORE_PORT), params->ChangesEnabled);
    params->BasicSettingsDlgInitiateOK = true;
    return trace.Success(true);
}

// The dialog hands back a name whatever closed it, so `NewComName` starts as the present one. After a rename
// it is the key of the next save. The saved fields stay, because the line has moved with the port.
void _AdvancedClicked(HWND hDlg, UartPageParams* params) {
    TraceScope trace;
    UartAdvancedParams* advanced = params->AdvancedParams;
    CopyText(advanced->NewComName, ComNameCapacity, params->ComName);
    if (KvrUartAdvancedDlgShow(hDlg, advanced) && !SameText(advanced->NewComName, params->ComName)) {
        CopyText(params->ComName, ComNameCapacity, advanced->NewComName);
    }
}

void _RestoreDefault(HWND hDlg) {
    TraceScope trace;
    SelectBaudRate(hDlg, DefaultBaudText);
    SelectSettings(hDlg, DefaultSettings);
}

void _RestoreDefaultClicked(HWND hDlg) {
    TraceScope trace;
    _RestoreDefault(hDlg);
    NotifySheetOfChange(hDlg);
}

// Handles the commands other than a change of a selection.
bool ButtonClicked(HWND hDlg, UartPageParams* params, int id) {
    switch (id) {
    case IDCANCEL:
        TraceOut("%s - IDCANCEL\n", TraceOperation());
        EndDialog(hDlg, 0);
        return true;
    case IDC_ADVANCED:
        TraceOut("%s - IDC_ADVANCED\n", TraceOperation());
        _AdvancedClicked(hDlg, params);
        return true;
    case IDC_RESTORE_PORT:
        TraceOut("%s - IDC_RESTORE_PORT\n", TraceOperation());
        _RestoreDefaultClicked(hDlg);
        return true;
    default:
        TraceOut("%s - DEFAULT:%d\n", TraceOperation(), id);
        return false;
    }
}

bool _OnCommand(HWND hDlg, int id, LPARAM /*lParam*/, int notifyCode) {
    UartPageParams* params = PageParams(hDlg);
    if (params == nullptr) {
        return false; // before WM_INITDIALOG
    }
    TraceScope trace("----> %s( ), NotifyCode:%d\n", __func__, notifyCode);
    if (notifyCode == CBN_SELCHANGE) {
        NotifySheetOfChange(hDlg);
        return trace.Success(true);
    }
    return trace.Success(ButtonClicked(hDlg, params, id));
}

bool _OkClicked(HWND hDlg, const UartPageParams* params) {
    TraceScope trace;
    WCHAR key[SettingsKeyCapacity];
    MakeSettingsKey(key, ARRAYSIZE(key), params->ComName);
    return trace.Success(_SaveSettings(hDlg, key, params));
}

bool _OnNotify(HWND hDlg, LPARAM lParam) {
    TraceScope trace;
    const UartPageParams* params = PageParams(hDlg);
    const bool initiated = params != nullptr && params->BasicSettingsDlgInitiateOK;
    return trace.Success(AnswerNotify(hDlg, lParam, initiated, [&] { _OkClicked(hDlg, params); }));
}

} // namespace

INT_PTR CALLBACK UartBasicDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        TraceOut("%s - WM_INITDIALOG\n", __func__);
        return _OnInitDialog(hDlg, lParam);
    case WM_COMMAND:
        TraceOut("%s - WM_COMMAND\n", __func__);
        return _OnCommand(hDlg, LOWORD(wParam), lParam, HIWORD(wParam));
    case WM_NOTIFY:
        return _OnNotify(hDlg, lParam);
    default:
        return false;
    }
}
