#include "board_page/fifo_settings.h"

#include "board_page/channel_selection.h"
#include "device_model/device_store.h"
#include "page_parts/fifo_controls.h"
#include "reporting/error_reporter.h"
#include "resources/resource_ids.h"

namespace {

// The other buttons that act only on a UART.
constexpr int UartButtons[] = {IDC_APPLY, IDC_SET_TO_ALL, IDC_RESTORE};

BPPCHL* UartAt(const BoardParams* params, INT index) {
    BPPCHL* chl = ChannelAt(params, index);
    return chl != nullptr && chl->Class == ClassUart ? chl : nullptr;
}

FifoValues ReadPage(HWND hDlg, const BPPCHL* chl) {
    const FifoValues values = _ReadFifoSliders(hDlg, chl->CurrentInfo.Uart, chl->Fifo);
    TraceFifoValues(values);
    return values;
}

void EnableUartButtons(HWND hDlg, BOOL enable) {
    for (const int button : UartButtons) {
        EnableWindow(GetDlgItem(hDlg, button), enable);
    }
}

void ShowUart(HWND hDlg, const UartBasicInfo& uart, FifoSliders* sliders) {
    RememberFifoPositions(uart, sliders);
    ShowFifoCheckBox(hDlg, uart.UartFifoEnable != 0);
    EnableWindow(GetDlgItem(hDlg, IDC_ADVANCED), TRUE);
    SetFifoSliderRange(hDlg, IDC_TRANSMIT_SLIDER, uart.UartTxFifoSize);
    PutTransmitSlider(hDlg, sliders->TxFifoPosTranslate);
    SetFifoSliderRange(hDlg, IDC_RECEIVE_SLIDER, RxFifoStageCount);
    PutReceiveSlider(hDlg, sliders->RxFifoPos, sliders->RxFifoPosTranslate);
    _EnableFifoControls(hDlg, uart.UartFifoEnable != 0);
    EnableUartButtons(hDlg, TRUE);
}

void ShowNoUart(HWND hDlg) {
    CheckDlgButton(hDlg, IDC_LARGEFIFO, BST_UNCHECKED);
    EnableWindow(GetDlgItem(hDlg, IDC_LARGEFIFO), FALSE);
    EnableWindow(GetDlgItem(hDlg, IDC_ADVANCED), FALSE);
    ShowFifoLabel(hDlg, IDC_TRANSMIT_HIGH, IDS_HIGH, 1);
    ShowFifoLabel(hDlg, IDC_TRANSMIT_LOW, IDS_LOW, 1);
    ShowFifoLabel(hDlg, IDC_RECEIVE_HIGH, IDS_HIGH, 1);
    ShowFifoLabel(hDlg, IDC_RECEIVE_LOW, IDS_LOW, 1);
    _EnableFifoControls(hDlg, FALSE);
    EnableUartButtons(hDlg, FALSE);
}

} // namespace

void _RefreshFifoControls(HWND hDlg, BPPCHL* channel) {
    TraceScope trace;
    if (channel != nullptr && channel->Class == ClassUart) {
        ShowUart(hDlg, channel->CurrentInfo.Uart, &channel->Fifo);
    } else {
        ShowNoUart(hDlg);
    }
}

bool _OnHscroll(HWND hDlg, LPARAM lParam) {
    TraceScope trace;
    const BoardParams* params = PageParams(hDlg);
    const INT index = SelectedChannel(hDlg);
    BPPCHL* chl = params != nullptr ? ChannelAt(params, index) : nullptr;
    if (chl != nullptr) {
        FollowFifoSlider(hDlg, reinterpret_cast<HWND>(lParam), &chl->Fifo);
    }
    return trace.Success(true);
}

