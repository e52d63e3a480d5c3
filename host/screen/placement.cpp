#include "host/screen/placement.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "host/text.h"

namespace host {
namespace {

constexpr int wide_edge = 2;    // columns of the window's frame and the space beside it
constexpr int fewest_items = 3; // of a list, that are visible
constexpr int most_columns_of_item = 34;

bool HasFrame(const Control& control) {
    return control.kind == Kind::Group || control.kind == Kind::List || control.kind == Kind::Table;
}

constexpr int same_row = 4; // dialog units between the middles of controls on one row

bool ShareRows(const Control& left, const Control& right) {
    const auto top = [](const Control& one) { return HasFrame(one) ? one.area.y : one.area.Middle(); };
    const auto bottom = [](const Control& one) {
        return HasFrame(one) ? one.area.y + one.area.cy : one.area.Middle();
    };
    return top(left) <= bottom(right) + same_row && top(right) <= bottom(left) + same_row;
}

// A label that is tall enough for a second line gets two rows, and so needs fewer columns.
bool IsTall(const Control& control) {
    constexpr int two_lines = 16; // dialog units
    return control.kind == Kind::Label && control.area.cy >= two_lines;
}

int ColumnsForLabel(const Control& label) {
    const std::string text = Shown(label.text);
    const int whole = Columns(text);
    for (int columns = (whole + 1) / 2; IsTall(label) && columns < whole; ++columns) {
        if (BrokenAt(text, columns).size() <= 2) {
            return columns + 1;
        }
    }
    return whole + 1;
}

int WidestItem(const Control& list) {
    return std::min(list.widest_item, most_columns_of_item);
}

// The columns of a page's controls. They are placed from left to right, each as near to its own place as the
// controls before it on its rows allow. Controls that share a left edge in the window share it here too,
// except at a scale of 0: then each row is placed by itself, as narrow as possible.
class Across {
public:
    Across(const std::vector<const Control*>& controls, double scale) : controls_(controls), scale_(scale) {
        std::ranges::stable_sort(controls_, {}, [](const Control* one) {
            return std::pair(one->area.x, one->kind != Kind::Group);
        });
        for (const Control* control : controls_) {
            needed_[control] = ColumnsFor(*control, close_);
        }
        constexpr int together = 2; // dialog units
        const auto begin_together = [&](const Control* one, const Control* other) {
            return scale > 0 && other->area.x - one->area.x <= together &&
                   (other->kind == Kind::Group) == (one->kind == Kind::Group);
        };
        for (std::size_t first = 0, end = 0; first < controls_.size(); first = end) {
            int left = 0;
            for (;
                 end == first || (end < controls_.size() && begin_together(controls_[first], controls_[end]));
                 ++end) {
                left = std::max({left, At(controls_[end]->area.x), AfterOthers(*controls_[end])});
            }
            for (std::size_t one = first; one < end; ++one) {
                left_[controls_[one]] = left;
            }
        }
        for (const Control* control : controls_) {
            last_ = std::max(last_, EndOf(*control));
        }
    }

    int columns() const { return last_ + 1; }
    int LeftOf(const Control& control) const { return left_.at(&control); }

    // The last column: as far as its own place reaches, but not into the control after it.
    int EndOf(const Control& control) const {
        int end =
            std::max(left_.at(&control) + needed_.at(&control) - 1, At(control.area.x + control.area.cx) - 1);
        if (control.kind == Kind::Group) {
            return std::max(end, RightOf(control));
        }
        for (const Control* other : controls_) {
            if (IsInside(control, *other)) {
                end = std::min(end, EndOf(*other) - 1 - spare_);
            } else if (other->area.x > control.area.x && ShareRows(control, *other) &&
                       other->kind != Kind::Group) {
                end = std::min(end, left_.at(other) - 2);
            }
        }
        return std::max(end, RightOf(control));
    }

private:
    int At(int x) const { return static_cast<int>(std::lround(x * scale_)); }

