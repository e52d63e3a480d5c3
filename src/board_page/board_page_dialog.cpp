#include "board_page/board_page_dialog.h"

#include "board_page/advanced_port_control.h"
#include "board_page/channel_selection.h"
#include "board_page/channel_view.h"
#include "board_page/fifo_settings.h"
#include "board_page/resource_list.h"
#include "com_numbers/port_rename.h"
#include "page_parts/fifo_controls.h"
#include "page_parts/page_provider.h"
#include "reporting/error_reporter.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

constexpr RenameTerms BoardRename = {FailureBoardNumberInUse, FailureBoardPortOpened, FailureBoardRemap,
                                     false};

bool _OnInitDialog(HWND hDlg, LPARAM page) {
    auto* params = reinterpret_cast<BoardParams*>(reinterpret_cast<const PROPSHEETPAGEW*>(page)->lParam);
    TraceOut("----> %s( ), [pci:%d,irq:%d]\n", __func__, params->BoardBasic.BoardPciBusNumber,
             params->BoardBasic.BoardIrq);
    SetWindowLongPtrW(hDlg, DWLP_USER, reinterpret_cast<LONG_PTR>(params));
    AddResourceColumns(hDlg);
    ShowFifoLabel(hDlg, IDC_TRANSMIT_LOW, IDS_LOW, 1);
    ShowFifoLabel(hDlg, IDC_RECEIVE_LOW, IDS_LOW, 1);
    _FillChannelList(hDlg);
    _ChlListSelectChange(hDlg, params, 0);
    params->BasicSettingsDlgInitiateOK = true;
    const bool bSuccess = true;
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

bool _AdvancedClicked(HWND hDlg, BoardParams* params, INT index) {
    TraceOut("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    BPPCHL* chl = ChannelAt(params, index);
    const bool bSuccess = chl != nullptr;
    if (bSuccess && chl->Class == ClassUart) {
        params->ChlListChanged = false;
        KvrBoardUartAdvancedDlgShow(hDlg, chl);
    }
    if (bSuccess && params->ChlListChanged) {
        _FillChannelList(hDlg);
        _ChlListSelectChange(hDlg, params, index);
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

bool _OnCommand(HWND hDlg, int id, int notifyCode) {
    BoardParams* params = PageParams(hDlg);
    if (params == nullptr) {
        return false; // before WM_INITDIALOG
    }
    const INT index = SelectedChannel(hDlg);
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

// Gives the selected UART the number that the user has chosen in the combo.
bool RenameUart(HWND hDlg, BPPCHL* chl) {
    const u32 oldNumber = ComNumberFromName(chl->CurrentInfo.Uart.PortName);
    return RenamePortForUser(hDlg, BoardRename,
                             RenameOfChannel(chl, oldNumber, ChosenComNumber(hDlg, oldNumber)));
}

bool _OkClicked(HWND hDlg, BoardParams* params, INT index) {
    TraceOut("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    BPPCHL* chl = ChannelAt(params, index);
    bool bSuccess = chl != nullptr;
    if (bSuccess) {
        const bool isUart = chl->Class == ClassUart;
        if (isUart) {
            TakeFifoSettings(hDlg, chl);
        }
        bSuccess = StorePendingFifo(hDlg, params) && (!isUart || RenameUart(hDlg, chl));
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

bool _OnNotify(HWND hDlg, LPARAM lParam) {
    TraceOut("----> %s( )\n", __func__);
    BoardParams* params = PageParams(hDlg);
    const INT index = SelectedChannel(hDlg);
    const bool initiated = params != nullptr && params->BasicSettingsDlgInitiateOK;
    const bool bSuccess = AnswerNotify(hDlg, lParam, initiated, [&] { _OkClicked(hDlg, params, index); });
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
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
        return _OnHscroll(hDlg, lParam);
    case WM_NOTIFY:
        return _OnNotify(hDlg, lParam);
    default:
        return false;
    }
}
