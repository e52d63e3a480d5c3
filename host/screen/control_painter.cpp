#include "host/screen/control_painter.h"

#include <algorithm>

#include "host/screen/placement.h"
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

    void Combo() const {
        const int inside = cells.columns - 4;
        canvas.Write(cells.top, cells.left,
                     '[' + PaddedTo(CutTo(Escaped(Marked(control, SelectedItem(control))), inside), inside) +
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

    void List() const {
        const Look look{false, control.focused, !control.enabled, colour_frame};
        canvas.Frame(cells, control.focused, look);
        if (control.focused) {
            canvas.PointAt(cells.top + 1, cells.left + 1);
        }
        if (control.kind == Kind::List) {
            PaintItems(canvas, control, {cells.left + 1, cells.top + 1, cells.columns - 2, cells.rows - 2},
                       turned);
        } else {
            Table();
        }
    }

    void Table() const {
        const int rows = RowsIn(control, cells), first = FirstInSight(control, rows, turned);
        int left = cells.left + 1;
        const int right = cells.left + cells.columns - 1;
        for (std::size_t column = 0; column < control.columns.size() && left < right; ++column) {
            const bool last = column + 1 == control.columns.size();
            const int wide =
                last ? right - left : std::min(ColumnsForTableColumn(control, column), right - left);
            canvas.Write(cells.top + 1, left, Marked(control, control.columns[column].title), wide,
                         {false, true, false, 0});
            for (int row = 0; row < rows; ++row) {
                const auto at = static_cast<std::size_t>(first + row);
                canvas.Write(cells.top + 2 + row, left,
                             at < control.rows.size() ? control.rows[at][column] : "", wide);
            }
            left += wide;
            for (int row = cells.top + 1; !last && row < cells.top + cells.rows - 1; ++row) {
                canvas.Write(row, left, "│", 1, {false, false, false, colour_frame});
            }
            ++left;
        }
        MarkMore(canvas, cells.top + 2, right, rows, first > 0,
                 first + rows < static_cast<int>(control.rows.size()));
    }

    void Group() const {
        canvas.Frame(cells, false, {false, false, !control.enabled, colour_frame});
        Caption(cells.left + 2, cells.columns - 4, Marked(control, Shown(control.text)));
        Point(cells.left + 2);
    }
};

} // namespace

int RowsIn(const Control& list, const Cells& cells) {
    return cells.rows - (list.kind == Kind::Table ? 3 : 2);
}

int FirstInSight(const Control& list, int rows, const Turned& turned) {
    const int all = static_cast<int>(list.items.size() + list.rows.size()), most = std::max(0, all - rows);
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

void PaintItems(Canvas& canvas, const Control& control, const Cells& within, const Turned& turned) {
    const int first = FirstInSight(control, within.rows, turned);
    for (int row = 0; row < within.rows; ++row) {
        const auto item = static_cast<std::size_t>(first + row);
        const bool is_there = item < control.items.size();
        const bool selected = is_there && static_cast<int>(item) == control.selection;
        const Look look{selected && control.focused, selected, !control.enabled, 0};
        canvas.Write(within.top + row, within.left,
                     is_there ? (selected ? "> " : "  ") + control.items[item] : "", within.columns, look);
        if (selected && control.focused) {
            canvas.PointAt(within.top + row, within.left);
        }
    }
    MarkMore(canvas, within.top, within.left + within.columns, within.rows, first > 0,
             first + within.rows < static_cast<int>(control.items.size()));
}

void PaintControl(Canvas& canvas, const Control& control, const Cells& cells, const Turned& turned) {
    const Brush brush{canvas, control, cells, turned};
    switch (control.kind) {
    case Kind::Group:
        return brush.Group();
    case Kind::Label:
        return brush.Label();
    case Kind::Button:
        return brush.Button();
    case Kind::Check:
        return brush.Check();
    case Kind::Combo:
        return brush.Combo();
    case Kind::List:
    case Kind::Table:
        return brush.List();
    case Kind::Slider:
        return brush.Slider();
    }
}

} // namespace host
