#include "board_page/channel_view.h"

#include "board_page/channel_selection.h"
#include "board_page/fifo_settings.h"
#include "board_page/resource_list.h"
#include "com_numbers/com_port_database.h"
#include "page_parts/label_text.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

constexpr u32 PollingCycleSeconds = 5;

// False if the class has no line.
bool FormatChannelLine(const BPPCHL* chl, WCHAR* line, u32 capacity) {
    const ChannelInfo& info = chl->CurrentInfo;
    const u32 number = info.ChlBasic.ChlNumber;
    switch (chl->Class) {
    case ClassUart:
        FormatText(line, capacity, TEXT("%ws (port%d)"), info.Uart.PortName, number);
        break;
    case ClassDio:
        FormatText(line, capacity, TEXT("DIO (port%d)"), number);
        break;
    case ClassMcp251x:
        FormatText(line, capacity, TEXT("%ws (port%d)"), info.Mcp251x.Mcp251xName, number);
        break;
    case ClassMcp251xFd:
        FormatText(line, capacity, TEXT("%ws (port%d)"), info.Mcp251xFd.Mcp251xFdName, number);
        break;
    case ClassCan:
        FormatText(line, capacity, TEXT("CAN (port%d)"), number);
        break;
    default:
        return false;
    }
    return true;
}

void Select(HWND hDlg, INT index) {
    const HWND list = GetDlgItem(hDlg, IDC_PORT_LIST);
    SetFocus(list);
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

// Shows a single text in a combo that the user can't change.
void ShowFixedCombo(HWND hDlg, int combo, int caption, const WCHAR* text) {
    SendDlgItemMessageW(hDlg, combo, CB_RESETCONTENT, 0, 0);
    SendDlgItemMessageW(hDlg, combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    SendDlgItemMessageW(hDlg, combo, CB_SETCURSEL, 0, 0);
    EnableWindow(GetDlgItem(hDlg, caption), FALSE);
    EnableWindow(GetDlgItem(hDlg, combo), FALSE);
}

void ShowPollingCycle(HWND hDlg) {
    WCHAR text[ControlTextCapacity];
    FormatText(text, ARRAYSIZE(text), TEXT("%d"), PollingCycleSeconds);
    ShowFixedCombo(hDlg, IDC_POLLING_CYCLE, IDC_POLLING_CYCLE_CAPTION, text);
}

void ShowPortNumber(HWND hDlg, const BPPCHL* chl) {
    if (chl != nullptr && chl->Class == ClassUart) {
        SendDlgItemMessageW(hDlg, IDC_PORT_NUMBER, CB_RESETCONTENT, 0, 0);
        // If it fails, the combo is empty and disabled, and OK finds no number chosen.
        Kavro_COMPortFillPortNameCombox(hDlg, chl->CurrentInfo.Uart.PortName);
    } else {
        ShowFixedCombo(hDlg, IDC_PORT_NUMBER, IDC_PORT_NUMBER_CAPTION, TEXT("NONE"));
    }
}

} // namespace

void _FillChannelList(HWND hDlg) {
    TraceScope trace;
    const BoardParams* params = PageParams(hDlg);
    const HWND list = GetDlgItem(hDlg, IDC_PORT_LIST);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    if (params->BoardOther.BoardNrController < 2) {
        return; // only number 0, which is no channel's
    }
    u32 position = 0;
    for (BPPCHL* chl = params->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        WCHAR line[ControlTextCapacity];
        if (!FormatChannelLine(chl, line, ARRAYSIZE(line))) {
            continue; // it takes no position either
        }
        chl->ListIndex = position++;
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
    }
}

void _ChlListSelectChange(HWND hDlg, BoardParams* params, INT index) {
    TraceScope trace("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    Select(hDlg, index);
    BPPCHL* chl = ChannelAt(params, index);
    _FillResourceList(hDlg, chl);
    _RefreshFifoControls(hDlg, chl);
    ShowPollingCycle(hDlg);
    ShowPortNumber(hDlg, chl);
    // Once more, so that the list has the focus whatever the other controls have done.
    Select(hDlg, index);
}
