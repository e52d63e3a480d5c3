// Where everything of a window stands on a screen of characters: as far apart as the screen allows, and on a
// small one as close as can be. Rows stay rows, columns stay columns, and the order is the window's own.
#pragma once

#include <string>
#include <vector>

#include "host/screen/screen.h"

namespace host {

// Columns and rows of cells.
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
    std::vector<Placed> controls;  // groups before what stands in them
    std::vector<std::string> text; // of a message box, from the second row on
};

// The fewest columns that show all of a control; `close` if there is no room for a good look.
int ColumnsFor(const Control& control, bool close = false);
int ColumnsForTableColumn(const Control& table, std::size_t column);

// Within that many columns and rows; if even the closest placing needs more, that one. The window must
// outlive it.
Placement Place(const Window& window, int columns, int rows);

} // namespace host
