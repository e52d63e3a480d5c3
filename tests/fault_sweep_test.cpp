// Both pages with each operation of their whole life failing once, at every position: nothing crashes, hangs
// or leaks, the sheet always ends, the user is told only what the system has words for, and the next opening
// works.
#include <cctype>
#include <set>

#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

// A text with each number in it as one "#".
std::string WithoutNumbers(const std::string& text) {
    std::string shape;
    for (const char letter : text) {
        if (!std::isdigit(static_cast<unsigned char>(letter))) {
            shape += letter;
        } else if (!shape.ends_with('#')) {
            shape += '#';
        }
    }
    return shape;
}

// Opens and operates the page of a machine with two UARTs once for each operation that this takes; the shapes
// of all boxes.
std::set<std::string> Sweep(Page page, std::size_t device, const User& user) {
    std::set<std::string> shapes;
    for (std::size_t at = 1;; ++at) {
        SCOPED_TRACE(testing::Message() << "operation " << at);
        sim::Machine machine = BoardOn({7, 5});
        machine.journal_reads = false;
        const AtWork at_work(machine);
        machine.faults.at = {at};
        Open(page, device, user);
        if (machine.faults.hits == 0) {
            EXPECT_GT(at, 500u);
            return shapes;
        }
        for (const std::string& text : Boxes()) {
            shapes.insert(WithoutNumbers(text));
        }
        machine.faults = {};
        EXPECT_EQ(Open(page, device, {}), "left");
        EXPECT_EQ(Boxes(), Lines{});
        if (testing::Test::HasFailure()) {
            return shapes;
        }
    }
}

TEST(FaultSweep, TheBoardsPage) {
    const auto at_page = [](HWND page) { Do(page, "tx50 rx2 apply fifo all advanced select0 com20"); };
    const auto at_dialog = [](HWND dialog) { Do(dialog, "sort mode2 termination ok ok"); };
    const User user = {.at_page = at_page, .at_dialog = at_dialog, .leaves_by = ok};
    // clang-format off
    const std::set<std::string> expected = {
        no_memory, "Create property page failure.", "There was an error renaming the COM port.",
        "Get BOARD basic information failure. [serr:#]", "Initiate BOARD parameter failure. [serr:#]",
        "Set COM# fifo settings failure. [serr:#]", "Set COM port advance settings failure. [serr:#]",
        "Check COM port in use failure. [serr:#]", "Check COM port opened failure. [serr:#]",
        "COM# check opened failure. [serr:#]", "Get COM port max number available failure. [serr:#]",
        "KVR channle(#), COM# remap to temporary COM# failure. [serr:#]",
        "KVR channle(#), COM# remap to COM# failure. [serr:#]",
        "KVR channle(#), temporary COM# remap to COM# failure. [serr:#]"};
    // clang-format on
    EXPECT_EQ(Sweep(Page::Board, 0, user), expected);
}

TEST(FaultSweep, ThePortsPage) {
    const auto at_page = [](HWND page) {
        Choose(page, IDC_PARITY, 1);
        Do(page, "restore advanced sheet-apply");
    };
    const auto at_dialog = [](HWND dialog) { Do(dialog, "tx50 fifo fifo defaults rx2 com5 ok ok"); };
    const User user = {.at_page = at_page, .at_dialog = at_dialog, .leaves_by = ok, .answers = IDYES};
    // clang-format off
    const std::set<std::string> expected = {
        no_memory, "Create property page failure.", "There was an error renaming the COM port.",
        "Get channel basic information failure. [serr:#]", "Get COM port name failure. [serr:#]",
        "Get COM port basic information failure. [serr:#]", "Initiate COM port parameter failure.",
        "Initiate \"COM Port Number\" combox failure. [serr:#]", "Initiate \"Flow control\" combox failure.",
        "Initiate \"Parity\" combox failure.", "Initiate \"Stop bits\" combox failure.",
        "Set COM port fifo settings failure. [serr:#]", "Check COM port in use failure. [serr:#]",
        "Check COM port opened failure. [serr:#]", "", // the question without its string
        in_use_question};
    // clang-format on
    EXPECT_EQ(Sweep(Page::Port, 1, user), expected);
}

} // namespace
