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

void ClearBoxes(HWND hDlg) {
    SetBox(hDlg, IDC_TERMINATION_ENABLE, false, false);
    SetBox(hDlg, IDC_ACS_ENABLE, false, false);
}

// Turns on the boxes that the mode has, with the values of the record. Both have been cleared before.
void ShowBoxes(HWND hDlg, const UartBasicInfo& uart, const UartMode& mode) {
    if (HasAny(uart.UartCapability, mode.termination)) {
        const bool terminated =
            (HasAny(mode.termination, CapRS422Termination) && uart.UartRS422Termination != 0) ||
            (HasAny(mode.termination, CapRS485Termination) && uart.UartRS485Termination != 0);
        SetBox(hDlg, IDC_TERMINATION_ENABLE, terminated, true);
    }
    if (HasAny(uart.UartCapability, mode.acs)) {
        SetBox(hDlg, IDC_ACS_ENABLE, uart.UartCS != 0, true);
    }
}

// The mode at a position of the combo; null if no mode has that position. Without a selection the position is
// that of all modes that aren't offered, and the first of them is found.
const UartMode* ModeAtEntry(const BPPCHL* chl, u32 position) {
    for (const UartMode& mode : UartModes) {
        if (chl->*mode.comboPos == position) {
            return &mode;
        }
    }
    return nullptr;
}

bool _InitializeControls(HWND hDlg, BPPCHL* channel) {
    TraceScope trace;
    const UartBasicInfo& uart = channel->CurrentInfo.Uart;
    SendDlgItemMessageW(hDlg, IDC_INTERFACE_SELECT, CB_RESETCONTENT, 0, 0);
    for (const UartMode& mode : UartModes) {
        channel->*mode.comboPos =
            HasAll(uart.UartCapability, mode.offered) ? AddEntry(hDlg, mode.text) : NotOffered;
    }
    TraceOut("%s - RS232ComboxPos:%d, RS422ComboxPos:%d, RS485ComboxPos:%d, AutoRS422485ComboxPos:%d\n",
             __func__, channel->RS232ComboxPos, channel->RS422ComboxPos, channel->RS485ComboxPos,
             channel->AutoRS422485ComboxPos);
    EnableWindow(GetDlgItem(hDlg, IDC_SORT_COM), TRUE);
    ClearBoxes(hDlg);
    const UartMode* mode = FindUartMode(uart.UartMode);
    if (mode != nullptr) {
        SelectEntry(hDlg, channel->*mode->comboPos);
        EnableInterface(hDlg, TRUE);
        ShowBoxes(hDlg, uart, *mode);
    } else {
        SendDlgItemMessageW(hDlg, IDC_INTERFACE_SELECT, CB_RESETCONTENT, 0, 0);
        AddEntry(hDlg, TEXT("Unknow"));
        SelectEntry(hDlg, 0);
        EnableInterface(hDlg, FALSE);
    }
    return trace.Success(true);
}

// The boxes show the record again, so earlier clicks on them are lost.
bool _InterfaceSelectClicked(HWND hDlg, const BPPCHL* channel) {
    TraceScope trace;
    const UartMode* mode = ModeAtEntry(channel, SelectedEntry(hDlg));
    ClearBoxes(hDlg);
    if (mode != nullptr) {
        ShowBoxes(hDlg, channel->CurrentInfo.Uart, *mode);
    }
    return trace.Success(false);
}

const UartMode* FirstOfferedMode(u32 capability) {
    for (const UartMode& mode : UartModes) {
        if (HasAll(capability, mode.offered)) {
            return &mode;
        }
    }
    return nullptr;
}

// Selects the first mode that the UART offers. If it offers none, the termination box is left alone.
void _RestoreDefaultClicked(HWND hDlg, const BPPCHL* channel) {
    TraceScope trace;
    const u32 capability = channel->CurrentInfo.Uart.UartCapability;
    const UartMode* mode = FirstOfferedMode(capability);
    if (mode != nullptr) {
        const bool hasAcs = HasAny(capability, mode->acs);
        SelectEntry(hDlg, channel->*mode->comboPos);
        EnableInterface(hDlg, TRUE);
        SetBox(hDlg, IDC_TERMINATION_ENABLE, false, HasAny(capability, mode->termination));
        SetBox(hDlg, IDC_ACS_ENABLE, hasAcs, hasAcs);
    } else {
        SelectEntry(hDlg, 0);
        EnableInterface(hDlg, FALSE);
        SetBox(hDlg, IDC_ACS_ENABLE, false, false);
    }
}

// Storing a mode requires less than offering it, so this fails only if no offered entry is selected.
bool IsSupported(const UartMode& mode, u32 capability) {
    bool supported = true;
    for (u32 bit = 1; bit != 0; bit <<= 1) {
        if ((mode.required & bit) != 0 && (capability & bit) == 0) {
            TraceOut(mode.unsupported, TraceOperation(), capability);
            supported = false;
        }
    }
    return supported;
}

