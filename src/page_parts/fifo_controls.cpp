#include "page_parts/fifo_controls.h"

#include "page_parts/label_text.h"
#include "resources/resource_ids.h"

namespace {

constexpr int FifoControls[] = {
    IDC_TRANSMIT_SLIDER, IDC_TRANSMIT_LOW, IDC_TRANSMIT_HIGH, IDC_TRANSMIT_CAPTION,
    IDC_RECEIVE_SLIDER,  IDC_RECEIVE_LOW,  IDC_RECEIVE_HIGH,  IDC_RECEIVE_CAPTION,
};

u32 SliderPosition(HWND hDlg, int slider) {
    return static_cast<u32>(SendDlgItemMessageW(hDlg, slider, TBM_GETPOS, 0, 0));
}

u32 AtLeastOneAtMost(u32 level, u32 bound) {
    const u32 raised = level == 0 ? 1 : level;
    return raised > bound ? bound : raised;
}

} // namespace

void RememberFifoPositions(const UartBasicInfo& uart, FifoSliders* sliders) {
    const bool fifoEnable = uart.UartFifoEnable != 0;
    sliders->TxFifoPosTranslate = fifoEnable ? uart.UartTxFifoLowHigh : 1;
    sliders->RxFifoPos = RxPositionOfTrigger(sliders->RxFifo4Stage, uart.UartRxFifoLowHigh, fifoEnable);
    sliders->RxFifoPosTranslate = RxStageOfPosition(sliders->RxFifo4Stage, sliders->RxFifoPos);
}

void _EnableFifoControls(HWND hDlg, BOOL enable) {
    TraceScope trace;
    for (const int control : FifoControls) {
        EnableWindow(GetDlgItem(hDlg, control), enable);
    }
}

void ShowFifoCheckBox(HWND hDlg, bool checked) {
    EnableWindow(GetDlgItem(hDlg, IDC_LARGEFIFO), TRUE);
    CheckDlgButton(hDlg, IDC_LARGEFIFO, checked ? BST_CHECKED : BST_UNCHECKED);
}

void ShowFifoLabel(HWND hDlg, int label, UINT stringId, u32 value) {
    _SetTextFromString(GetDlgItem(hDlg, label), stringId, value);
}

void SetFifoSliderRange(HWND hDlg, int slider, u32 highest) {
    SendDlgItemMessageW(hDlg, slider, TBM_SETRANGE, TRUE, MAKELPARAM(1, highest));
}

void PutFifoSlider(HWND hDlg, int slider, u32 position) {
    SendDlgItemMessageW(hDlg, slider, TBM_SETPOS, TRUE, static_cast<LPARAM>(position));
}

void PutTransmitSlider(HWND hDlg, u32 position) {
    PutFifoSlider(hDlg, IDC_TRANSMIT_SLIDER, position);
    ShowFifoLabel(hDlg, IDC_TRANSMIT_HIGH, IDS_HIGH, position);
}

void PutReceiveSlider(HWND hDlg, u32 position, u32 level) {
    PutFifoSlider(hDlg, IDC_RECEIVE_SLIDER, position);
    ShowFifoLabel(hDlg, IDC_RECEIVE_HIGH, IDS_HIGH, level);
}

void FollowFifoCheckBox(HWND hDlg, FifoSliders* sliders) {
    const bool checked = IsDlgButtonChecked(hDlg, IDC_LARGEFIFO) == BST_CHECKED;
    if (checked) {
        TraceOut("%s - FifoEnable CHECKED, RxFifoPos:%d, TxFifoPosTranslate:%d\n", TraceOperation(),
                 sliders->RxFifoPos, sliders->TxFifoPosTranslate);
        PutTransmitSlider(hDlg, sliders->TxFifoPosTranslate);
        sliders->RxFifoPosTranslate = RxStageOfPosition(sliders->RxFifo4Stage, sliders->RxFifoPos);
        PutReceiveSlider(hDlg, sliders->RxFifoPos, sliders->RxFifoPosTranslate);
    } else {
        TraceOut("%s - FifoEnable UNCHECKED\n", TraceOperation());
        PutTransmitSlider(hDlg, 1);
        PutReceiveSlider(hDlg, 1, 1);
    }
    _EnableFifoControls(hDlg, checked);
}

void FollowFifoSlider(HWND hDlg, HWND slider, FifoSliders* sliders) {
    switch (GetDlgCtrlID(slider)) {
    case IDC_RECEIVE_SLIDER:
        sliders->RxFifoPos = SliderPosition(hDlg, IDC_RECEIVE_SLIDER);
        sliders->RxFifoPosTranslate = RxStageOfPosition(sliders->RxFifo4Stage, sliders->RxFifoPos);
        TraceOut("%s - IDC_RECEIVE_SLIDER, RxFifoPos:%d, RxFifoPosTranslate:%d\n", TraceOperation(),
                 sliders->RxFifoPos, sliders->RxFifoPosTranslate);
        ShowFifoLabel(hDlg, IDC_RECEIVE_HIGH, IDS_HIGH, sliders->RxFifoPosTranslate);
        break;
    case IDC_TRANSMIT_SLIDER:
        sliders->TxFifoPosTranslate = SliderPosition(hDlg, IDC_TRANSMIT_SLIDER);
        TraceOut("%s - IDC_TRANSMIT_SLIDER, TxFifoPosTranslate:%d\n", TraceOperation(),
                 sliders->TxFifoPosTranslate);
        ShowFifoLabel(hDlg, IDC_TRANSMIT_HIGH, IDS_HIGH, sliders->TxFifoPosTranslate);
        break;
    }
}

FifoValues _ReadFifoSliders(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders) {
    TraceScope trace;
    FifoValues values = {0, 1, 1};
    if (IsDlgButtonChecked(hDlg, IDC_LARGEFIFO) == BST_CHECKED) {
        const auto& stages = sliders.RxFifo4Stage;
        const u32 transmit = SliderPosition(hDlg, IDC_TRANSMIT_SLIDER);
        const u32 receive = SliderPosition(hDlg, IDC_RECEIVE_SLIDER);
        values.UartFifoEnable = 1;
        values.UartTxFifoLowHigh = AtLeastOneAtMost(transmit, uart.UartTxFifoSize);
        values.UartRxFifoLowHigh =
            AtLeastOneAtMost(RxStageOfPosition(stages, receive), stages[RxFifoStageCount - 1]);
    }
    return values;
}

void TraceFifoValues(const FifoValues& values) {
    TraceOut("%s - nFifoEnable:%d\n", TraceOperation(), values.UartFifoEnable);
    TraceOut("%s - nTxFifoLowHigh:%d\n", TraceOperation(), values.UartTxFifoLowHigh);
    TraceOut("%s - nRxFifoLowHigh:%d\n", TraceOperation(), values.UartRxFifoLowHigh);
}
