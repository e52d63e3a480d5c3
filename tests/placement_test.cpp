// Each of the four dialogs in each language: nothing is cut, nothing overlaps and everything is inside on a
// terminal of 80 by 24; on a smaller one what has the focus is in sight.
#include <algorithm>
#include <array>

#include <gtest/gtest.h>

#include "host/screen/painter.h"
#include "host/text.h"
#include "simulated/catalogue.h"
#include "tests/machines.h"
#include "tests/sheets.h"

namespace {

bool Meet(const host::Cells& one, const host::Cells& other) {
    return one.left < other.left + other.columns && other.left < one.left + one.columns &&
           one.top < other.top + other.rows && other.top < one.top + one.rows;
}

void ExpectToFit(const host::Window& window, int columns, int rows) {
    const host::Placement placement = host::PlaceWindow(window, columns, rows);
    SCOPED_TRACE(window.title + std::to_string(columns));
    EXPECT_LE(placement.columns, columns);
    EXPECT_LE(placement.rows, rows);
    ASSERT_EQ(placement.controls.size(), window.controls.size());
    for (const host::Placed& placed : placement.controls) {
        const auto& [left, top, wide, high] = placed.cells;
        SCOPED_TRACE(std::to_string(placed.control->id) + ' ' + placed.control->text);
        EXPECT_GE(wide, host::ColumnsFor(*placed.control, true));
        int headings = 0;
        for (const auto& column : placed.control->columns) {
            headings += host::Columns(column.title) + 1;
        }
        EXPECT_GT(wide, headings);
        EXPECT_TRUE(left > 0 && top > 0 && left + wide < placement.columns && top + high < placement.rows);
        for (const host::Placed& other : placement.controls) {
            const bool apart = &other == &placed || other.control->kind == host::Kind::Group ||
                               placed.control->kind == host::Kind::Group || !Meet(placed.cells, other.cells);
            EXPECT_TRUE(apart) << other.control->id << ' ' << other.control->text;
            // Rows and columns keep their order.
            if (other.control->of_frame == placed.control->of_frame &&
                other.control->area.y >= placed.control->area.y + placed.control->area.cy) {
                EXPECT_GE(other.cells.top, top) << other.control->text;
            }
            // What is in a group stays off its frame.
            if (host::IsInside(*placed.control, *other.control)) {
                const host::Cells& group = other.cells;
                EXPECT_TRUE(group.left < left && left + wide < group.left + group.columns &&
                            group.top < top && top + high < group.top + group.rows)
                    << other.control->text;
            }
        }
    }
}

host::Control Made(host::Kind kind, const host::Area& area, const std::string& text = {}) {
    host::Control control;
    control.kind = kind;
    control.area = area;
    control.text = text;
    return control;
}

// In a window of few controls: a label over whose place a check box lies, a label that reaches over the edge
// of its group, and one whose text needs two lines of unequal length.
TEST(Placement, FramesRowsAndTheTitleStayWhole) {
    const std::string word(30, 'x');
    host::Window window;
    window.title = std::string(60, 't');
    window.controls = {Made(host::Kind::Label, {0, 2, 60, 8}), Made(host::Kind::Check, {34, 0, 40, 8}),
                       Made(host::Kind::Group, {0, 50, 100, 30}), Made(host::Kind::Label, {5, 60, 140, 8}),
                       Made(host::Kind::Label, {0, 20, 60, 16}, word + ' ' + word + " and more")};
    ExpectToFit(window, 80, 24);
    const host::Placement placement = host::PlaceWindow(window, 80, 24);
    EXPECT_GE(placement.controls.back().cells.columns, 30 + 9);
    EXPECT_EQ(placement.controls.back().cells.rows, 2);
    EXPECT_EQ(placement.controls[1].cells.top, placement.controls[2].cells.top);
    EXPECT_GT(placement.columns, 60);
}

TEST(Placement, ASmallTerminalGetsTheClosestForm) {
    host::Window sheet, box;
    for (const char* const caption : {"OK", "Abbrechen", "Übernehmen"}) {
        sheet.controls.push_back(Made(host::Kind::Button, {}, caption));
        sheet.controls.back().of_frame = true;
    }
    ExpectToFit(sheet, 40, 10);
    box.kind = host::WindowKind::Box;
    box.controls = {Made(host::Kind::Label, {}, "1\n2\n3\n4\n5\n6\n7"), Made(host::Kind::Button, {}, "OK")};
    EXPECT_EQ(host::PlaceWindow(box, 40, 10).rows, 10);
}

// The window as a terminal of that size shows it, with the focus on a control.
std::vector<std::string> PaintedOn(int columns, int rows, host::Window& window, host::Painted& painted) {
    painted.window = window;
    painted.placement = host::PlaceWindow(painted.window, columns, rows);
    painted.place = {0, 0, std::min(columns, painted.placement.columns),
                     std::min(rows, painted.placement.rows)};
    host::Canvas canvas(columns, rows);
    host::Paint(canvas, painted, true, {});
    EXPECT_TRUE(canvas.cursor());
    if (canvas.cursor()) {
        const auto [row, column] = *canvas.cursor();
        const auto focus = std::ranges::find_if(painted.placement.controls,
                                                [](const auto& placed) { return placed.control->focused; });
        EXPECT_TRUE(painted.Shows(*focus, column, row));
        EXPECT_TRUE(canvas.At(row, std::max(0, painted.On(*focus).left - 1)).glyph == ">");
    }
    return canvas.Lines(host::Charset::Utf8);
}

void ExpectFocusInSight(host::Window window) {
    for (host::Control& control : window.controls) {
        const bool can_have_it = control.kind != host::Kind::Label && control.kind != host::Kind::Group;
        for (const auto& [columns, rows] : {std::pair{40, 9}, {60, 19}}) {
            SCOPED_TRACE(std::to_string(columns) + ": " + std::to_string(control.id) + ' ' + control.text);
            control.focused = can_have_it;
            if (can_have_it) {
                host::Painted painted;
                for (const std::string& line : PaintedOn(columns, rows, window, painted)) {
                    EXPECT_EQ(host::Columns(line), painted.place.columns * (line.empty() ? 0 : 1)) << line;
                }
                for (const host::Placed& placed : painted.placement.controls) {
                    const auto [left, top, wide, high] = painted.On(placed);
                    EXPECT_TRUE(
                        !placed.control->of_frame ||
                        (left > 0 && left + wide < painted.place.columns && top + 1 < painted.place.rows))
                        << placed.control->text;
                }
            }
            control.focused = false;
        }
    }
}

TEST(Placement, EveryDialogOfEveryLanguageFitsASmallTerminal) {
    std::size_t dialogs = 0;
    for (const sim::Catalogue* catalogue : sim::Catalogues()) {
        SCOPED_TRACE(catalogue->language);
        for (const auto& [page, device] : {std::pair{sheets::Page::Board, 0}, {sheets::Page::Port, 1}}) {
            sim::Machine machine = machines::BoardOn({201, 202, 203, 204, 205, 206, 207, 208});
            machine.language = catalogue->language;
            const machines::AtWork at_work(machine);
            const auto check = [&](HWND front) {
                ++dialogs;
                for (const auto& [columns, rows] : {std::pair{80, 23}, {120, 40}, {200, 59}}) {
                    ExpectToFit(host::ReadWindow(front, false), columns, rows);
                }
                if (std::ranges::count(std::array{1025, 1031, 1041, 1054}, catalogue->language) != 0) {
                    ExpectFocusInSight(host::ReadWindow(front, false));
                }
                constexpr int prompt = 80 - 3; // with what stands before a picture
                ExpectToFit(host::ReadWindow(front, false), prompt, 24);
            };
            sheets::Open(page, static_cast<std::size_t>(device),
                         {.at_page =
                              [&](HWND at) {
                                  check(GetParent(at));
                                  SendMessageW(GetDlgItem(at, IDC_ADVANCED), BM_CLICK, 0, 0);
                              },
                          .at_dialog = check});
        }
    }
    EXPECT_EQ(dialogs, 4 * sim::Catalogues().size());
}

} // namespace
