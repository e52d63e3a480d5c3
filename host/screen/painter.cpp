#include "host/screen/painter.h"

#include <algorithm>

#include "host/text.h"

namespace host {
namespace {

// A control's text, with ~ before it if the control is disabled.
std::string Marked(const Control& control, const std::string& text) {
    return control.enabled || text.empty() ? text : '~' + text;
}

Look LookOf(const Control& control) {
    return {control.focused, control.is_default, !control.enabled, 0};
}

int LastOfTrack(const Cells& slider) {
    return std::max(1, slider.columns - 4); // two ends and the mark of a changed one
}

// Where the hot key's letter is in a caption as shown, and how wide it is; -1 if there is none.
std::pair<int, int> HotKeyIn(const std::string& caption) {
    for (std::size_t at = caption.find('&'); at != std::string::npos; at = caption.find('&', at + 2)) {
        if (at + 1 < caption.size() && caption[at + 1] != '&') {
            const int before = Columns(Shown(caption.substr(0, at)));
            std::string_view letter = std::string_view(caption).substr(at + 1);
            return {before, ColumnsOf(TakeUtf8(letter))};
        }
    }
    return {-1, 0};
}

struct Brush {
    Canvas& canvas;
    const Control& control;
    Cells cells;
    const Turned& turned;

    // Writes a caption at the column, as far as there is room.
    void Caption(int column, int columns, const std::string& text) const {
        columns = std::min(columns, Columns(text));
        canvas.Write(cells.top, column, text, columns, LookOf(control));
        const auto [before, wide] = HotKeyIn(control.text);
        if (before >= 0 && control.enabled && before + wide <= columns) {
            canvas.Underline(cells.top, column + before, wide);
        }
    }

    void Point(int column) const {
        if (control.focused) {
            canvas.PointAt(cells.top, column);
        }
    }

    void Label() const {
        auto [hot, wide] = HotKeyIn(control.text);
        int row = cells.top;
        for (const std::string& line : BrokenAt(Marked(control, Shown(control.text)), cells.columns)) {
            if (row == cells.top + cells.rows) {
                break;
            }
            const int columns = Columns(line);
            const int left = cells.left + (control.right_aligned ? cells.columns - columns : 0);
            canvas.Write(row, left, line, columns, LookOf(control));
            if (hot >= 0 && hot < columns && control.enabled) {
                canvas.Underline(row, left + hot, wide);
            }
            hot -= columns + 1; // with the blank at which the line is broken
            ++row;
        }
    }

    void Button() const {
        const std::string text = Marked(control, Shown(control.text));
        const int inside = cells.columns - 2, before = std::max(0, (inside - Columns(text)) / 2);
        const Look look = LookOf(control);
        canvas.Write(cells.top, cells.left, control.is_default ? "<" : "[", cells.columns, look);
        canvas.Write(cells.top, cells.left + cells.columns - 1, control.is_default ? ">" : "]", 1, look);
        Caption(cells.left + 1 + before, inside - before, text);
        Point(cells.left + 1 + before);
    }

    void Check() const {
        const char* const mark = !control.enabled ? "~" : control.changed ? "*" : " ";
        canvas.Write(cells.top, cells.left, std::string(control.checked ? "[x]" : "[ ]") + mark, 4,
                     LookOf(control));
        Caption(cells.left + 4, cells.columns - 4, Shown(control.text));
        Point(cells.left + 1);
    }

    std::string Selected() const {
        const auto selected = static_cast<std::size_t>(control.selection);
        return control.selection >= 0 && selected < control.items.size() ? control.items[selected] : "";
    }

    void Combo() const {
        const int inside = cells.columns - 4;
        canvas.Write(cells.top, cells.left,
                     '[' + PaddedTo(CutTo(Escaped(Marked(control, Selected())), inside), inside) +
                         (control.changed ? "*▾]" : " ▾]"),
                     cells.columns, LookOf(control));
        Point(cells.left + 1);
    }

    void Slider() const {
        const int last = LastOfTrack(cells), range = std::max(1, control.maximum - control.minimum);
        const auto place = [&](int position) {
            return (std::clamp(position - control.minimum, 0, range) * last + range / 2) / range;
        };
        std::vector<const char*> track(static_cast<std::size_t>(last) + 1, control.enabled ? "─" : "~");
        for (int tick = control.minimum; control.ticks && range * 3 <= last && tick <= control.maximum;
             ++tick) {
            track[static_cast<std::size_t>(place(tick))] = "┴";
        }
        track[static_cast<std::size_t>(place(control.position))] = control.enabled ? "█" : "o";
        std::string text = "├";
        for (const char* glyph : track) {
            text += glyph;
        }
        canvas.Write(cells.top, cells.left, text + (control.changed ? "┤*" : "┤ "), cells.columns,
                     LookOf(control));
        Point(cells.left + 1 + place(control.position));
    }

