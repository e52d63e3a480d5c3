#include "host/full_screen/painter.h"

#include <algorithm>

#include "host/screen/drawing.h"
#include "host/text.h"

namespace host {
namespace {

std::string Repeated(const char* glyph, int times) {
    std::string text;
    for (int time = 0; time < times; ++time) {
        text += glyph;
    }
    return text;
}

constexpr const char* single_line[] = {"┌", "─", "┐", "│", "└", "┘"};
constexpr const char* double_line[] = {"╔", "═", "╗", "║", "╚", "╝"};

void Frame(Terminal& terminal, const Cells& cells, bool doubled, const Look& look) {
    const auto& line = doubled ? double_line : single_line;
    const int bottom = cells.top + cells.rows - 1, right = cells.left + cells.columns - 1;
    const std::string across = Repeated(line[1], cells.columns - 2);
    terminal.Write(cells.top, cells.left, line[0] + across + line[2], cells.columns, look);
    for (int row = cells.top + 1; row < bottom; ++row) {
        terminal.Write(row, cells.left, line[3], 1, look);
        terminal.Write(row, right, line[3], 1, look);
    }
    terminal.Write(bottom, cells.left, line[4] + across + line[5], cells.columns, look);
}

Look LookOf(const Control& control) {
    return {control.focused, control.is_default, !control.enabled, 0};
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
    Terminal& terminal;
    const Control& control;
    Cells cells; // on the terminal
    const Turned& turned;

    // Writes a caption at the column, as far as there is room.
    void Caption(int column, int columns, const Look& look) const {
        terminal.Write(cells.top, column, Marked(control, Shown(control.text)), columns, look);
        const auto [before, wide] = HotKeyIn(control.text);
        if (before >= 0 && control.enabled && before + wide <= columns) {
            terminal.Underline(cells.top, column + before, wide);
        }
    }

    void Point(int column) const {
        if (control.focused) {
            terminal.PointAt(cells.top, column);
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
            terminal.Write(row, left, line, columns, LookOf(control));
            if (hot >= 0 && hot < columns && control.enabled) {
                terminal.Underline(row, left + hot, wide);
            }
            hot -= columns + 1; // with the blank at which the line is broken
            ++row;
        }
    }

    void Button() const {
        const int wide = Columns(Marked(control, Shown(control.text)));
        const int inside = cells.columns - 2, before = std::max(0, (inside - wide) / 2);
        const Look look = LookOf(control);
        terminal.Write(cells.top, cells.left, control.is_default ? "<" : "[", cells.columns, look);
        terminal.Write(cells.top, cells.left + cells.columns - 1, control.is_default ? ">" : "]", 1, look);
        Caption(cells.left + 1 + before, std::min(wide, inside - before), look);
        Point(cells.left + 1 + before);
    }

    void Check() const {
        const int wide = Columns(Marked(control, Shown(control.text)));
        terminal.Write(cells.top, cells.left, control.checked ? "[x]" : "[ ]", 3, LookOf(control));
        Caption(cells.left + 4, std::min(wide, cells.columns - 4), LookOf(control));
        Point(cells.left + 1);
    }

    std::string Selected() const {
        const auto selected = static_cast<std::size_t>(control.selection);
        return control.selection >= 0 && selected < control.items.size() ? control.items[selected] : "";
    }

    void Combo() const {
        const int inside = cells.columns - 4;
        terminal.Write(cells.top, cells.left,
                       '[' + PaddedTo(CutTo(Marked(control, Selected()), inside), inside) + " v]",
                       cells.columns, LookOf(control));
        Point(cells.left + 1);
    }

    void Slider() const {
        const int last = std::max(1, cells.columns - 3),
                  range = std::max(1, control.maximum - control.minimum);
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
        terminal.Write(cells.top, cells.left, text + "┤", cells.columns, LookOf(control));
        Point(cells.left + 1 + place(control.position));
    }

    void Items(const Cells& within) const {
        const int first = FirstInSight(control, within.rows, turned);
        for (int row = 0; row < within.rows; ++row) {
            const auto item = static_cast<std::size_t>(first + row);
            const bool is_there = item < control.items.size();
            const bool selected = is_there && static_cast<int>(item) == control.selection;
            const Look look{selected && control.focused, selected, !control.enabled, 0};
            terminal.Write(within.top + row, within.left,
                           is_there ? (selected ? "> " : "  ") + control.items[item] : "", within.columns,
                           look);
            if (selected && control.focused) {
                terminal.PointAt(within.top + row, within.left);
            }
        }
        const int right = within.left + within.columns;
        if (first > 0) {
            terminal.Write(within.top, right, "^", 1);
        }
        if (first + within.rows < static_cast<int>(control.items.size())) {
            terminal.Write(within.top + within.rows - 1, right, "v", 1);
        }
    }

    void List() const {
        const Look look{false, control.focused, !control.enabled, colour_frame};
        Frame(terminal, cells, control.focused, look);
        if (control.focused) {
            terminal.PointAt(cells.top + 1, cells.left + 1);
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
            terminal.Write(cells.top + 1, left, Marked(control, control.columns[column].title), wide,
                           {false, true, false, 0});
            for (int row = 0; row < cells.rows - 3; ++row) {
                const auto at = static_cast<std::size_t>(row);
                terminal.Write(cells.top + 2 + row, left,
                               at < control.rows.size() ? control.rows[at][column] : "", wide);
            }
            left += wide;
            for (int row = cells.top + 1; !last && row < cells.top + cells.rows - 1; ++row) {
                terminal.Write(row, left, "│", 1, {false, false, false, colour_frame});
            }
            ++left;
        }
        if (static_cast<int>(control.rows.size()) > cells.rows - 3) {
            terminal.Write(cells.top + cells.rows - 2, right, "v", 1);
        }
    }

    void Group() const {
        Frame(terminal, cells, false, {false, false, !control.enabled, colour_frame});
        const int wide = Columns(Marked(control, Shown(control.text)));
        if (wide > 0) {
            Caption(cells.left + 2, std::min(wide, cells.columns - 4), LookOf(control));
        }
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
Cells ListOf(const Terminal& terminal, const Control& combo, const Cells& cells) {
    const int items = std::max<int>(1, static_cast<int>(combo.items.size()));
    const int below = terminal.rows() - 2 - cells.top, above = cells.top - 1;
    const bool upwards = below < std::min(items + 2, 6) && above > below;
    const int rows = std::min({items + 2, upwards ? above : below, 14});
    return {cells.left, upwards ? cells.top - rows : cells.top + 1, cells.columns, rows};
}

} // namespace

int FirstInSight(const Control& list, int rows, const Turned& turned) {
    const int all = static_cast<int>(list.items.size()), most = std::max(0, all - rows);
    const auto by_hand = turned.find(list.window);
    return std::clamp(by_hand != turned.end() ? by_hand->second : list.selection - rows / 2, 0, most);
}

void Paint(Terminal& terminal, Painted& painted, bool front, const Turned& turned) {
    const Window& window = painted.window;
    const Placement& placement = painted.placement;
    const Cells all{painted.left, painted.top, placement.columns, placement.rows};
    for (int row = 0; row < all.rows; ++row) {
        terminal.Write(all.top + row, all.left, "", all.columns);
    }
    Frame(terminal, all, front, {false, front, !front, colour_frame});
    terminal.Write(all.top, all.left + 2, ' ' + CutTo(Escaped(window.title), all.columns - 6) + ' ',
                   std::min(Columns(Escaped(window.title)) + 2, all.columns - 4),
                   {front, front, !front, front ? colour_title : 0});
    if (window.kind == WindowKind::Sheet) {
        terminal.Write(all.top + 1, all.left + 2, ' ' + window.page + ' ',
                       std::min(Columns(window.page) + 2, all.columns - 4),
                       {window.page_focused, true, false, 0});
        if (window.page_focused) {
            terminal.PointAt(all.top + 1, all.left + 3);
        }
    }
    for (std::size_t line = 0; line < placement.text.size(); ++line) {
        terminal.Write(all.top + 2 + static_cast<int>(line), all.left + 2, placement.text[line],
                       all.columns - 4);
    }
    painted.open_list = {};
    for (const Placed& placed : placement.controls) {
        Cells cells = placed.cells;
        cells.left += painted.left;
        cells.top += painted.top;
        const Brush brush{terminal, *placed.control, cells, turned};
        brush.Paint();
        if (placed.control->dropped) {
            painted.open_list = ListOf(terminal, *placed.control, cells);
        }
    }
    for (const Placed& placed : placement.controls) { // above everything else
        if (placed.control->dropped) {
            const Cells& list = painted.open_list;
            Frame(terminal, list, false, {false, true, false, colour_frame});
            const Brush brush{terminal, *placed.control, list, turned};
            brush.Items({list.left + 1, list.top + 1, list.columns - 2, list.rows - 2});
        }
    }
}

} // namespace host