void TraceSettings(const InterfaceSettings& settings) {
    TraceOut("%s - nMode:%d\n", TraceOperation(), settings.UartMode);
    TraceOut("%s - nAHDC:%d\n", TraceOperation(), settings.UartAHDC);
    TraceOut("%s - nCS:%d\n", TraceOperation(), settings.UartCS);
    TraceOut("%s - nAutoRS422485:%d\n", TraceOperation(), settings.UartAutoRS422485);
    TraceOut("%s - nRS422Termination:%d\n", TraceOperation(), settings.UartRS422Termination);
    TraceOut("%s - nRS485Termination:%d\n", TraceOperation(), settings.UartRS485Termination);
}

// Returns the status of the write, or 0 if the store already has the settings.
u32 WriteSettings(BPPCHL* channel, const InterfaceSettings& settings) {
    UartBasicInfo& saved = channel->SavedInfo.Uart;
    if (SameSettings(settings, SettingsOf(saved))) {
        return 0;
    }
    TraceOut("%s - Chl:%d, uart advance settings change\n", TraceOperation(),
             channel->CurrentInfo.ChlBasic.ChlNumber);
    const u32 sStatus =
        Kavro_RegUartSetAdvanceSettings(channel->DeviceInfoSet, &channel->DeviceInfoData, settings.UartMode,
                                        settings.UartAHDC, settings.UartCS, settings.UartAutoRS422485,
                                        settings.UartRS422Termination, settings.UartRS485Termination);
    if (sStatus == 0) {
        SetSettings(saved, settings);
    }
    return sStatus;
}

bool _OkClicked(HWND hDlg, BPPCHL* channel) {
    TraceScope trace;
    UartBasicInfo& pending = channel->CurrentInfo.Uart;
    const UartMode* chosen = ModeAtEntry(channel, SelectedEntry(hDlg));
    const UartMode& mode = chosen != nullptr ? *chosen : UartModes[0];
    const InterfaceSettings settings =
        ChooseSettings(mode, pending.UartCapability, IsChecked(hDlg, IDC_TERMINATION_ENABLE),
                       IsChecked(hDlg, IDC_ACS_ENABLE));
    TraceSettings(settings);
    if (!IsSupported(mode, pending.UartCapability)) {
        ErrorBoxShow(FailureCapability, 0, hDlg);
        return trace.Success(false);
    }
    // What is pending stays so if the write fails, and the saved values stay too: the next OK sees the
    // difference and writes again.
    SetSettings(pending, settings);
    const u32 sStatus = WriteSettings(channel, settings);
    if (sStatus != 0) {
        ErrorBoxShow(FailureSetAdvance, sStatus, hDlg);
    }
    return trace.Success(sStatus == 0);
}

bool _OnInitDialog(HWND hDlg, LPARAM lParam) {
    TraceScope trace;
    SetWindowLongPtrW(hDlg, DWLP_USER, lParam);
    return trace.Success(_InitializeControls(hDlg, reinterpret_cast<BPPCHL*>(lParam)));
}

bool CommandGiven(HWND hDlg, BPPCHL* channel, int id, int notifyCode) {
    switch (id) {
    case IDOK:
        TraceOut("%s - IDOK\n", TraceOperation());
        if (!_OkClicked(hDlg, channel)) {
            return false;
        }
        EndDialog(hDlg, IDOK);
        return true;
    case IDCANCEL:
        TraceOut("%s - IDCANCEL\n", TraceOperation());
        EndDialog(hDlg, IDCANCEL);
        return true;
    case IDC_RESTORE:
        TraceOut("%s - IDC_RESTORE\n", TraceOperation());
        _RestoreDefaultClicked(hDlg, channel);
        return true;
    case IDC_INTERFACE_SELECT:
        TraceOut("%s - IDC_INTERFACE_SELECT\n", TraceOperation());
        if (notifyCode != CBN_SELCHANGE) {
            return false;
        }
        return _InterfaceSelectClicked(hDlg, channel);
    case IDC_SORT_COM:
        TraceOut("%s - IDC_SORT_COM\n", TraceOperation());
        return _SortCOMClicked(hDlg, channel);
    default:
        TraceOut("%s - DEFAULT:%d\n", TraceOperation(), id);
        return false;
    }
}

bool _OnCommand(HWND hDlg, int id, int notifyCode) {
    auto* channel = reinterpret_cast<BPPCHL*>(GetWindowLongPtrW(hDlg, DWLP_USER));
    if (channel == nullptr) {
        return false; // before WM_INITDIALOG
    }
    TraceScope trace("----> %s( ), NotifyCode:%d\n", __func__, notifyCode);
    return trace.Success(CommandGiven(hDlg, channel, id, notifyCode));
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

bool KvrBoardUartAdvancedDlgShow(HWND hParent, BPPCHL* channel) {
    TraceScope trace;
    // A dialog that can't be shown is one that has closed without a choice.
    DialogBoxParamW(ModuleInstance, MAKEINTRESOURCEW(IDD_ADVANCED_PORT_CONTROL), hParent,
                    BoardUartAdvancedDlgProc, reinterpret_cast<LPARAM>(channel));
    return trace.Success(true);
}
