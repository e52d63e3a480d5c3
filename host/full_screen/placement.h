// Where each part of a window is on a screen of characters: as far apart as the screen allows, and as close
// as possible on a small one. Rows stay rows, columns stay columns, and the order is the window's own.
#pragma once

#include <string>
#include <vector>

#include "host/screen/screen.h"

namespace host {

// A rectangle of character cells.
struct Cells {
    int left = 0, top = 0, columns = 0, rows = 0;
    bool Has(int column, int row) const {
        return column >= left && column < left + columns && row >= top && row < top + rows;
    }
};

struct Placed {
    const Control* control = nullptr;
    Cells cells; // within the window
};

struct Placement {
    int columns = 0, rows = 0;     // with the window's frame, which is one cell wide
    std::vector<Placed> controls;  // groups before the controls in them
    std::vector<std::string> text; // of a message box, from the second row on
};

// The fewest columns that show all of a control; `close` if there is no room for spacing.
int ColumnsFor(const Control& control, bool close = false);
int ColumnsForTableColumn(const Control& table, std::size_t column);

// Places a window within that many columns and rows. If even the closest placing needs more, that one is
// returned. The window must outlive it.
Placement PlaceWindow(const Window& window, int columns, int rows);

} // namespace host
