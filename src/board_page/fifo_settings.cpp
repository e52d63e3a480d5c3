#include "board_page/fifo_settings.h"

#include "device_model/channel_list.h"
#include "device_model/device_store.h"
#include "page_parts/fifo_controls.h"
#include "reporting/error_reporter.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

// What acts on a UART only, beside the FIFO controls.
constexpr int UartButtons[] = {IDC_ADVANCED, IDC_APPLY, IDC_SET_TO_ALL, IDC_RESTORE};

BPPCHL* UartAt(const BoardParams* params, u32 index) {
    BPPCHL* chl = BoardChlByListIndex(params, index);
    return chl != nullptr && chl->Class == ClassUart ? chl : nullptr;
}

void SetPending(BPPCHL* chl, const FifoValues& values) {
    UartBasicInfo& pending = chl->CurrentInfo.Uart;
    pending.UartFifoEnable = values.UartFifoEnable;
    pending.UartTxFifoLowHigh = values.UartTxFifoLowHigh;
    pending.UartRxFifoLowHigh = values.UartRxFifoLowHigh;
}

FifoValues ReadPage(HWND hDlg, const BPPCHL* chl) {
    return _ReadFifoSliders(hDlg, chl->CurrentInfo.Uart, chl->Fifo);
}

// False at the first write that fails, with its status and the COM number of its port.
bool _SetEachUartUiFifoSettingsIfChange(BoardParams* params, u32* status, u32* comNumber) {
    *status = 0;
    *comNumber = 0;
    for (BPPCHL* chl = params->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (chl->Class != ClassUart) {
            continue;
        }
        const UartBasicInfo& pending = chl->CurrentInfo.Uart;
        UartBasicInfo& saved = chl->SavedInfo.Uart;
        if (pending.UartFifoEnable == saved.UartFifoEnable &&
            pending.UartTxFifoLowHigh == saved.UartTxFifoLowHigh &&
            pending.UartRxFifoLowHigh == saved.UartRxFifoLowHigh) {
            TraceOut("%s - Chl:%d, uart fifo settings not change\n", __func__,
                     chl->CurrentInfo.ChlBasic.ChlNumber);
            continue;
        }
        TraceOut("%s - Chl:%d, uart fifo settings change\n", __func__, chl->CurrentInfo.ChlBasic.ChlNumber);
        *status =
            Kavro_RegUartSetFifoSettings(chl->DeviceInfoSet, &chl->DeviceInfoData, pending.UartFifoEnable,
                                         pending.UartTxFifoLowHigh, pending.UartRxFifoLowHigh);
        if (*status != 0) {
            *comNumber = ComNumberFromName(pending.PortName);
            return false;
        }
        saved.UartFifoEnable = pending.UartFifoEnable;
        saved.UartTxFifoLowHigh = pending.UartTxFifoLowHigh;
        saved.UartRxFifoLowHigh = pending.UartRxFifoLowHigh;
    }
    return true;
}

} // namespace

void _RefreshFifoControls(HWND hDlg, BPPCHL* channel) {
    const bool isUart = channel != nullptr && channel->Class == ClassUart;
    if (isUart) {
        ShowFifoSettings(hDlg, channel->CurrentInfo.Uart, &channel->Fifo);
    } else {
        CheckDlgButton(hDlg, IDC_LARGEFIFO, BST_UNCHECKED);
        EnableWindow(GetDlgItem(hDlg, IDC_LARGEFIFO), FALSE);
        ShowFifoLabelsAtOne(hDlg);
        _EnableFifoControls(hDlg, FALSE);
    }
    for (const int button : UartButtons) {
        EnableWindow(GetDlgItem(hDlg, button), isUart);
    }
}

void _OnHscroll(HWND hDlg, const BoardParams* params, u32 index, HWND slider) {
    BPPCHL* chl = params != nullptr ? BoardChlByListIndex(params, index) : nullptr;
    if (chl != nullptr) {
        FifoSliderMoved(hDlg, slider, &chl->Fifo);
    }
}

bool _FifoEnableClicked(HWND hDlg, BoardParams* params, u32 index) {
    BPPCHL* chl = UartAt(params, index);
    if (chl == nullptr) {
        return false;
    }
    FifoEnableClicked(hDlg, &chl->Fifo);
    return true;
}

bool _RestoreDefaultClicked(HWND hDlg, BoardParams* params, u32 index) {
    const BPPCHL* chl = UartAt(params, index);
    if (chl == nullptr) {
        return false;
    }
    ShowFifoDefaults(hDlg, chl->CurrentInfo.Uart, chl->Fifo);
    return true;
}

bool _SetToAllClicked(HWND hDlg, BoardParams* params, u32 index) {
    const BPPCHL* selected = UartAt(params, index);
    if (selected == nullptr) {
        return false;
    }
    const FifoValues values = ReadPage(hDlg, selected);
    for (BPPCHL* chl = params->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (chl->Class == ClassUart) {
            SetPending(chl, values);
        }
    }
    return true;
}

bool _ApplyClicked(HWND hDlg, BoardParams* params, u32 index) {
    BPPCHL* chl = UartAt(params, index);
    if (chl == nullptr) {
        return false;
    }
    TakeFifoSettings(hDlg, chl);
    return StoreFifoSettings(hDlg, params);
}

void TakeFifoSettings(HWND hDlg, BPPCHL* channel) {
    SetPending(channel, ReadPage(hDlg, channel));
}

bool StoreFifoSettings(HWND hDlg, BoardParams* params) {
    u32 sStatus = 0;
    u32 comNumber = 0;
    if (_SetEachUartUiFifoSettingsIfChange(params, &sStatus, &comNumber)) {
        return true;
    }
    ErrorBoxShow(FailureBoardSetFifo, sStatus, hDlg, 0, comNumber, 0, nullptr);
    return false;
}