bool _FifoEnableClicked(HWND hDlg, BoardParams* params, INT index) {
    TraceScope trace("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    BPPCHL* chl = UartAt(params, index);
    if (chl == nullptr) {
        return trace.Success(false);
    }
    FollowFifoCheckBox(hDlg, &chl->Fifo);
    return trace.Success(true);
}

// Changes only the controls. The pending values and the remembered positions stay.
bool _RestoreDefaultClicked(HWND hDlg, BoardParams* params, INT index) {
    TraceScope trace("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    const BPPCHL* chl = UartAt(params, index);
    if (chl == nullptr) {
        return trace.Success(false);
    }
    CheckDlgButton(hDlg, IDC_LARGEFIFO, BST_CHECKED);
    PutTransmitSlider(hDlg, chl->CurrentInfo.Uart.UartTxFifoSize);
    PutReceiveSlider(hDlg, RxFifoStageCount, RxStageOfPosition(chl->Fifo.RxFifo4Stage, RxFifoStageCount));
    _EnableFifoControls(hDlg, TRUE);
    return trace.Success(true);
}

bool _SetToAllClicked(HWND hDlg, BoardParams* params, INT index) {
    TraceScope trace("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    const BPPCHL* selected = UartAt(params, index);
    if (selected == nullptr) {
        return trace.Success(false);
    }
    // The values are copied as they are: a channel with a smaller FIFO has them lowered when its own page is
    // read.
    const FifoValues values = ReadPage(hDlg, selected);
    for (BPPCHL* chl = params->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (chl->Class == ClassUart) {
            SetFifoValues(chl->CurrentInfo.Uart, values);
        }
    }
    return trace.Success(true);
}

bool _ApplyClicked(HWND hDlg, BoardParams* params, INT index) {
    TraceScope trace("----> %s( ), SelectedChlIndex:%d\n", __func__, index);
    BPPCHL* chl = UartAt(params, index);
    if (chl == nullptr) {
        return trace.Success(false);
    }
    TakeFifoSettings(hDlg, chl);
    return trace.Success(StorePendingFifo(hDlg, params));
}

bool _SetEachUartUiFifoSettingsIfChange(BoardParams* params, u32* status, u32* comNumber) {
    TraceScope trace;
    *status = 0;
    *comNumber = 0;
    if (params->BoardOther.BoardNrController < 2) {
        return trace.Success(true);
    }
    for (BPPCHL* chl = params->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (chl->Class != ClassUart) {
            continue;
        }
        const u32 number = chl->CurrentInfo.ChlBasic.ChlNumber;
        const UartBasicInfo& uart = chl->CurrentInfo.Uart;
        const FifoValues pending = FifoValuesOf(uart);
        if (SameFifoValues(pending, FifoValuesOf(chl->SavedInfo.Uart))) {
            TraceOut("%s - Chl:%d, uart fifo settings not change\n", __func__, number);
            continue;
        }
        TraceOut("%s - Chl:%d, uart fifo settings change\n", __func__, number);
        *status =
            Kavro_RegUartSetFifoSettings(chl->DeviceInfoSet, &chl->DeviceInfoData, pending.UartFifoEnable,
                                         pending.UartTxFifoLowHigh, pending.UartRxFifoLowHigh);
        if (*status != 0) {
            *comNumber = ComNumberFromName(uart.PortName);
            return trace.Success(false);
        }
        SetFifoValues(chl->SavedInfo.Uart, pending);
    }
    return trace.Success(true);
}

void TakeFifoSettings(HWND hDlg, BPPCHL* channel) {
    SetFifoValues(channel->CurrentInfo.Uart, ReadPage(hDlg, channel));
}

bool StorePendingFifo(HWND hDlg, BoardParams* params) {
    u32 sStatus = 0;
    u32 comNumber = 0;
    if (_SetEachUartUiFifoSettingsIfChange(params, &sStatus, &comNumber)) {
        return true;
    }
    ErrorBoxShow(FailureBoardSetFifo, sStatus, hDlg, 0, comNumber);
    return false;
}
