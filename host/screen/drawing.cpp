#include "host/screen/drawing.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "host/screen/canvas.h"
#include "host/text.h"

namespace host {
namespace {

constexpr double columns_per_unit = 0.39; // a dialog of 257 units takes 100 columns
constexpr double rows_per_unit = 1.0 / 7; // even spaces between controls 21 units apart, as most are

int ColumnAt(int x) {
    return static_cast<int>(std::lround(x * columns_per_unit));
}

bool IsFrame(const Control& control) {
    return control.kind == Kind::Group || control.kind == Kind::List || control.kind == Kind::Table;
}

// The rows of a picture: all heights with a control, where heights next to each other share a row, but no two
// rows of the window share one.
class Rows {
public:
    explicit Rows(const std::vector<Control>& controls) {
        for (const Control& control : controls) {
            if (IsFrame(control)) {
                rows_[control.area.y] = 0;
                rows_[control.area.y + control.area.cy] = 0;
            } else {
                rows_[control.area.Middle()] = 0;
            }
        }
        constexpr int same = 4; // dialog units
        int first = 0;
        for (auto& [height, row] : rows_) {
            if (last_ < 0 || height - first > same) {
                first = height;
                last_ = std::max(last_ + 1, static_cast<int>(std::lround(height * rows_per_unit)));
            }
            row = last_;
        }
    }
    int At(int height) const { return rows_.at(height); }
    int last() const { return last_; }

private:
    std::map<int, int> rows_;
    int last_ = -1;
};

std::string Button(const Control& button, int columns) {
    const std::string text = CutTo(Marked(button, Shown(button.text)), columns - 2);
    const int before = (columns - 2 - Columns(text)) / 2;
    return '[' +
           PaddedTo(std::string(static_cast<std::size_t>(std::max(0, before)), ' ') + text, columns - 2) +
           ']';
}

std::string SliderTrack(const Control& slider, int columns) {
    const int last = std::max(1, columns - 3);
    const int range = std::max(1, slider.maximum - slider.minimum);
    std::string track(static_cast<std::size_t>(last + 1), slider.enabled ? '-' : '~');
    const auto place = [&](int position) -> char& {
        const int within = std::clamp(position - slider.minimum, 0, range);
        return track[static_cast<std::size_t>((within * last + range / 2) / range)];
    };
    if (slider.ticks && range * 3 <= last) {
        for (int tick = slider.minimum; tick <= slider.maximum; ++tick) {
            place(tick) = '+';
        }
    }
    place(slider.position) = 'o';
    return '|' + track + '|';
}

std::string OneLine(const Control& control, int columns) {
    switch (control.kind) {
    case Kind::Label: {
        const std::string text = CutTo(Marked(control, Shown(control.text)), columns);
        const int before = control.right_aligned ? columns - Columns(text) : 0;
        return std::string(static_cast<std::size_t>(before), ' ') + text;
    }
    case Kind::Button:
        return Button(control, columns);
    case Kind::Check:
        return CutTo((control.checked ? "[x] " : "[ ] ") + Marked(control, Shown(control.text)), columns);
    case Kind::Combo: {
        const bool selected =
            control.selection >= 0 && static_cast<std::size_t>(control.selection) < control.items.size();
        const std::string text = selected ? control.items[static_cast<std::size_t>(control.selection)] : " ";
        return '[' + PaddedTo(CutTo(Marked(control, text), columns - 4), columns - 4) + " v]";
    }
    case Kind::Slider:
        return SliderTrack(control, columns);
    default:
        return {};
    }
}

void DrawList(Canvas& canvas, const Control& list, int left, int top, int right, int bottom) {
    canvas.Frame(left, top, right, bottom, {});
    const int shown = bottom - top - 1, all = static_cast<int>(list.items.size());
    const int first = std::clamp(list.selection - shown + 1, 0, std::max(0, all - shown));
    for (int line = 0; line < shown && first + line < all; ++line) {
        const std::string text = Marked(list, list.items[static_cast<std::size_t>(first + line)]);
        canvas.Write(left + 1, top + 1 + line,
                     CutTo((first + line == list.selection ? "> " : "  ") + text, right - left - 1));
    }
    if (first > 0) {
        canvas.Write(right, top + 1, "^");
    }
    if (first + shown < all) {
        canvas.Write(right, bottom - 1, "v");
    }
}

void DrawTable(Canvas& canvas, const Control& table, int left, int top, int right, int bottom) {
    canvas.Frame(left, top, right, bottom, {});
    int x = 0;
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        const int from = left + 1 + ColumnAt(x);
        x += table.columns[column].cx;
        const int columns = std::min(left + 1 + ColumnAt(x), right) - from - 1;
        if (columns < 1) {
            break;
        }
        canvas.Write(from, top + 1, CutTo(Marked(table, table.columns[column].title), columns));
        for (int row = top + 1; row < bottom && from + columns < right; ++row) {
            canvas.Write(from + columns, row, "│");
        }
        for (std::size_t row = 0; row < table.rows.size() && top + 2 + static_cast<int>(row) < bottom;
             ++row) {
            canvas.Write(from, top + 2 + static_cast<int>(row), CutTo(table.rows[row][column], columns));
        }
    }
    const int hidden = static_cast<int>(table.rows.size()) - (bottom - top - 2);
    if (hidden > 0) {
        canvas.Write(right, bottom - 1, "v");
    }
}

// Draws the controls of a dialog or a page, at their places.
Canvas DrawPlaces(const std::vector<Control>& controls, int cx, int cy) {
    const Rows rows(controls);
    Canvas canvas(ColumnAt(cx), std::max(rows.last() + 1, static_cast<int>(std::lround(cy * rows_per_unit))));
    const auto draw = [&](const Control& control) {
        const Area& area = control.area;
        const int left = ColumnAt(area.x), right = ColumnAt(area.x + area.cx) - 1;
        if (!IsFrame(control)) {
            canvas.Write(left, rows.At(control.area.Middle()), OneLine(control, right - left + 1));
            return;
        }
        const int top = rows.At(area.y), bottom = rows.At(area.y + area.cy);
        if (control.kind == Kind::List) {
            DrawList(canvas, control, left, top, right, bottom);
        } else if (control.kind == Kind::Table) {
            DrawTable(canvas, control, left, top, right, bottom);
        } else {
            canvas.Frame(left, top, right, bottom, Marked(control, Shown(control.text)));
        }
    };
    for (const bool groups : {true, false}) {
        for (const Control& control : controls) {
            if ((control.kind == Kind::Group) == groups) {
                draw(control);
            }
        }
    }
    return canvas;
}

// Buttons in a row, each as wide as its text needs.
std::string ButtonRow(const std::vector<Control>& controls) {
    std::string row;
    for (const Control& control : controls) {
        if (control.kind == Kind::Button) {
            row += (row.empty() ? "" : "  ") +
                   Button(control, std::max(14, Columns(Marked(control, Shown(control.text))) + 4));
        }
    }
    return row;
}

Canvas InWindow(const Canvas& inside, const std::string& title, bool front) {
    Canvas canvas(inside.columns() + 4, inside.rows() + 2);
    canvas.Lay(2, 1, inside);
    canvas.Frame(0, 0, canvas.columns() - 1, canvas.rows() - 1, front ? title : title + " (behind)", front);
    return canvas;
}

Canvas DrawBox(const Window& box, bool front) {
    constexpr int widest = 64;
    const std::vector<std::string> lines = BrokenAt(BoxText(box), widest);
    const std::string buttons = ButtonRow(box.controls);
    int columns = std::max(Columns(buttons), Columns(box.title) + 4);
    for (const std::string& line : lines) {
        columns = std::max(columns, Columns(line));
    }
    Canvas canvas(columns, static_cast<int>(lines.size()) + 4);
    int row = 1;
    for (const std::string& line : lines) {
        canvas.Write(0, row++, line);
    }
    canvas.Write((columns - Columns(buttons)) / 2, row + 1, buttons);
    return InWindow(canvas, box.title, front);
}

Canvas DrawSheet(const Window& sheet, bool front) {
    std::vector<Control> on_page, of_frame;
    for (const Control& control : sheet.controls) {
        (control.of_frame ? of_frame : on_page).push_back(control);
    }
    const Canvas page = DrawPlaces(on_page, sheet.cx, sheet.cy);
    const std::string buttons = ButtonRow(of_frame);
    const int columns = std::max(page.columns() + 2, Columns(buttons));
    Canvas canvas(columns, page.rows() + 4);
    canvas.Lay(1, 1, page);
    canvas.Frame(0, 0, columns - 1, page.rows() + 1, sheet.page);
    canvas.Write(columns - Columns(buttons), page.rows() + 2, buttons);
    return InWindow(canvas, sheet.title, front);
}

} // namespace

std::string Marked(const Control& control, const std::string& text) {
    return control.enabled || text.empty() ? text : '~' + text;
}

std::vector<std::string> Draw(const std::vector<Window>& windows) {
    Canvas screen(0, 0);
    bool disabled = false;
    int step = 0;
    for (const Window& window : windows) {
        const bool front = &window == &windows.back();
        screen.Lay(step * 6, step * 4,
                   window.kind == WindowKind::Sheet ? DrawSheet(window, front)
                   : window.kind == WindowKind::Box
                       ? DrawBox(window, front)
                       : InWindow(DrawPlaces(window.controls, window.cx, window.cy), window.title, front));
        ++step;
        for (const Control& control : window.controls) {
            disabled = disabled || !control.enabled;
        }
    }
    std::vector<std::string> lines = screen.Lines();
    if (disabled) {
        lines.push_back("~ disabled");
    }
    return lines;
}

} // namespace host
