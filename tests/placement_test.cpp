// Each of the four dialogs in each language on a terminal of 80 by 24: nothing is cut, nothing overlaps,
// everything is inside.
#include <gtest/gtest.h>

#include "host/screen/placement.h"
#include "simulated/catalogue.h"
#include "tests/machines.h"
#include "tests/sheets.h"

namespace {

bool Meet(const host::Cells& one, const host::Cells& other) {
    return one.left < other.left + other.columns && other.left < one.left + one.columns &&
           one.top < other.top + other.rows && other.top < one.top + one.rows;
}

void ExpectToFit(const host::Window& window, int columns, int rows) {
    const host::Placement placement = host::Place(window, columns, rows);
    SCOPED_TRACE(window.title + std::to_string(columns));
    EXPECT_LE(placement.columns, columns);
    EXPECT_LE(placement.rows, rows);
    ASSERT_EQ(placement.controls.size(), window.controls.size());
    for (const host::Placed& placed : placement.controls) {
        const auto& [left, top, wide, high] = placed.cells;
        SCOPED_TRACE(std::to_string(placed.control->id) + ' ' + placed.control->text);
        EXPECT_GE(wide, host::ColumnsFor(*placed.control, true));
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
