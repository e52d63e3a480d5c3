// What the mouse does to the window in front.
#include <algorithm>

#include "host/full_screen/full_screen.h"
#include "host/screen/hand.h"

namespace host {

void FullScreen::TakeClick(const Event& event) {
    for (const Placed& placed : front_.placement.controls) {
        if (placed.control->dropped && front_.open_list.Has(event.column, event.row)) {
            return TakeListClick(*placed.control, event.row - front_.open_list.top - 1,
                                 front_.open_list.rows - 2);
        }
    }
    for (const Placed& placed : front_.placement.controls) {
        const Control& control = *placed.control;
        const Cells cells = front_.On(placed);
        if (!control.enabled || !front_.Shows(placed, event.column, event.row) ||
            control.kind == Kind::Label || control.kind == Kind::Group) {
            continue;
        }
        if (control.kind == Kind::Button || control.kind == Kind::Check) {
            return Click(control);
        }
        FocusOn(front_.window, control);
        if (control.kind == Kind::Combo) {
            SendMessageW(control.window, CB_SHOWDROPDOWN, control.dropped ? FALSE : TRUE, 0);
        } else if (control.kind == Kind::List) {
            TakeListClick(control, event.row - cells.top - 1, cells.rows - 2);
        } else if (control.kind == Kind::Slider) {
            dragged_ = control.window;
            Drag(event.column);
        }
        return;
    }
}

void FullScreen::TakeListClick(const Control& list, int row, int rows) {
    const int item = FirstInSight(list, rows, turned_) + row;
    if (row >= 0 && row < rows && item < static_cast<int>(list.items.size())) {
        turned_[list.window] = item - row; // the list stays where it was clicked
        Pick(list, '#' + std::to_string(item));
        if (list.kind == Kind::Combo) {
            SendMessageW(list.window, CB_SHOWDROPDOWN, FALSE, 0);
        }
    }
}

// Moves the slider in hand to where the mouse is.
void FullScreen::Drag(int column) {
    for (const Placed& placed : front_.placement.controls) {
        const Control& slider = *placed.control;
        if (slider.window == dragged_ && slider.kind == Kind::Slider && slider.enabled) {
            Slide(slider, PositionAt(slider, front_.On(placed), column));
        }
    }
}

void FullScreen::TakeWheel(const Event& event) {
    for (const Placed& placed : front_.placement.controls) {
        const Control& list = *placed.control;
        const Cells cells = list.dropped ? front_.open_list : front_.On(placed);
        const bool at_it =
            list.dropped ? cells.Has(event.column, event.row) : front_.Shows(placed, event.column, event.row);
        if ((list.kind == Kind::List || list.kind == Kind::Table || list.dropped) && at_it) {
            const int step = event.kind == Event::Kind::WheelUp ? -wheel_step : wheel_step;
            const int first = FirstInSight(list, RowsIn(list, cells), turned_);
            turned_[list.window] = first + step;
            turned_[list.window] = FirstInSight(list, RowsIn(list, cells), turned_);
            return;
        }
    }
}

} // namespace host
