// Paints one control into its cells.
#pragma once

#include <map>

#include "host/screen/canvas.h"
#include "host/screen/screen.h"

namespace host {

// The first visible row of each list and table, and the first line of a message box, that was scrolled by
// hand.
using Turned = std::map<HWND, int>;

// How many rows a list or table shows in its cells.
int RowsIn(const Control& list, const Cells& cells);

// The first visible one: that to which the list was scrolled, or one that keeps the selection in sight.
int FirstInSight(const Control& list, int rows, const Turned& turned);

// The position that a slider would have with its knob in that column.
int PositionAt(const Control& slider, const Cells& cells, int column);

// Tells beside `rows` rows which begin at that place that there is more before or after them.
void MarkMore(Canvas& canvas, int row, int column, int rows, bool before, bool after);

void PaintControl(Canvas& canvas, const Control& control, const Cells& cells, const Turned& turned);
// The items of a list or combo, without a frame.
void PaintItems(Canvas& canvas, const Control& control, const Cells& within, const Turned& turned);

} // namespace host