    void Items(const Cells& within) const {
        const int first = FirstInSight(control, within.rows, turned);
        for (int row = 0; row < within.rows; ++row) {
            const auto item = static_cast<std::size_t>(first + row);
            const bool is_there = item < control.items.size();
            const bool selected = is_there && static_cast<int>(item) == control.selection;
            const Look look{selected && control.focused, selected, !control.enabled, 0};
            canvas.Write(within.top + row, within.left,
                         is_there ? (selected ? "> " : "  ") + control.items[item] : "", within.columns,
                         look);
            if (selected && control.focused) {
                canvas.PointAt(within.top + row, within.left);
            }
        }
        MarkMore(canvas, within.top, within.left + within.columns, within.rows, first > 0,
                 first + within.rows < static_cast<int>(control.items.size()));
    }

    void List() const {
        const Look look{false, control.focused, !control.enabled, colour_frame};
        canvas.Frame(cells, control.focused, look);
        if (control.focused) {
            canvas.PointAt(cells.top + 1, cells.left + 1);
        }
        if (control.kind == Kind::List) {
            Items({cells.left + 1, cells.top + 1, cells.columns - 2, cells.rows - 2});
        } else {
            Table();
        }
    }

    void Table() const {
        int left = cells.left + 1;
        const int right = cells.left + cells.columns - 1;
        for (std::size_t column = 0; column < control.columns.size() && left < right; ++column) {
            const bool last = column + 1 == control.columns.size();
            const int wide =
                last ? right - left : std::min(ColumnsForTableColumn(control, column), right - left);
            canvas.Write(cells.top + 1, left, Marked(control, control.columns[column].title), wide,
                         {false, true, false, 0});
            for (int row = 0; row < cells.rows - 3; ++row) {
                const auto at = static_cast<std::size_t>(row);
                canvas.Write(cells.top + 2 + row, left,
                             at < control.rows.size() ? control.rows[at][column] : "", wide);
            }
            left += wide;
            for (int row = cells.top + 1; !last && row < cells.top + cells.rows - 1; ++row) {
                canvas.Write(row, left, "│", 1, {false, false, false, colour_frame});
            }
            ++left;
        }
        MarkMore(canvas, cells.top + 2, right, cells.rows - 3, false,
                 static_cast<int>(control.rows.size()) > cells.rows - 3);
    }

    void Group() const {
        canvas.Frame(cells, false, {false, false, !control.enabled, colour_frame});
        Caption(cells.left + 2, cells.columns - 4, Marked(control, Shown(control.text)));
        Point(cells.left + 2);
    }

    void Paint() const {
        switch (control.kind) {
        case Kind::Group:
            return Group();
        case Kind::Label:
            return Label();
        case Kind::Button:
            return Button();
        case Kind::Check:
            return Check();
        case Kind::Combo:
            return Combo();
        case Kind::List:
        case Kind::Table:
            return List();
        case Kind::Slider:
            return Slider();
        }
    }
};

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

int FirstInSight(const Control& list, int rows, const Turned& turned) {
    const int all = static_cast<int>(list.items.size()), most = std::max(0, all - rows);
    const auto by_hand = turned.find(list.window);
    return std::clamp(by_hand != turned.end() ? by_hand->second : list.selection - rows / 2, 0, most);
}

int PositionAt(const Control& slider, const Cells& cells, int column) {
    const int last = LastOfTrack(cells), range = slider.maximum - slider.minimum;
    return slider.minimum + (std::clamp(column - cells.left - 1, 0, last) * range + last / 2) / last;
}

void MarkMore(Canvas& canvas, int row, int column, int rows, bool before, bool after) {
    if (before && rows > 0) {
        canvas.Write(row, column, "^", 1, {false, true});
    }
    if (after && rows > 0) {
        canvas.Write(row + rows - 1, column, "v", 1, {false, true});
    }
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
        Brush{whole, *placed.control, placed.cells, turned}.Paint();
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
            Brush{canvas, *placed.control, list, turned}.Items(
                {list.left + 1, list.top + 1, list.columns - 2, list.rows - 2});
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