    // The last column that the control, or a control in the group, needs at least.
    int RightOf(const Control& control) const {
        int right = left_.at(&control) + needed_.at(&control) - 1;
        for (const auto& [other, left] : left_) {
            if (IsInside(*other, control)) {
                right = std::max(right, left + needed_.at(other) + spare_);
            }
        }
        return right;
    }

    int AfterOthers(const Control& control) const {
        int left = 0;
        for (const auto& [other, at] : left_) {
            if (IsInside(control, *other)) {
                left = std::max(left, at + 1 + spare_);
            } else if (ShareRows(control, *other) && control.area.x >= other->area.x + 1) {
                left = std::max(left, RightOf(*other) + 2);
            }
        }
        return left;
    }

    std::vector<const Control*> controls_;
    double scale_;
    bool close_ = scale_ == 0;
    int spare_ = close_ ? 0 : 1;           // columns between a group and the controls in it
    std::map<const Control*, int> needed_; // the fewest columns for each
    std::map<const Control*, int> left_;
    int last_ = 0;
};

// The rows: all heights with a control, where heights next to each other share a row.
class Down {
public:
    Down(const std::vector<const Control*>& controls, double scale) {
        std::map<int, const Control*> lists; // by their lower edges
        for (const Control* control : controls) {
            const Area& area = control->area;
            if (HasFrame(*control)) {
                rows_[area.y] = rows_[area.y + area.cy] = 0;
                if (control->kind != Kind::Group) {
                    lists[area.y + area.cy] = control;
                }
            } else {
                rows_[area.Middle()] = 0;
            }
        }
        int first = 0;
        for (auto& [height, row] : rows_) {
            if (last_ < 0 || height - first > same_row) {
                first = height;
                last_ = std::max(last_ + 1,
                                 static_cast<int>(std::lround((height - rows_.begin()->first) * scale)));
            }
            if (const auto list = lists.find(height); list != lists.end()) {
                const int heading = list->second->kind == Kind::Table ? 1 : 0;
                last_ = std::max(last_, rows_.at(list->second->area.y) + fewest_items + heading + 1);
            }
            row = last_;
        }
    }
    int rows() const { return last_ + 1; }
    int At(int height) const { return rows_.at(height); }

private:
    std::map<int, int> rows_;
    int last_ = -1;
};

// The largest of the scales up to `widest` that takes no more than `most`; scale 0 if none does.
template <class Along>
Along Fit(const std::vector<const Control*>& controls, double widest, int (Along::*size)() const, int most) {
    constexpr int steps = 24;
    for (int step = steps; step > 0; --step) {
        Along along(controls, widest * step / steps);
        if ((along.*size)() <= most) {
            return along;
        }
    }
    return Along(controls, 0);
}

// Places buttons in the row, at the right or in the middle, within that many columns.
void PlaceButtons(Placement& placement, const std::vector<const Control*>& buttons, int row, int edge,
                  bool in_the_middle, int most) {
    struct Spacing {
        int fewest, between;
        bool close;
    };
    int columns = 0, between = 0;
    std::vector<int> wide;
    for (const Spacing& spacing : {Spacing{12, 2, false}, {0, 1, false}, {0, 1, true}}) {
        wide.clear();
        columns = -spacing.between;
        between = spacing.between;
        for (const Control* button : buttons) {
            wide.push_back(std::max(spacing.fewest, ColumnsFor(*button, spacing.close)));
            columns += wide.back() + between;
        }
        if (columns + 2 * edge <= most) {
            break;
        }
    }
    placement.columns = std::max(placement.columns, columns + 2 * edge);
    const int all = std::min(placement.columns, most);
    int left = std::max(1, in_the_middle ? (all - columns) / 2 : all - edge - columns);
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        placement.controls.push_back({buttons[index], {left, row, wide[index], 1}});
        left += wide[index] + between;
    }
}

// Room for a title in its frame, as far as there is any.
int ColumnsForTitle(const Window& window, int most) {
    return std::min(Columns(Escaped(window.title)) + 6, most);
}

Placement PlaceBox(const Window& box, int columns, int rows) {
    constexpr int edge = wide_edge;
    Placement placement;
    placement.text = BrokenAt(BoxText(box), std::min(64, columns - 2 * edge));
    placement.columns = ColumnsForTitle(box, columns);
    for (std::string& line : placement.text) {
        line = Escaped(line);
        placement.columns = std::max(placement.columns, Columns(line) + 2 * edge);
    }
    const int lines = static_cast<int>(placement.text.size());
    const int blank = lines + 5 <= rows ? 1 : 0; // before and after the text
    placement.head = 1 + blank;
    placement.foot = 2 + blank;
    placement.rows = lines + placement.head + placement.foot;
    std::vector<const Control*> buttons;
    for (const Control& control : box.controls) {
        if (control.kind == Kind::Button) {
            buttons.push_back(&control);
        }
    }
    PlaceButtons(placement, buttons, placement.rows - 2, edge, true, columns);
    return placement;
}

} // namespace

