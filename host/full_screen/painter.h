// A window on the terminal: its frame, its controls at their places, and the open list over them.
#pragma once

#include <map>

#include "host/full_screen/placement.h"
#include "host/full_screen/terminal.h"

namespace host {

// A window as it was last painted. It decides what a click means.
struct Painted {
    Window window;
    Placement placement;   // of that record
    int left = 0, top = 0; // of the window on the terminal
    Cells open_list;       // on the terminal; no columns if no list is open
};

// The first visible item of each list that was scrolled by hand.
using Turned = std::map<HWND, int>;

// The first visible item: the one that the list was scrolled to, or one that keeps the selection in sight.
int FirstInSight(const Control& list, int rows, const Turned& turned);

void Paint(Terminal& terminal, Painted& painted, bool front, const Turned& turned);

} // namespace host
