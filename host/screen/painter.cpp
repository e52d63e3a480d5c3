#include "host/screen/painter.h"

#include <algorithm>

#include "host/text.h"

namespace host {
namespace {

// The cells of a combo's list: below it, or above it if there is more room.
Cells ListOf(const Canvas& canvas, const Control& combo, const Cells& cells) {
    const int items = std::max<int>(1, static_cast<int>(combo.items.size()));
    const int below = canvas.rows() - 2 - cells.top, above = cells.top - 1;
    const bool upwards = below < std::min(items + 2, 6) && above > below;
    const int rows = std::min({items + 2, upwards ? above : below, 14});
    return {std::max(0, std::min(cells.left, canvas.columns() - cells.columns)),
            upwards ? cells.top - rows : cells.top + 1, cells.columns, rows};
}

// How far to scroll until a stretch of cells is in sight, or if it is too long, one cell of it.
int ScrollTo(int from, int length, int point, int view, int all) {
    view = std::max(1, view);
    int scrolled = std::min(std::max(0, from + length - view), from);
    scrolled = std::clamp(scrolled, point - view + 1, point);
    return std::clamp(scrolled, 0, std::max(0, all - view));
}

void PaintFrame(Canvas& canvas, const Painted& painted, bool front) {
    const Window& window = painted.window;
    const Cells& all = painted.place;
    for (int row = 0; row < all.rows; ++row) {
        canvas.Write(all.top + row, all.left, "", all.columns);
    }
    canvas.Frame(all, front, {false, front, !front, colour_frame});
    const auto write = [&](int row, const std::string& text, const Look& look) {
        const int columns = std::min(Columns(Escaped(text)), all.columns - 6);
        canvas.Write(row, all.left + 2, ' ' + CutTo(Escaped(text), columns) + ' ', columns + 2, look);
    };
    write(all.top, window.title, {front, front, !front, front ? colour_title : 0});
    if (window.kind == WindowKind::Sheet) {
        write(all.top + 1, window.page, {window.page_focused, true, false, 0});
        if (window.page_focused) {
            canvas.Write(all.top + 1, all.left + 2, ">", 1);
            canvas.PointAt(all.top + 1, all.left + 3);
        }
    }
}

} // namespace

Cells Painted::On(const Placed& placed) const {
    const auto& [left, top, columns, rows] = placed.cells;
    if (top >= placement.rows - placement.foot) {
        return {place.left + left, place.top + place.rows - (placement.rows - top), columns, rows};
    }
    return {place.left + left - right, place.top + top - down, columns, rows};
}

bool Painted::Shows(const Placed& placed, int column, int row) const {
    const bool in_foot = placed.cells.top >= placement.rows - placement.foot;
    const Cells middle{place.left + 1, place.top + placement.head, place.columns - 2,
                       place.rows - placement.head - placement.foot};
    return On(placed).Has(column, row) && (in_foot || middle.Has(column, row));
}

void Paint(Canvas& canvas, Painted& painted, bool front, const Turned& turned) {
    const Placement& placement = painted.placement;
    const Cells& all = painted.place;
    PaintFrame(canvas, painted, front);
    Canvas whole(placement.columns, placement.rows); // of which a part is in sight
    for (std::size_t line = 0; line < placement.text.size(); ++line) {
        whole.Write(placement.head + static_cast<int>(line), 2, placement.text[line], placement.columns - 4);
    }
    const Placed* focus = nullptr;
    for (const Placed& placed : placement.controls) {
        PaintControl(whole, *placed.control, placed.cells, turned);
        focus = placed.control->focused ? &placed : focus;
    }
    const int first = placement.head, end = placement.rows - placement.foot;
    const int columns = all.columns - 2, rows = all.rows - placement.head - placement.foot;
    const auto turned_to = turned.find(painted.window.handle);
    painted.right = 0;
    painted.down =
        turned_to == turned.end() ? 0 : std::clamp(turned_to->second, 0, std::max(0, end - first - rows));
    if (focus != nullptr && focus->cells.top < end && whole.cursor()) {
        const Cells& cells = focus->cells;
        painted.right = ScrollTo(cells.left - 1, cells.columns, whole.cursor()->column - 1, columns,
                                 placement.columns - 2);
        painted.down =
            ScrollTo(cells.top - first, cells.rows, whole.cursor()->row - first, rows, end - first);
    }
    canvas.Lay(all.top + first, all.left + 1, whole,
               {1 + painted.right, first + painted.down, columns, rows});
    canvas.Lay(all.top + all.rows - placement.foot, all.left + 1, whole,
               {1, end, columns, placement.foot - 1});
    MarkMore(canvas, all.top + first, all.left + all.columns - 1, rows, painted.down > 0,
             painted.down + rows < end - first);
    const int last_row = all.top + all.rows - 1;
    if (painted.right > 0) {
        canvas.Write(last_row, all.left + 1, "<", 1, {false, true});
    }
    if (painted.right + columns < placement.columns - 2) {
        canvas.Write(last_row, all.left + all.columns - 2, ">", 1, {false, true});
    }
    if (focus != nullptr && canvas.cursor()) {
        canvas.Write(canvas.cursor()->row, std::max(all.left, painted.On(*focus).left - 1), ">", 1,
                     {false, true});
    }
    painted.open_list = {};
    for (const Placed& placed : placement.controls) { // above everything else
        if (placed.control->dropped) {
            painted.open_list = ListOf(canvas, *placed.control, painted.On(placed));
            const Cells& list = painted.open_list;
            canvas.Frame(list, false, {false, true, false, colour_frame});
            PaintItems(canvas, *placed.control,
                       {list.left + 1, list.top + 1, list.columns - 2, list.rows - 2}, turned);
        }
    }
}

std::vector<std::string> Picture(Window window, int columns, Charset charset) {
    constexpr int rows = 24; // at most, if the window can be placed so
    window.page_focused = false;
    bool disabled = false, changed = false;
    for (Control& control : window.controls) {
        control.focused = false;
        disabled = disabled || !control.enabled;
        changed = changed || control.changed;
    }
    Painted painted;
    painted.window = std::move(window);
    painted.placement = PlaceWindow(painted.window, columns, rows);
    painted.place = {0, 0, std::min(columns, painted.placement.columns), painted.placement.rows};
    Canvas canvas(painted.place.columns, painted.place.rows);
    Paint(canvas, painted, true, {});
    std::vector<std::string> lines = canvas.Lines(charset);
    if (disabled || changed) {
        lines.push_back(std::string(disabled ? "~ disabled" : "") + (disabled && changed ? ", " : "") +
                        (changed ? "* not stored" : ""));
    }
    return lines;
}

} // namespace host
