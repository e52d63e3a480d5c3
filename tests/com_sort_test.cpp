// Sort UART: the exchanges it makes, what a failure leaves, and boards of all kinds, also such as break its
// assumptions.
#include <algorithm>
#include <functional>

#include "board_page/advanced_port_control.h"
#include "com_numbers/com_sort.h"
#include "resources/resource_ids.h"
#include "tests/at_work.h"

namespace {

using namespace machines;
using Numbers = std::vector<u32>;
using Change = std::function<void(sim::Machine&)>;

// The numbers of a board made by BoardOn, in channel order, if all places agree; 0 for a port whose places
// disagree.
Numbers NumbersOf(sim::Machine& machine, std::size_t uarts) {
    Numbers numbers;
    for (std::size_t device = 1; device <= uarts; ++device) {
        const Places places = PlacesOf(machine, device);
        const u32 number = ComNumberFromName(places.port_name.c_str());
        numbers.push_back(places == PlacesAt(machine, device, number) ? number : 0);
    }
    return numbers;
}

struct Dialog {
    HWND window, button;
};

// Opens the Advanced Port Control dialog for a channel, clicks Sort UART, which keeps the focus, and closes
// it with Cancel, and any box with OK.
Dialog SortInDialog(sim::Machine& machine, BPPCHL* channel) {
    Dialog dialog = {};
    machine.user = [&](HWND front) {
        if (sim::BoxStyle(front) != 0) {
            SendMessageW(front, WM_COMMAND, IDOK, 0);
        } else {
            dialog = {front, GetDlgItem(front, IDC_SORT_COM)};
            SetFocus(dialog.button);
            SendMessageW(front, WM_COMMAND, IDC_SORT_COM, 0);
            EXPECT_EQ(GetFocus(), dialog.button);
            SendMessageW(front, WM_COMMAND, IDCANCEL, 0);
        }
    };
    KvrBoardUartAdvancedDlgShow(nullptr, channel);
    return dialog;
}

// The moves in the journal, as "5->256".
std::vector<std::string> Moves(const sim::Machine& machine) {
    std::vector<std::string> moves;
    for (const sim::JournalEntry& entry : machine.journal) {
        if (entry.name == "ComDBReleasePort") {
            moves.push_back(entry.detail);
        } else if (entry.name == "ComDBClaimPort") {
            moves.back() += "->" + entry.detail.substr(0, entry.detail.find(' '));
        }
    }
    return moves;
}

TEST(ComSort, MakesTheExchangesInThisOrderAndChecksOnlyPortsThatMove) {
    const struct {
        Numbers before;
        std::vector<std::string> moves;
    } cases[] = {
        {{7, 5, 8, 6}, {"5->256", "7->5", "256->7", "6->256", "7->6", "256->7", "7->256", "8->7", "256->8"}},
        {{6, 4, 5}, {"4->256", "6->4", "256->6", "5->256", "6->5", "256->6"}},
        {{4, 2, 3, 1}, {"1->256", "4->1", "256->4"}},
        {{1, 5, 9}, {}},
        {{9}, {}},
        {{256, 1}, {"1->255", "256->1", "255->256"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::PrintToString(each.before));
        sim::Machine machine = BoardOn(each.before);
        const AtWork at_work(machine);
        const OpenBoard board;
        Forget(machine);
        SortInDialog(machine, board.Channel(1));
        Numbers after = each.before;
        std::ranges::sort(after);
        EXPECT_EQ(Moves(machine), each.moves);
        EXPECT_EQ(NumbersOf(machine, after.size()), after);
        EXPECT_EQ(board.params.ChlListChanged, !each.moves.empty());
        EXPECT_EQ(Count(machine, "ComDBOpen") == 0, each.moves.empty());
        const auto first_enabled = std::ranges::find_if(machine.journal, [](const auto& entry) {
            return entry.name == "EnableWindow" && entry.detail == "1 on";
        });
        EXPECT_EQ(first_enabled == machine.journal.end(), each.moves.empty());
        EXPECT_EQ(Journal(machine, {sim::Reach::Memory})[0], "LocalAlloc 2048 bytes");
        EXPECT_EQ(std::count_if(first_enabled, machine.journal.end(),
                                [](const auto& entry) { return entry.name == "LocalFree"; }),
                  0); // the table is gone before the buttons come back
        for (std::size_t i = 0; i < after.size(); ++i) {
            const BPPCHL* chl = board.Channel(static_cast<u32>(i) + 1);
            EXPECT_EQ(chl->SavedInfo.Uart.PortName, PortName(after[i]));
            EXPECT_EQ(chl->CurrentInfo.Uart.PortName, PortName(after[i]));
            const std::string device = "KVR\\Channel\\" + std::to_string(i + 1);
            EXPECT_EQ(
                std::ranges::any_of(machine.journal,
                                    [&](const auto& entry) { return entry.detail.starts_with(device); }),
                after[i] != each.before[i]);
        }
    }
}

Change Opened(std::size_t device) {
    return [=](sim::Machine& machine) { machine.devices[device].key.SetDword(u"ChlOpened", 1); };
}

// With channels 1 to 4 on 7, 5, 8 and 6.
TEST(ComSort, AFailureKeepsTheMovesBeforeIt) {
    const auto nth = [](const char* operation, std::size_t call) {
        return [=](sim::Machine& machine) { machine.faults.at_call = {{operation, call}}; };
    };
    // At the second look the n-th rename finds that the old DOS name is gone.
    const auto rename = [=](std::size_t n) { return nth("QueryDosDeviceW", 2 * n); };
    const struct {
        Change change;
        std::string box;
        Numbers after = {7, 5, 8, 6};
    } cases[] = {
        {nth("LocalAlloc", 1), no_memory},
        {nth("ComDBOpen", 1), "Get COM port max number available failure. [serr:200]"},
        {[](auto& machine) { machine.port_usage.fill(0xFF); },
         "Get COM port max number available failure. [serr:203]"},
        {Opened(3), "COM8 has been opened by another application. Close and try again."},
        {Opened(2), "COM5 has been opened by another application. Close and try again."},
        {nth("RegQueryValueExW", 4), "COM6 check opened failure. [serr:101]"},
        {nth("ComDBOpen", 2), "KVR channle(2), COM5 remap to temporary COM256 failure. [serr:200]"},
        {rename(1), "KVR channle(2), COM5 remap to temporary COM256 failure. [serr:300]"},
        {rename(2), "KVR channle(1), COM7 remap to COM5 failure. [serr:300]", {7, 256, 8, 6}},
        {rename(3), "KVR channle(2), temporary COM256 remap to COM7 failure. [serr:300]", {5, 256, 8, 6}},
        {rename(4), "KVR channle(4), COM6 remap to temporary COM256 failure. [serr:300]", {5, 7, 8, 6}},
        {rename(9), "KVR channle(4), temporary COM256 remap to COM8 failure. [serr:300]", {5, 6, 7, 256}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.box);
        sim::Machine machine = BoardOn({7, 5, 8, 6});
        const AtWork at_work(machine);
        const OpenBoard board;
        Forget(machine);
        each.change(machine);
        const Dialog dialog = SortInDialog(machine, board.Channel(3));
        EXPECT_EQ(NumbersOf(machine, 4), each.after);
        ASSERT_EQ(machine.boxes.size(), 1u);
        EXPECT_EQ(machine.boxes[0].owner, each.box == no_memory ? dialog.button : dialog.window);
        EXPECT_EQ(sim::ToUtf8(machine.boxes[0].text), each.box);
        EXPECT_EQ(board.params.ChlListChanged, each.box != no_memory);
        std::vector<std::string> buttons;
        for (const sim::JournalEntry& entry : machine.journal) {
            if (entry.name == "EnableWindow" && !entry.detail.starts_with("104")) {
                buttons.push_back(entry.detail);
            }
        }
        const std::vector<std::string> off_and_on = {"1 off", "2 off", "844 off", "1054 off",
                                                     "1 on",  "2 on",  "844 on",  "1054 on"};
        buttons.erase(buttons.begin()); // the dialog's own
        EXPECT_EQ(buttons, each.box.starts_with("KVR") ? off_and_on : std::vector<std::string>{});
        // Once the obstacle is gone, another click finishes the sort.
        machine.faults = {};
        machine.devices[2].key.SetDword(u"ChlOpened", 0);
        machine.devices[3].key.SetDword(u"ChlOpened", 0);
        sim::SetClaimed(machine.port_usage, 256, std::ranges::count(each.after, 256u) != 0);
        SortInDialog(machine, board.Channel(3));
        Numbers repaired = each.after;
        std::ranges::sort(repaired);
        EXPECT_EQ(NumbersOf(machine, 4), repaired);
    }
}

TEST(ComSort, TakesABoardAsItFindsIt) {
    const auto name = [](std::size_t device, const char16_t* text) {
        return [=](sim::Machine& machine) { machine.devices[device].key.SetText(u"PortName", text); };
    };
    const auto no_uart_first = [](sim::Machine& machine) {
        AddChannel(machine, {}, ClassDio, 1);
        machine.devices[1].key.SetDword(u"ChlNumber", 4);
    };
    const auto unclaimed = [](sim::Machine& machine) { machine.port_usage = {}; };
    const auto unwalked = [](sim::Machine& machine) { machine.devices[1].key.SetDword(u"ChlNumber", 2); };
    const struct {
        const char* what;
        Numbers numbers;
        Change change;
        const char* names;
    } cases[] = {
        {"an open port after one that stays", {1, 9, 5}, Opened(3), "COM1 COM9 COM5 "},
        {"an open port that stays", {1, 9, 5}, Opened(1), "COM1 COM5 COM9 "},
        {"a channel in front that is no UART", {9, 5, 3}, no_uart_first, "COM9 COM3 COM5 "},
        {"two UARTs on one number", {9, 5, 5, 3}, [](auto&) {}, "COM3 COM5 COM5 COM9 "},
        {"all UARTs on one number", {5, 5, 5}, [](auto&) {}, "COM5 COM5 COM5 "},
        {"a name without digits takes no part", {9, 5, 3}, name(2, u"COM"), "COM3 COM COM9 "},
        {"nor a name of nothing", {9, 5, 3}, name(3, u""), "COM5 COM9  "},
        {"nor a number above the range", {9, 5, 3}, name(1, u"COM257"), "COM257 COM3 COM5 "},
        {"nor one beyond 32 bits", {9, 5, 3}, name(1, u"COM99999999999"), "COM99999999999 COM3 COM5 "},
        {"numbers that nobody claimed", {256, 255, 254}, unclaimed, "COM254 COM255 COM256 "},
        {"no UART with a place in the walk", {5}, unwalked, "COM5 "},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        sim::Machine machine = BoardOn(each.numbers);
        each.change(machine);
        const AtWork at_work(machine);
        const OpenBoard board;
        for (int click = 0; click < 3; ++click) {
            _SortCOMClicked(nullptr, static_cast<BPPCHL*>(ChlListFirst(&board.params.ChlList)));
        }
        std::string names;
        for (std::size_t device = 1; device <= each.numbers.size(); ++device) {
            names += sim::ToUtf8(PlacesOf(machine, device).port_name) + ' ';
        }
        EXPECT_EQ(names, each.names);
        BPPCHL of_no_board = {};
        EXPECT_FALSE(_SortCOMClicked(nullptr, nullptr) || _SortCOMClicked(nullptr, &of_no_board));
    }
}

TEST(ComSort, PromisedChannelsCostNothingAndThoseBeyondTheNumbersDoNoHarm) {
    const auto operations = [](u32 nr_controller) {
        sim::Machine machine = BoardOn({9, 8, 7, 6, 5, 4, 3, 2, 1});
        machine.devices[0].key.SetDword(u"BoardNrController", nr_controller);
        const AtWork at_work(machine);
        _SortCOMClicked(nullptr, OpenBoard().Channel(1));
        EXPECT_EQ(PlacesOf(machine, 9), PlacesAt(machine, 9, 9));
        return machine.faults.count;
    };
    EXPECT_EQ(operations(10), operations(0xFFFFFFFF));
    Numbers many(300);
    for (std::size_t i = 0; i < many.size(); ++i) {
        many[i] = 256 - static_cast<u32>(i) % 256;
    }
    sim::Machine machine = BoardOn(many);
    sim::SetClaimed(machine.port_usage, 200, false);
    const AtWork at_work(machine);
    machine.journal_reads = false;
    machine.trace = nullptr; // its lines are those of every sort
    const OpenBoard board;
    EXPECT_EQ(board.params.ChlCount, 300u);
    _SortCOMClicked(nullptr, board.Channel(300));
}

} // namespace
