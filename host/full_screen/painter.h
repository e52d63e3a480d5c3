// A window on the terminal: its frame, its controls at their places, and what its open list covers.
#pragma once

#include <map>

#include "host/full_screen/placement.h"
#include "host/full_screen/terminal.h"

namespace host {

// A window as it was painted last: what a click means.
struct Painted {
    Window window;
    Placement placement;   // of that record
    int left = 0, top = 0; // of the window on the terminal
    Cells open_list;       // on the terminal; no columns if no list is open
};

// The first item in sight of each list that was turned by hand.
using Turned = std::map<HWND, int>;

// The first item in sight: the one to which the list was turned, or so that the selected one can be seen.
int FirstInSight(const Control& list, int rows, const Turned& turned);

void Paint(Terminal& terminal, Painted& painted, bool front, const Turned& turned);

} // namespace host
