#include "page_parts/fifo_controls.h"

#include "page_parts/label_text.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

constexpr int FifoControls[] = {
    IDC_TRANSMIT_SLIDER, IDC_TRANSMIT_LOW, IDC_TRANSMIT_HIGH, IDC_TRANSMIT_CAPTION,
    IDC_RECEIVE_SLIDER,  IDC_RECEIVE_LOW,  IDC_RECEIVE_HIGH,  IDC_RECEIVE_CAPTION,
};

void ShowLabel(HWND hDlg, int label, UINT stringId, u32 value) {
    _SetTextFromString(GetDlgItem(hDlg, label), stringId, value);
}

// The highest position travels in 16 bits.
void SetSliderRange(HWND hDlg, int slider, u32 highest) {
    SendDlgItemMessageW(hDlg, slider, TBM_SETRANGE, TRUE, MAKELPARAM(1, highest));
}

u32 SliderPosition(HWND hDlg, int slider) {
    return static_cast<u32>(SendDlgItemMessageW(hDlg, slider, TBM_GETPOS, 0, 0));
}

void PutTransmitSlider(HWND hDlg, u32 position) {
    SendDlgItemMessageW(hDlg, IDC_TRANSMIT_SLIDER, TBM_SETPOS, TRUE, static_cast<LPARAM>(position));
    ShowLabel(hDlg, IDC_TRANSMIT_HIGH, IDS_HIGH, position);
}

void PutReceiveSlider(HWND hDlg, u32 position, u32 level) {
    SendDlgItemMessageW(hDlg, IDC_RECEIVE_SLIDER, TBM_SETPOS, TRUE, static_cast<LPARAM>(position));
    ShowLabel(hDlg, IDC_RECEIVE_HIGH, IDS_HIGH, level);
}

u32 AtLeastOneAtMost(u32 level, u32 bound) {
    const u32 raised = level == 0 ? 1 : level;
    return raised > bound ? bound : raised;
}

} // namespace

void _EnableFifoControls(HWND hDlg, BOOL enable) {
    for (const int control : FifoControls) {
        EnableWindow(GetDlgItem(hDlg, control), enable);
    }
}

void ShowFifoLowLabels(HWND hDlg) {
    ShowLabel(hDlg, IDC_TRANSMIT_LOW, IDS_LOW, 1);
    ShowLabel(hDlg, IDC_RECEIVE_LOW, IDS_LOW, 1);
}

void ShowFifoLabelsAtOne(HWND hDlg) {
    ShowLabel(hDlg, IDC_TRANSMIT_HIGH, IDS_HIGH, 1);
    ShowLabel(hDlg, IDC_TRANSMIT_LOW, IDS_LOW, 1);
    ShowLabel(hDlg, IDC_RECEIVE_HIGH, IDS_HIGH, 1);
    ShowLabel(hDlg, IDC_RECEIVE_LOW, IDS_LOW, 1);
}

void ShowFifoSettings(HWND hDlg, const UartBasicInfo& uart, FifoSliders* sliders) {
    const bool fifoEnable = uart.UartFifoEnable != 0;
    EnableWindow(GetDlgItem(hDlg, IDC_LARGEFIFO), TRUE);
    CheckDlgButton(hDlg, IDC_LARGEFIFO, fifoEnable ? BST_CHECKED : BST_UNCHECKED);

    SetSliderRange(hDlg, IDC_TRANSMIT_SLIDER, uart.UartTxFifoSize);
    sliders->TxFifoPosTranslate = fifoEnable ? uart.UartTxFifoLowHigh : 1;
    PutTransmitSlider(hDlg, sliders->TxFifoPosTranslate);

    SetSliderRange(hDlg, IDC_RECEIVE_SLIDER, RxFifoStageCount);
    sliders->RxFifoPos = RxPositionOfTrigger(sliders->RxFifo4Stage, uart.UartRxFifoLowHigh, fifoEnable);
    sliders->RxFifoPosTranslate = RxStageOfPosition(sliders->RxFifo4Stage, sliders->RxFifoPos);
    PutReceiveSlider(hDlg, sliders->RxFifoPos, sliders->RxFifoPosTranslate);

    _EnableFifoControls(hDlg, fifoEnable);
}

