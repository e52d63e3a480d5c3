// The FIFO controls that the Port Control page and the Advanced Port Settings dialog share, with the same
// numbers: the check box, and for each direction a slider with three labels. Each dialog decides where the
// values go.
//
// The position of the receive slider is a stage, 1 to 4. That of the transmit slider is the trigger level
// itself, 1 to the depth of the FIFO. A high label shows the level at which its slider stands.
#pragma once

#include "page_parts/fifo_values.h"
#include "reporting/trace.h"

// Sets the slider positions for a UART's values. The stages must be set.
void RememberFifoPositions(const UartBasicInfo& uart, FifoSliders* sliders);

// Enables or disables both sliders with their labels.
void _EnableFifoControls(HWND hDlg, BOOL enable);

// Enables the check box and checks or unchecks it.
void ShowFifoCheckBox(HWND hDlg, bool checked);

// Shows a number on one of the four labels, in the text IDS_LOW or IDS_HIGH.
void ShowFifoLabel(HWND hDlg, int label, UINT stringId, u32 value);

// Sets the range of a slider to 1 to `highest`, of which only the low 16 bits count.
void SetFifoSliderRange(HWND hDlg, int slider, u32 highest);

// Moves a slider to a position and leaves its label alone.
void PutFifoSlider(HWND hDlg, int slider, u32 position);

// Move a slider to a position and show its trigger level on the high label.
void PutTransmitSlider(HWND hDlg, u32 position);
void PutReceiveSlider(HWND hDlg, u32 position, u32 level);

// Makes the sliders follow a click on the check box: to the remembered positions, or to 1. The remembered
// positions stay.
void FollowFifoCheckBox(HWND hDlg, FifoSliders* sliders);

// Remembers the position of a slider that has moved, and shows its level on the high label. Any other control
// is ignored.
void FollowFifoSlider(HWND hDlg, HWND slider, FifoSliders* sliders);

// Reads the values from the controls. Each trigger level is raised to at least 1 and lowered to its bound,
// which is the depth of the transmit FIFO or the highest receive stage.
FifoValues _ReadFifoSliders(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders);

// Traces the values that were read.
void TraceFifoValues(const FifoValues& values);
