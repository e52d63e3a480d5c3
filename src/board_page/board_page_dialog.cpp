#include "board_page/board_page_dialog.h"

#include "board_page/advanced_port_control.h"
#include "board_page/channel_view.h"
#include "board_page/fifo_settings.h"
#include "board_page/resource_list.h"
#include "com_numbers/port_rename.h"
#include "com_numbers/port_settings_migration.h"
#include "device_model/channel_list.h"
#include "page_parts/fifo_controls.h"
#include "reporting/error_reporter.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

constexpr RenameFailureCodes RenameCodes = {FailureBoardNumberInUse, FailureBoardPortOpened,
                                            FailureBoardRemap};

// Null until the page has been initialised.
BoardParams* PageParams(HWND hDlg) {
    return reinterpret_cast<BoardParams*>(GetWindowLongPtrW(hDlg, DWLP_USER));
}

bool _OnInitDialog(HWND hDlg, LPARAM page) {
    auto* params = reinterpret_cast<BoardParams*>(reinterpret_cast<const PROPSHEETPAGEW*>(page)->lParam);
    TraceOut("----> %s( ), [pci:%d,irq:%d]\n", __func__, params->BoardBasic.BoardPciBusNumber,
             params->BoardBasic.BoardIrq);
    SetWindowLongPtrW(hDlg, DWLP_USER, reinterpret_cast<LONG_PTR>(params));
    AddResourceColumns(hDlg);
    ShowFifoLowLabels(hDlg);
    _FillChannelList(hDlg, params);
    _ChlListSelectChange(hDlg, params, 0);
    params->BasicSettingsDlgInitiateOK = true;
    TraceOut("<---- %s, bSuccess:%d\n", __func__, true);
    return true;
}

bool _AdvancedClicked(HWND hDlg, BoardParams* params, u32 index) {
    BPPCHL* chl = BoardChlByListIndex(params, index);
    if (chl == nullptr) {
        return false;
    }
    if (chl->Class == ClassUart) {
        params->ChlListChanged = false;
        KvrBoardUartAdvancedDlgShow(hDlg, chl);
    }
    if (params->ChlListChanged) {
        _FillChannelList(hDlg, params);
        _ChlListSelectChange(hDlg, params, index);
    }
    return true;
}

bool _OnCommand(HWND hDlg, int id, int notifyCode) {
    BoardParams* params = PageParams(hDlg);
    if (params == nullptr) {
        return false;
    }
    const u32 index = SelectedChannel(hDlg);
    bool bSuccess = false;
    TraceOut("----> %s( ), [pci:%d,irq:%d], NotifyCode:%d\n", __func__, params->BoardBasic.BoardPciBusNumber,
             params->BoardBasic.BoardIrq, notifyCode);
    switch (id) {
    case IDC_LARGEFIFO:
        TraceOut("%s - IDC_LARGEFIFO\n", __func__);
        bSuccess = _FifoEnableClicked(hDlg, params, index);
        break;
    case IDC_SET_TO_ALL:
        TraceOut("%s - IDC_SET_TO_ALL\n", __func__);
        bSuccess = _SetToAllClicked(hDlg, params, index);
        _ChlListSelectChange(hDlg, params, index);
        break;
    case IDC_APPLY:
        TraceOut("%s - IDC_APPLY\n", __func__);
        bSuccess = _ApplyClicked(hDlg, params, index);
        _ChlListSelectChange(hDlg, params, index);
        break;
    case IDC_RESTORE:
        TraceOut("%s - IDC_RESTORE\n", __func__);
        bSuccess = _RestoreDefaultClicked(hDlg, params, index);
        break;
    case IDC_ADVANCED:
        TraceOut("%s - IDC_ADVANCED\n", __func__);
        bSuccess = _AdvancedClicked(hDlg, params, index);
        break;
    case IDC_PORT_LIST:
        TraceOut("%s - IDC_PORT_LIST\n", __func__);
        if (notifyCode == LBN_SELCHANGE) {
            _ChlListSelectChange(hDlg, params, index);
            bSuccess = true;
        }
        break;
    case IDCANCEL:
        TraceOut("%s - IDCANCEL\n", __func__);
        EndDialog(hDlg, 0);
        bSuccess = true;
        break;
    default:
        TraceOut("%s - DEFAULT:%d\n", __func__, id);
        break;
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

// Enacts a change of the COM number combo for the selected UART.
bool RenameIfChosen(HWND hDlg, BPPCHL* chl) {
    UartBasicInfo& saved = chl->SavedInfo.Uart;
    UartBasicInfo& current = chl->CurrentInfo.Uart;
    const u32 oldNumber = ComNumberFromName(current.PortName);
    const INT selection = static_cast<INT>(SendDlgItemMessageW(hDlg, IDC_PORT_NUMBER, CB_GETCURSEL, 0, 0));
    const u32 newNumber = static_cast<u32>(selection) + 1;
    if (selection == CB_ERR || newNumber == oldNumber) {
        TraceOut("%s - COM number not change\n", __func__);
        return true;
    }
    TraceOut("%s - COM number change\n", __func__);
    TraceOut("%s - COM number [old:%d, new:%d]\n", __func__, oldNumber, newNumber);
    if (!RenamePortForUser(hDlg, RenameCodes, chl->DeviceInfoSet, &chl->DeviceInfoData, oldNumber, newNumber,
                           current.PortName, ARRAYSIZE(current.PortName))) {
        return false;
    }
    Kavro_COMPortMigratePortSettings(saved.PortName, current.PortName);
    CopyText(saved.PortName, ARRAYSIZE(saved.PortName), current.PortName);
    return true;
}

bool _OkClicked(HWND hDlg, BoardParams* params, u32 index) {
    TraceOut("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    BPPCHL* chl = BoardChlByListIndex(params, index);
    bool bSuccess = false;
    if (chl != nullptr) {
        const bool isUart = chl->Class == ClassUart;
        if (isUart) {
            TakeFifoSettings(hDlg, chl);
        }
        bSuccess = StoreFifoSettings(hDlg, params) && (!isUart || RenameIfChosen(hDlg, chl));
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

bool _OnNotify(HWND hDlg, LPARAM lParam) {
    if (reinterpret_cast<const NMHDR*>(lParam)->code != PSN_APPLY) {
        return false;
    }
    BoardParams* params = PageParams(hDlg);
    const bool initiated = params != nullptr && params->BasicSettingsDlgInitiateOK;
    TraceOut("%s - PSN_APPLY, BasicSettingsDlgInitiateOK:%d\n", __func__, initiated);
    if (initiated) {
        _OkClicked(hDlg, params, SelectedChannel(hDlg));
    }
    SetWindowLongPtrW(hDlg, DWLP_MSGRESULT, PSNRET_NOERROR);
    return true;
}

} // namespace

INT_PTR CALLBACK BoardBasicDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        TraceOut("%s - WM_INITDIALOG\n", __func__);
        return _OnInitDialog(hDlg, lParam);
    case WM_COMMAND:
        TraceOut("%s - WM_COMMAND\n", __func__);
        return _OnCommand(hDlg, LOWORD(wParam), HIWORD(wParam));
    case WM_HSCROLL:
        TraceOut("%s - WM_HSCROLL\n", __func__);
        _OnHscroll(hDlg, PageParams(hDlg), SelectedChannel(hDlg), reinterpret_cast<HWND>(lParam));
        return true;
    case WM_NOTIFY:
        return _OnNotify(hDlg, lParam);
    default:
        return false;
    }
}
