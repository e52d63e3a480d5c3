// Paints a window: its frame, its controls at their places, and the open list over them. Everything that a
// look tells is told by a character too: > stands before the focus, ~ before what is disabled, * after what
// is changed.
#pragma once

#include <string>
#include <vector>

#include "host/screen/control_painter.h"
#include "host/screen/placement.h"

namespace host {

// A window as it was last painted. It decides what a click means.
struct Painted {
    Window window;
    Placement placement; // of that record
    Cells place; // on the canvas; what is between head and foot scrolls if it is smaller than the window
    int right = 0, down = 0; // how far that has scrolled
    Cells open_list;         // on the canvas; no columns if no list is open

    // Where a control is on the canvas, in sight or not.
    Cells On(const Placed& placed) const;
    // Whether a cell of the canvas shows the control.
    bool Shows(const Placed& placed, int column, int row) const;
};

// The window must be placed; the focus is scrolled into sight.
void Paint(Canvas& canvas, Painted& painted, bool front, const Turned& turned);

// A window as rows of text, without its focus, which only a keyboard needs.
std::vector<std::string> Picture(Window window, int columns, Charset charset);

} // namespace host
