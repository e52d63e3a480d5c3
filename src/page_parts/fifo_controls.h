// The FIFO controls that the Port Control page and the Advanced Port Settings dialog share, on the same
// numbers: the check box, and a slider with three labels for each direction. What their values are written to
// is the dialogs' own.
//
// The receive slider stands at a stage, 1 to 4; the transmit slider at the trigger level itself, 1 to the
// depth of the FIFO. A high label shows the level that its slider stands at.
#pragma once

#include "page_parts/fifo_values.h"
#include "reporting/trace.h"

// The slider positions that show a UART's stored or pending values; the stages must be set.
void RememberFifoPositions(const UartBasicInfo& uart, FifoSliders* sliders);

// Enables or disables both sliders with their labels.
void _EnableFifoControls(HWND hDlg, BOOL enable);

// The check box enabled, and checked or not.
void ShowFifoCheckBox(HWND hDlg, bool checked);

// One of the four labels with a number, from IDS_LOW or IDS_HIGH.
void ShowFifoLabel(HWND hDlg, int label, UINT stringId, u32 value);

// A slider's range, 1 to `highest`, which travels in 16 bits.
void SetFifoSliderRange(HWND hDlg, int slider, u32 highest);

// A slider at a position; its label stays.
void PutFifoSlider(HWND hDlg, int slider, u32 position);

// A slider at a position with its high label at the trigger level.
void PutTransmitSlider(HWND hDlg, u32 position);
void PutReceiveSlider(HWND hDlg, u32 position, u32 level);

// After a click on the check box: the sliders go to the remembered positions, or to 1 with their positions
// remembered.
void FollowFifoCheckBox(HWND hDlg, FifoSliders* sliders, TraceName function = __builtin_FUNCTION());

// After a slider has moved, WM_HSCROLL: its position is remembered and its high label follows. Nothing for a
// control that is none of the two.
void FollowFifoSlider(HWND hDlg, HWND slider, FifoSliders* sliders,
                      TraceName function = __builtin_FUNCTION());

// The one way from the controls to values: each trigger level raised to 1 and lowered to its bound, the
// transmit FIFO's depth or the highest receive stage.
FifoValues _ReadFifoSliders(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders);

// The lines of what was read.
void TraceFifoValues(const FifoValues& values, TraceName function = __builtin_FUNCTION());
