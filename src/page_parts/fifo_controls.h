// The FIFO controls that the Port Control page and the Advanced Port Settings dialog share, on the same
// numbers: the check box, and a slider with three labels for each direction. What their values are written to
// is the dialogs' own.
//
// The receive slider stands at a stage, 1 to 4; the transmit slider at the trigger level itself, 1 to the
// depth of the FIFO. A high label shows the level that its slider stands at.
#pragma once

#include "device_model/board_params.h"

// What the controls say: the check box, and two trigger levels in bytes; 0, 1, 1 with the box unchecked.
struct FifoValues {
    u32 UartFifoEnable;
    u32 UartTxFifoLowHigh;
    u32 UartRxFifoLowHigh;
};

// Enables or disables both sliders with their labels.
void _EnableFifoControls(HWND hDlg, BOOL enable);

// The two low labels, which always show 1.
void ShowFifoLowLabels(HWND hDlg);
// All four labels at 1, with the sliders left alone.
void ShowFifoLabelsAtOne(HWND hDlg);

// Shows a UART's stored or pending settings: the check box enabled and checked, ranges, positions and high
// labels, the sliders enabled with the box. `sliders` takes the positions; its stages must be set.
void ShowFifoSettings(HWND hDlg, const UartBasicInfo& uart, FifoSliders* sliders);

// Shows the defaults: FIFO on, both sliders at their tops. The positions in `sliders` stay as they are.
void ShowFifoDefaults(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders);

// After a click on the check box: the sliders go to the remembered positions, or to 1 with their positions
// remembered.
void FifoEnableClicked(HWND hDlg, FifoSliders* sliders);

// After a slider has moved, WM_HSCROLL: its position is taken over and its high label follows. Nothing for a
// control that is none of the two.
void FifoSliderMoved(HWND hDlg, HWND slider, FifoSliders* sliders);

// The one way from the controls to values: each trigger level raised to 1 and lowered to its bound, the
// transmit FIFO's depth or the highest receive stage.
FifoValues _ReadFifoSliders(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders);