int ColumnsFor(const Control& control, bool close) {
    const int text = Columns(Shown(control.text)) + 1; // the mark before a disabled control
    switch (control.kind) {
    case Kind::Button:
        return text + (close ? 2 : 4);
    case Kind::Check:
        return text + 3; // its mark stands before the caption
    case Kind::Group:
        return text + 4;
    case Kind::Label:
        return ColumnsForLabel(control);
    case Kind::Combo:
        return std::max(6, WidestItem(control)) + 5;
    case Kind::List:
        return std::max(8, WidestItem(control)) + 5;
    case Kind::Table: {
        int columns = 1;
        for (std::size_t column = 0; column < control.columns.size(); ++column) {
            columns += ColumnsForTableColumn(control, column) + 1;
        }
        return std::max(columns, 12);
    }
    case Kind::Slider:
        return close ? 8 : 15; // with the mark of a changed one
    }
    return text;
}

int ColumnsForTableColumn(const Control& table, std::size_t column) {
    int widest = Columns(table.columns[column].title) + 1;
    for (const auto& row : table.rows) {
        widest = std::max(widest, Columns(row[column]));
    }
    return std::min(widest, most_columns_of_item);
}

Placement PlaceWindow(const Window& window, int columns, int rows) {
    if (window.kind == WindowKind::Box) {
        return PlaceBox(window, columns, rows);
    }
    constexpr double natural_columns = 0.39, natural_rows = 1.0 / 8; // per dialog unit, if there is room
    std::vector<const Control*> inside, of_frame;
    for (const Control& control : window.controls) {
        (control.of_frame ? of_frame : inside).push_back(&control);
    }
    Placement placement;
    placement.head = placement.foot = of_frame.empty() ? 1 : 2;
    const auto across = Fit<Across>(inside, natural_columns, &Across::columns, columns - 2 * wide_edge);
    const int edge = across.columns() <= columns - 2 * wide_edge ? wide_edge : 1;
    const auto down = Fit<Down>(inside, natural_rows, &Down::rows, rows - placement.head - placement.foot);
    placement.columns = std::max(across.columns() + 2 * edge, ColumnsForTitle(window, columns));
    placement.rows = down.rows() + placement.head + placement.foot;
    for (const bool groups : {true, false}) {
        for (const Control* control : inside) {
            if ((control->kind == Kind::Group) != groups) {
                continue;
            }
            const Area& area = control->area;
            const int left = across.LeftOf(*control), end = across.EndOf(*control);
            const int top = down.At(HasFrame(*control) ? area.y : area.Middle());
            const int bottom =
                HasFrame(*control) ? down.At(area.y + area.cy) : top + (IsTall(*control) ? 1 : 0);
            placement.controls.push_back(
                {control, {left + edge, top + placement.head, end - left + 1, bottom - top + 1}});
            placement.columns = std::max(placement.columns, end + 1 + 2 * edge);
        }
    }
    PlaceButtons(placement, of_frame, placement.rows - 2, edge, false, columns);
    return placement;
}

} // namespace host
