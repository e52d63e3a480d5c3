// What the host reads from a window beyond its places: what is not stored, and the window as a list.
#include <algorithm>

#include <gtest/gtest.h>

#include "host/screen/hand.h"
#include "host/screen/listing.h"
#include "host/screen/painter.h"
#include "tests/machines.h"
#include "tests/sheets.h"

namespace {

void AtBoard(const std::function<void(HWND page)>& at_page) {
    sim::Machine machine = machines::BoardOn({3, 4, 6});
    const machines::AtWork at_work(machine);
    sheets::Open(sheets::Page::Board, 0, {.at_page = at_page});
}

TEST(Screen, MarksWhatIsNotStored) {
    AtBoard([](HWND page) {
        std::optional<host::Window> stored;
        const auto marked = [&] {
            host::Window window = host::ReadWindow(GetParent(page), false);
            host::MarkChanged(window, stored);
            std::vector<int> ids;
            for (const host::Control& control : window.controls) {
                if (control.changed) {
                    ids.push_back(control.id);
                }
            }
            const auto picture = host::Picture(window, 80, host::Charset::Utf8);
            EXPECT_EQ(picture.back().ends_with("* not stored"), !ids.empty());
            std::ranges::sort(ids);
            return ids;
        };
        using Ids = std::vector<int>;
        EXPECT_EQ(marked(), Ids{});
        sheets::Do(page, "tx9 com20");
        EXPECT_EQ(marked(), (Ids{IDC_TRANSMIT_SLIDER, IDC_PORT_NUMBER}));
        sheets::Do(page, "com3");
        EXPECT_EQ(marked(), Ids{IDC_TRANSMIT_SLIDER});
        sheets::Do(page, "select1"); // the page shows what is stored of another port
        EXPECT_EQ(marked(), Ids{});
        sheets::Do(page, "fifo");
        EXPECT_NE(marked(), Ids{});
        stored.reset();
        EXPECT_EQ(marked(), Ids{});
    });
}

TEST(Screen, IsToldInLinesWithoutPlaces) {
    AtBoard([](HWND page) {
        std::optional<host::Window> stored = host::ReadWindow(GetParent(page), false);
        sheets::Do(page, "tx9");
        host::Window window = host::ReadWindow(GetParent(page), false);
        host::MarkChanged(window, stored);
        const host::Lines lines = host::ListWindow(window);
        const auto has = [&](const std::string& line) {
            return std::ranges::find(lines, line) != lines.end();
        };
        EXPECT_TRUE(lines.front().ends_with(", page Port Control")) << lines.front();
        for (const char* const line :
             {"list, 1 of 3: COM3 (port1)", "  COM6 (port3)", "group",
              "  check Enable large FIFO buffers, checked",
              "  slider Transmit Buffer, 9 in 1..128, not stored", "  combo Port Number, 3 of 256: COM3",
              "button OK", "button Apply, disabled"}) {
            EXPECT_TRUE(has(line)) << line;
        }
    });
}

} // namespace
