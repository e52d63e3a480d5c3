// Where each part of a window is on a screen of characters: as far apart as the screen allows, and as close
// as possible on a small one. Rows stay rows, columns stay columns, and the order is the window's own.
#pragma once

#include <string>
#include <vector>

#include "host/screen/canvas.h"
#include "host/screen/screen.h"

namespace host {

// On a smaller terminal nothing can be operated.
constexpr int fewest_columns = 40, fewest_rows = 10;

struct Placed {
    const Control* control = nullptr;
    Cells cells; // within the window
};

struct Placement {
    int columns = 0, rows = 0;     // with the window's frame, which is one cell wide
    int head = 1, foot = 1;        // the rows at the top and the bottom that do not scroll
    std::vector<Placed> controls;  // groups before the controls in them
    std::vector<std::string> text; // of a message box, below its head
};

// The fewest columns that show all of a control; `close` if there is no room for spacing.
int ColumnsFor(const Control& control, bool close = false);
int ColumnsForTableColumn(const Control& table, std::size_t column);

// Places a window within that many columns and rows. If even the closest placing needs more, that one is
// returned, with the controls of its head and foot within these columns. The window must outlive it.
Placement PlaceWindow(const Window& window, int columns, int rows);

} // namespace host
