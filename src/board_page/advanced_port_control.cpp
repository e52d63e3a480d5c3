#include "board_page/advanced_port_control.h"

#include "board_page/uart_modes.h"
#include "com_numbers/com_sort.h"
#include "device_model/device_store.h"
#include "reporting/error_reporter.h"
#include "reporting/module_entry.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

constexpr u32 NotOffered = 0xFFFFFFFF;

void SelectEntry(HWND hDlg, u32 position) {
    SendDlgItemMessageW(hDlg, IDC_INTERFACE_SELECT, CB_SETCURSEL,
                        static_cast<WPARAM>(static_cast<INT>(position)), 0);
}

u32 SelectedEntry(HWND hDlg) {
    return static_cast<u32>(SendDlgItemMessageW(hDlg, IDC_INTERFACE_SELECT, CB_GETCURSEL, 0, 0));
}

u32 AddEntry(HWND hDlg, const WCHAR* text) {
    return static_cast<u32>(
        SendDlgItemMessageW(hDlg, IDC_INTERFACE_SELECT, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

void EnableInterface(HWND hDlg, BOOL enable) {
    EnableWindow(GetDlgItem(hDlg, IDC_INTERFACE_SELECT), enable);
    EnableWindow(GetDlgItem(hDlg, IDC_INTERFACE_CAPTION), enable);
}

void SetBox(HWND hDlg, int box, bool checked, bool enabled) {
    CheckDlgButton(hDlg, box, checked ? BST_CHECKED : BST_UNCHECKED);
    EnableWindow(GetDlgItem(hDlg, box), enabled);
}

bool IsChecked(HWND hDlg, int box) {
    return IsDlgButtonChecked(hDlg, box) == BST_CHECKED;
}

// Both boxes as a mode has them, with the values of the record; off and disabled for no mode.
void ShowBoxes(HWND hDlg, const UartBasicInfo& uart, const UartMode* mode) {
    const u32 capability = uart.UartCapability;
    const bool hasTermination = mode != nullptr && HasAny(capability, mode->termination);
    const bool hasAcs = mode != nullptr && HasAny(capability, mode->acs);
    const bool terminated =
        hasTermination &&
        ((HasAny(mode->termination, CapRS422Termination) && uart.UartRS422Termination != 0) ||
         (HasAny(mode->termination, CapRS485Termination) && uart.UartRS485Termination != 0));
    SetBox(hDlg, IDC_TERMINATION_ENABLE, terminated, hasTermination);
    SetBox(hDlg, IDC_ACS_ENABLE, hasAcs && uart.UartCS != 0, hasAcs);
}

// The mode whose entry stands at a position of the combo; null if none does.
const UartMode* ModeAtEntry(const BPPCHL* chl, u32 position) {
    for (const UartMode& mode : UartModes) {
        if (chl->*mode.comboPos == position) {
            return &mode;
        }
    }
    return nullptr;
}

bool _InitializeControls(HWND hDlg, BPPCHL* chl) {
    const UartBasicInfo& uart = chl->CurrentInfo.Uart;
    SendDlgItemMessageW(hDlg, IDC_INTERFACE_SELECT, CB_RESETCONTENT, 0, 0);
    for (const UartMode& mode : UartModes) {
        chl->*mode.comboPos =
            HasAll(uart.UartCapability, mode.offered) ? AddEntry(hDlg, mode.text) : NotOffered;
    }
    TraceOut("%s - RS232ComboxPos:%d, RS422ComboxPos:%d, RS485ComboxPos:%d, AutoRS422485ComboxPos:%d\n",
             __func__, chl->RS232ComboxPos, chl->RS422ComboxPos, chl->RS485ComboxPos,
             chl->AutoRS422485ComboxPos);
    EnableWindow(GetDlgItem(hDlg, IDC_SORT_COM), TRUE);
    const UartMode* mode = FindUartMode(uart.UartMode);
    if (mode != nullptr) {
        SelectEntry(hDlg, chl->*mode->comboPos);
    } else {
        SendDlgItemMessageW(hDlg, IDC_INTERFACE_SELECT, CB_RESETCONTENT, 0, 0);
        AddEntry(hDlg, TEXT("Unknow"));
        SelectEntry(hDlg, 0);
    }
    EnableInterface(hDlg, mode != nullptr);
    ShowBoxes(hDlg, uart, mode);
    return true;
}

// Earlier clicks on the boxes are gone: they show the record again.
void _InterfaceSelectClicked(HWND hDlg, const BPPCHL* chl) {
    ShowBoxes(hDlg, chl->CurrentInfo.Uart, ModeAtEntry(chl, SelectedEntry(hDlg)));
}

// Selects the first mode that the UART offers. Of a UART that offers none the termination box is left alone.
void _RestoreDefaultClicked(HWND hDlg, const BPPCHL* chl) {
    const u32 capability = chl->CurrentInfo.Uart.UartCapability;
    for (const UartMode& mode : UartModes) {
        if (HasAll(capability, mode.offered)) {
            const bool hasAcs = HasAny(capability, mode.acs);
            SelectEntry(hDlg, chl->*mode.comboPos);
            EnableInterface(hDlg, TRUE);
            SetBox(hDlg, IDC_TERMINATION_ENABLE, false, HasAny(capability, mode.termination));
            SetBox(hDlg, IDC_ACS_ENABLE, hasAcs, hasAcs);
            return;
        }
    }
    SelectEntry(hDlg, 0);
    EnableInterface(hDlg, FALSE);
    SetBox(hDlg, IDC_ACS_ENABLE, false, false);
}

// Weaker than what offers the entries: it fails only with no offered entry selected.
bool IsSupported(const UartMode& mode, u32 capability) {
    bool supported = true;
    for (u32 bit = 1; bit != 0; bit <<= 1) {
        if ((mode.required & bit) != 0 && (capability & bit) == 0) {
            TraceOut(mode.unsupported, __func__, capability);
            supported = false;
        }
    }
    return supported;
}

void TraceSettings(const InterfaceSettings& settings, const char* function) {
    TraceOut("%s - nMode:%d\n", function, settings.UartMode);
    TraceOut("%s - nAHDC:%d\n", function, settings.UartAHDC);
    TraceOut("%s - nCS:%d\n", function, settings.UartCS);
    TraceOut("%s - nAutoRS422485:%d\n", function, settings.UartAutoRS422485);
    TraceOut("%s - nRS422Termination:%d\n", function, settings.UartRS422Termination);
    TraceOut("%s - nRS485Termination:%d\n", function, settings.UartRS485Termination);
}

bool _OkClicked(HWND hDlg, BPPCHL* chl) {
    UartBasicInfo& pending = chl->CurrentInfo.Uart;
    UartBasicInfo& saved = chl->SavedInfo.Uart;
    const UartMode* chosen = ModeAtEntry(chl, SelectedEntry(hDlg));
    const UartMode& mode = chosen != nullptr ? *chosen : UartModes[0];
    const InterfaceSettings settings =
        ChooseSettings(mode, pending.UartCapability, IsChecked(hDlg, IDC_TERMINATION_ENABLE),
                       IsChecked(hDlg, IDC_ACS_ENABLE));
    TraceSettings(settings, __func__);
    if (!IsSupported(mode, pending.UartCapability)) {
        ErrorBoxShow(FailureCapability, 0, hDlg, 0, 0, 0, nullptr);
        return false;
    }
    SetSettings(pending, settings);
    if (SameSettings(settings, SettingsOf(saved))) {
        return true;
    }
    TraceOut("%s - Chl:%d, uart advance settings change\n", __func__, chl->CurrentInfo.ChlBasic.ChlNumber);
    const u32 sStatus = Kavro_RegUartSetAdvanceSettings(
        chl->DeviceInfoSet, &chl->DeviceInfoData, settings.UartMode, settings.UartAHDC, settings.UartCS,
        settings.UartAutoRS422485, settings.UartRS422Termination, settings.UartRS485Termination);
    if (sStatus != 0) {
        ErrorBoxShow(FailureSetAdvance, sStatus, hDlg, 0, 0, 0, nullptr);
        return false;
    }
    SetSettings(saved, settings);
    return true;
}

bool _OnInitDialog(HWND hDlg, LPARAM lParam) {
    SetWindowLongPtrW(hDlg, DWLP_USER, lParam);
    return _InitializeControls(hDlg, reinterpret_cast<BPPCHL*>(lParam));
}

bool _OnCommand(HWND hDlg, int id, int notifyCode) {
    TraceOut("----> %s( ), NotifyCode:%d\n", __func__, notifyCode);
    auto* chl = reinterpret_cast<BPPCHL*>(GetWindowLongPtrW(hDlg, DWLP_USER));
    if (chl == nullptr) {
        return false; // not initialised yet
    }
    bool bSuccess = false;
    switch (id) {
    case IDOK:
        TraceOut("%s - IDOK\n", __func__);
        bSuccess = _OkClicked(hDlg, chl);
        if (bSuccess) {
            EndDialog(hDlg, IDOK);
        }
        break;
    case IDCANCEL:
        TraceOut("%s - IDCANCEL\n", __func__);
        EndDialog(hDlg, IDCANCEL);
        bSuccess = true;
        break;
    case IDC_RESTORE:
        TraceOut("%s - IDC_RESTORE\n", __func__);
        _RestoreDefaultClicked(hDlg, chl);
        bSuccess = true;
        break;
    case IDC_INTERFACE_SELECT:
        TraceOut("%s - IDC_INTERFACE_SELECT\n", __func__);
        if (notifyCode == CBN_SELCHANGE) {
            _InterfaceSelectClicked(hDlg, chl);
        }
        break;
    case IDC_SORT_COM:
        TraceOut("%s - IDC_SORT_COM\n", __func__);
        bSuccess = _SortCOMClicked(hDlg, chl);
        break;
    default:
        TraceOut("%s - DEFAULT:%d\n", __func__, id);
        break;
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

INT_PTR CALLBACK BoardUartAdvancedDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        TraceOut("%s - WM_INITDIALOG\n", __func__);
        return _OnInitDialog(hDlg, lParam);
    case WM_COMMAND:
        TraceOut("%s - WM_COMMAND\n", __func__);
        return _OnCommand(hDlg, LOWORD(wParam), HIWORD(wParam));
    default:
        return false;
    }
}

} // namespace

void KvrBoardUartAdvancedDlgShow(HWND hParent, BPPCHL* channel) {
    TraceOut("----> %s( )\n", __func__);
    DialogBoxParamW(ModuleInstance, MAKEINTRESOURCEW(IDD_ADVANCED_PORT_CONTROL), hParent,
                    BoardUartAdvancedDlgProc, reinterpret_cast<LPARAM>(channel));
    TraceOut("<---- %s\n", __func__);
}
