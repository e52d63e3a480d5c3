// Both pages with each operation of their whole life failing once, and with two of them failing: nothing
// crashes, hangs or leaks, the sheet always ends, the user sees only messages that the system has, over the
// window in use, the store is left as the steps before the failure have it, and the next opening works.
#include <algorithm>
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
// checks what is left, and the page must open once more.
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
    std::set<HWND> windows;
    const auto noted = [&](const std::function<void(HWND)>& act) {
        return [&windows, act](HWND window) { windows.insert(window), act(window); };
    };
    Open(page, device, {noted(user.at_page), noted(user.at_dialog), user.leaves_by, user.answers});
    if (machine.faults.hits < at.size()) {
        return {};
    }
    std::set<std::string> shapes;
    for (const sim::ShownBox& box : machine.boxes) {
        const std::string text = sim::ToUtf8(box.text);
        shapes.insert(WithoutNumbers(text));
        EXPECT_TRUE(windows.empty() ? box.owner == nullptr : text == no_memory || windows.contains(box.owner))
            << text;
    }
    machine.faults = {};
    then(machine);
    Boxes();
    EXPECT_EQ(Open(page, device, {}), "left");
    EXPECT_EQ(Boxes(), Lines{});
    EXPECT_EQ(PlacesOf(machine, foreign), foreign_places);
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

// In how many places a port is not as on a number.
std::ptrdiff_t PlacesOff(sim::Machine& machine, std::size_t device, u32 number) {
    const Places are = PlacesOf(machine, device), wanted = PlacesAt(machine, device, number);
    const bool off[] = {are.port_name != wanted.port_name,
                        are.friendly_name != wanted.friendly_name,
                        are.dos_name != wanted.dos_name,
                        are.serial_map != wanted.serial_map,
                        !sim::IsClaimed(machine.port_usage, number),
                        Line(machine, number).empty()};
    return std::ranges::count(off, true);
}

// A failed write leaves those before it, and of a rename a failure its own place at most.
void ExpectWhatTwoFailuresLeave(sim::Machine& machine) {
    for (const auto& [device, number] : {std::pair(1u, 7u), std::pair(2u, 5u)}) {
        const std::string fifo = StoredFifo(device), mode = StoredMode(device);
        EXPECT_TRUE(fifo == "1 128 112" || fifo == "1 50 112" || fifo == "1 50 32") << fifo;
        EXPECT_TRUE(mode == "100000" || mode == "400000" || mode == "410000") << mode;
        EXPECT_LE(std::min(PlacesOff(machine, device, number), PlacesOff(machine, device, 20)), 2);
    }
}

// Pairs of operations of a user who asks for the same each time, the same pairs in every run: whatever has
// failed, the next time brings both ports' settings where an undisturbed first time would have. With half of
// the pairs it is nothing on the screen that fails.
void SweepPairs(Page page, std::size_t device, const User& user, const std::string& settings) {
    std::mt19937 random(1);
    for (const bool on_screen : {true, false}) {
        std::size_t count = 0, first = 0, second = 0;
        const auto fails = [&](const sim::JournalEntry& entry) {
            const bool counts = on_screen || entry.reach != sim::Reach::Screen;
            count += counts ? 1 : 0;
            return counts && (count == first || count == second);
        };
        std::size_t met = 0;
        const auto once_more = [&](sim::Machine& machine) {
            met += count >= second ? 1 : 0;
            if (!on_screen) {
                ExpectWhatTwoFailuresLeave(machine);
            }
            Open(page, device, user);
            EXPECT_EQ(StoredFifo(1) + ", " + StoredMode(1) + "; " + StoredFifo(2) + ", " + StoredMode(2),
                      settings);
        };
        Survive(page, device, user, {}, once_more, fails);
        const std::size_t operations = count;
        const std::size_t wanted = IsLongRun() ? 10000 : 60;
        for (met = 0; met < wanted && !testing::Test::HasFailure(); count = 0) {
            first = 1 + random() % operations;
            second = first + 1 + random() % (random() % 2 ? 20 : 500);
            SCOPED_TRACE(testing::Message() << first << " and " << second << (on_screen ? "" : " outside"));
            Survive(page, device, user, {}, once_more, fails);
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