void ShowFifoDefaults(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders) {
    EnableWindow(GetDlgItem(hDlg, IDC_LARGEFIFO), TRUE);
    CheckDlgButton(hDlg, IDC_LARGEFIFO, BST_CHECKED);
    PutTransmitSlider(hDlg, uart.UartTxFifoSize);
    PutReceiveSlider(hDlg, RxFifoStageCount, RxStageOfPosition(sliders.RxFifo4Stage, RxFifoStageCount));
    _EnableFifoControls(hDlg, TRUE);
}

void FifoEnableClicked(HWND hDlg, FifoSliders* sliders) {
    const bool checked = IsDlgButtonChecked(hDlg, IDC_LARGEFIFO) == BST_CHECKED;
    if (checked) {
        TraceOut("%s - FifoEnable CHECKED, RxFifoPos:%d, TxFifoPosTranslate:%d\n", __func__,
                 sliders->RxFifoPos, sliders->TxFifoPosTranslate);
        PutTransmitSlider(hDlg, sliders->TxFifoPosTranslate);
        sliders->RxFifoPosTranslate = RxStageOfPosition(sliders->RxFifo4Stage, sliders->RxFifoPos);
        PutReceiveSlider(hDlg, sliders->RxFifoPos, sliders->RxFifoPosTranslate);
    } else {
        TraceOut("%s - FifoEnable UNCHECKED\n", __func__);
        PutTransmitSlider(hDlg, 1);
        PutReceiveSlider(hDlg, 1, 1);
    }
    _EnableFifoControls(hDlg, checked);
}

void FifoSliderMoved(HWND hDlg, HWND slider, FifoSliders* sliders) {
    switch (GetDlgCtrlID(slider)) {
    case IDC_RECEIVE_SLIDER:
        sliders->RxFifoPos = SliderPosition(hDlg, IDC_RECEIVE_SLIDER);
        sliders->RxFifoPosTranslate = RxStageOfPosition(sliders->RxFifo4Stage, sliders->RxFifoPos);
        TraceOut("%s - IDC_RECEIVE_SLIDER, RxFifoPos:%d, RxFifoPosTranslate:%d\n", __func__,
                 sliders->RxFifoPos, sliders->RxFifoPosTranslate);
        ShowLabel(hDlg, IDC_RECEIVE_HIGH, IDS_HIGH, sliders->RxFifoPosTranslate);
        break;
    case IDC_TRANSMIT_SLIDER:
        sliders->TxFifoPosTranslate = SliderPosition(hDlg, IDC_TRANSMIT_SLIDER);
        TraceOut("%s - IDC_TRANSMIT_SLIDER, TxFifoPosTranslate:%d\n", __func__, sliders->TxFifoPosTranslate);
        ShowLabel(hDlg, IDC_TRANSMIT_HIGH, IDS_HIGH, sliders->TxFifoPosTranslate);
        break;
    }
}

FifoValues _ReadFifoSliders(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders) {
    FifoValues values = {0, 1, 1};
    if (IsDlgButtonChecked(hDlg, IDC_LARGEFIFO) == BST_CHECKED) {
        const auto& stages = sliders.RxFifo4Stage;
        const u32 stage = RxStageOfPosition(stages, SliderPosition(hDlg, IDC_RECEIVE_SLIDER));
        values.UartFifoEnable = 1;
        values.UartTxFifoLowHigh =
            AtLeastOneAtMost(SliderPosition(hDlg, IDC_TRANSMIT_SLIDER), uart.UartTxFifoSize);
        values.UartRxFifoLowHigh = AtLeastOneAtMost(stage, stages[RxFifoStageCount - 1]);
    }
    TraceOut("%s - nFifoEnable:%d\n", __func__, values.UartFifoEnable);
    TraceOut("%s - nTxFifoLowHigh:%d\n", __func__, values.UartTxFifoLowHigh);
    TraceOut("%s - nRxFifoLowHigh:%d\n", __func__, values.UartRxFifoLowHigh);
    return values;
}
