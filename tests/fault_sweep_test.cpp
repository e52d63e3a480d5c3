// Both pages with each operation of their whole life failing once: nothing crashes, hangs or leaks, the sheet
// always ends, the user sees only messages that the system has, and the next opening works.
#include <cctype>
#include <optional>
#include <random>
#include <set>

#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

// A text with each number replaced by "#".
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

// Opens and operates the page of a machine with two UARTs and a port of another kind while the operations at
// these positions fail. Returns the shapes of all boxes, or nothing if some position was not reached. `then`
// checks what is left.
std::optional<std::set<std::string>> Survive(Page page, std::size_t device, const User& user,
                                             const std::vector<std::size_t>& at,
                                             const std::function<void(sim::Machine&)>& then,
                                             const std::function<bool(const sim::JournalEntry&)>& when = {}) {
    SCOPED_TRACE(testing::Message() << "operations " << testing::PrintToString(at));
    sim::Machine machine = BoardOn({7, 5});
    machine.journal_reads = false;
    const AtWork at_work(machine);
    const std::size_t foreign = AddMainboardPort(machine, 9);
    const Places foreign_places = PlacesOf(machine, foreign);
    machine.faults.at = at;
    machine.faults.when = when;
    Open(page, device, user);
    if (machine.faults.hits < at.size()) {
        return {};
    }
    std::set<std::string> shapes;
    for (const std::string& text : Boxes()) {
        shapes.insert(WithoutNumbers(text));
    }
    machine.faults = {};
    EXPECT_EQ(Open(page, device, {}), "left");
    EXPECT_EQ(Boxes(), Lines{});
    EXPECT_EQ(PlacesOf(machine, foreign), foreign_places);
    then(machine);
    return shapes;
}

// Lets each operation of the page's whole life fail. Returns the shapes of all boxes. Of the 256 entries that
// each opening adds to a list, only some are tried, because all behave alike.
std::set<std::string> Sweep(Page page, std::size_t device, const User& user) {
    std::vector<bool> adds; // adds an entry to a list
    const auto list = [&](const sim::JournalEntry& entry) {
        adds.push_back(entry.detail.find("ADDSTRING") != std::string::npos);
        return false;
    };
    Survive(
        page, device, user, {}, [](sim::Machine&) {}, list);
    EXPECT_GT(adds.size(), 500u);
    std::set<std::string> shapes;
    for (std::size_t i = 0; i < adds.size() && !testing::Test::HasFailure(); ++i) {
        const bool within_list = adds[i] && i % 50 != 0 && adds[i - 1] && adds[i + 1];
        if (!within_list) {
            const auto met = Survive(page, device, user, {i + 1}, [](sim::Machine&) {});
            EXPECT_TRUE(met.has_value());
            shapes.insert(met->begin(), met->end());
        }
    }
    return shapes;
}

// Lets pairs of operations fail for a user who asks for the same each time; the pairs are the same in every
// run. Whatever failed, the next time both ports' settings become what an undisturbed first time would have
// made them.
void SweepPairs(Page page, std::size_t device, const User& user, const std::string& settings) {
    const auto once_more = [&](sim::Machine&) {
        Open(page, device, user);
        EXPECT_EQ(StoredFifo(1) + ", " + StoredMode(1) + "; " + StoredFifo(2) + ", " + StoredMode(2),
                  settings);
    };
    Survive(page, device, user, {}, once_more);
    std::mt19937 random(1);
    std::size_t met = 0;
    const std::size_t wanted = IsLongRun() ? 20000 : 100;
    while (met < wanted && !testing::Test::HasFailure()) {
        const std::size_t one = 1 + random() % 3000;
        const std::size_t two = one + 1 + random() % (random() % 2 ? 20 : 1500);
        met += Survive(page, device, user, {one, two}, once_more) ? 1 : 0;
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

TEST(FaultSweep, TwoOperationsOfThePages) {
    const auto at_board = [](HWND page) {
        Do(page, "defaults tx50 rx2 apply all select1 advanced select0 advanced com20");
    };
    const auto at_mode = [](HWND dialog) { Do(dialog, "mode2 ok ok"); };
    SweepPairs(Page::Board, 0, {.at_page = at_board, .at_dialog = at_mode, .leaves_by = ok},
               "1 50 32, 410000; 1 50 32, 410000");
    const auto at_port = [](HWND page) { Do(page, "restore advanced sheet-apply"); };
    const auto at_fifo = [](HWND dialog) { Do(dialog, "defaults tx50 rx2 com20 ok ok"); };
    SweepPairs(Page::Port, 1, {.at_page = at_port, .at_dialog = at_fifo, .leaves_by = ok, .answers = IDYES},
               "1 50 32, 100000; 1 128 112, 100000");
}

} // namespace
