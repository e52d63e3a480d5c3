#include "board_page/board_page_dialog.h"

#include "board_page/advanced_port_control.h"
#include "board_page/channel_selection.h"
#include "board_page/channel_view.h"
#include "board_page/fifo_settings.h"
#include "board_page/resource_list.h"
#include "com_numbers/port_device.h"
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
    TraceScope trace("----> %s( ), [pci:%d,irq:%d]\n", __func__, params->BoardBasic.BoardPciBusNumber,
                     params->BoardBasic.BoardIrq);
    SetWindowLongPtrW(hDlg, DWLP_USER, reinterpret_cast<LONG_PTR>(params));
    AddResourceColumns(hDlg);
    ShowFifoLabel(hDlg, IDC_TRANSMIT_LOW, IDS_LOW, 1);
    ShowFifoLabel(hDlg, IDC_RECEIVE_LOW, IDS_LOW, 1);
    _FillChannelList(hDlg);
    _ChlListSelectChange(hDlg, params, 0);
    params->BasicSettingsDlgInitiateOK = true;
    return trace.Success(true);
}

bool _AdvancedClicked(HWND hDlg, BoardParams* params, INT index) {
    TraceScope trace("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    BPPCHL* chl = ChannelAt(params, index);
    if (chl == nullptr) {
        return trace.Success(false);
    }
    if (chl->Class == ClassUart) {
        params->ChlListChanged = false;
        KvrBoardUartAdvancedDlgShow(hDlg, chl);
    }
    if (params->ChlListChanged) {
        _FillChannelList(hDlg);
        _ChlListSelectChange(hDlg, params, index);
    }
    return trace.Success(true);
}

// `index` is the position of the selected channel. After Set to All and Apply the page shows what the records
// have, also where storing it failed.
bool CommandGiven(HWND hDlg, BoardParams* params, INT index, int id, int notifyCode) {
    switch (id) {
    case IDC_LARGEFIFO:
        TraceOut("%s - IDC_LARGEFIFO\n", TraceOperation());
        return _FifoEnableClicked(hDlg, params, index);
    case IDC_SET_TO_ALL: {
        TraceOut("%s - IDC_SET_TO_ALL\n", TraceOperation());
        const bool done = _SetToAllClicked(hDlg, params, index);
        _ChlListSelectChange(hDlg, params, index);
        return done;
    }
    case IDC_APPLY: {
        TraceOut("%s - IDC_APPLY\n", TraceOperation());
        const bool done = _ApplyClicked(hDlg, params, index);
        _ChlListSelectChange(hDlg, params, index);
        return done;
    }
    case IDC_RESTORE:
        TraceOut("%s - IDC_RESTORE\n", TraceOperation());
        return _RestoreDefaultClicked(hDlg, params, index);
    case IDC_ADVANCED:
        TraceOut("%s - IDC_ADVANCED\n", TraceOperation());
        return _AdvancedClicked(hDlg, params, index);
    case IDC_PORT_LIST:
        TraceOut("%s - IDC_PORT_LIST\n", TraceOperation());
        if (notifyCode != LBN_SELCHANGE) {
            return false;
        }
        _ChlListSelectChange(hDlg, params, index);
        return true;
    case IDCANCEL:
        TraceOut("%s - IDCANCEL\n", TraceOperation());
        EndDialog(hDlg, 0);
        return true;
    default:
        TraceOut("%s - DEFAULT:%d\n", TraceOperation(), id);
        return false;
    }
}

bool _OnCommand(HWND hDlg, int id, int notifyCode) {
    BoardParams* params = PageParams(hDlg);
    if (params == nullptr) {
        return false; // before WM_INITDIALOG
    }
    const INT index = SelectedChannel(hDlg);
    TraceScope trace("----> %s( ), [pci:%d,irq:%d], NotifyCode:%d\n", __func__,
                     params->BoardBasic.BoardPciBusNumber, params->BoardBasic.BoardIrq, notifyCode);
    return trace.Success(CommandGiven(hDlg, params, index, id, notifyCode));
}

// Gives the selected UART the number that the user has chosen in the combo. False after a box.
bool RenameUart(HWND hDlg, BPPCHL* chl) {
    const u32 oldNumber = ComNumberFromName(chl->CurrentInfo.Uart.PortName);
    const u32 newNumber = ChosenComNumber(hDlg, oldNumber);
    if (!IsNumberChanged(oldNumber, newNumber)) {
        return true;
    }
    if (!RemapForUser(hDlg, BoardRename, chl->DeviceInfoSet, &chl->DeviceInfoData, oldNumber, newNumber)) {
        return false;
    }
    Kavro_COMPortBroadcastRemap(chl->DeviceInfoSet, &chl->DeviceInfoData);
    NameChannel(chl, newNumber);
    MoveChannelSettings(chl);
    return true;
}

bool _OkClicked(HWND hDlg, BoardParams* params, INT index) {
    TraceScope trace("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    BPPCHL* chl = ChannelAt(params, index);
    if (chl == nullptr) {
        return trace.Success(false);
    }
    const bool isUart = chl->Class == ClassUart;
    if (isUart) {
        TakeFifoSettings(hDlg, chl);
    }
    return trace.Success(StorePendingFifo(hDlg, params) && (!isUart || RenameUart(hDlg, chl)));
}

bool _OnNotify(HWND hDlg, LPARAM lParam) {
    TraceScope trace;
    BoardParams* params = PageParams(hDlg);
    const INT index = SelectedChannel(hDlg);
    const bool initiated = params != nullptr && params->BasicSettingsDlgInitiateOK;
    return trace.Success(AnswerNotify(hDlg, lParam, initiated, [&] { _OkClicked(hDlg, params, index); }));
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
