// Sort UART: the exchanges it makes, what a failure leaves, and whole machines at random.
#include <algorithm>
#include <functional>
#include <numeric>
#include <set>

#include <rapidcheck.h>

#include "com_numbers/com_sort.h"
#include "resources/resource_ids.h"
#include "tests/at_work.h"

namespace {

using machines::AtWork;
using machines::OpenBoard;
using Numbers = std::vector<u32>;

constexpr std::size_t renames_in_exchange = 3;

// The numbers of a board made by BoardOn, by channel, as all places have them; 0 for a port whose places
// differ.
Numbers NumbersOf(sim::Machine& machine, std::size_t uarts) {
    Numbers numbers;
    for (std::size_t device = 1; device <= uarts; ++device) {
        const machines::Places places = machines::PlacesOf(machine, device);
        const u32 number = ComNumberFromName(places.port_name.c_str());
        numbers.push_back(places == machines::PlacesAt(machine, device, number) ? number : 0);
    }
    return numbers;
}

// The moves as the journal has them, "5->256".
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

TEST(ComSort, MakesTheExchangesInThisOrder) {
    const struct {
        const char* what;
        Numbers before;
        std::vector<std::string> moves;
    } cases[] = {
        {"four ports",
         {7, 5, 8, 6},
         {"5->256", "7->5", "256->7", "6->256", "7->6", "256->7", "7->256", "8->7", "256->8"}},
        {"a cycle of three", {6, 4, 5}, {"4->256", "6->4", "256->6", "5->256", "6->5", "256->6"}},
        {"one in its place", {3, 2, 1}, {"1->256", "3->1", "256->3"}},
        {"ascending", {1, 5, 9}, {}},
        {"one port", {9}, {}},
        {"the highest number is the board's", {256, 1}, {"1->255", "256->1", "255->256"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        sim::Machine machine = machines::BoardOn(each.before);
        const AtWork at_work(machine);
        OpenBoard board;
        machines::Forget(machine);
        machines::SortInDialog(machine, board.Channel(1));
        Numbers after = each.before;
        std::ranges::sort(after);
        EXPECT_EQ(Moves(machine), each.moves);
        EXPECT_EQ(NumbersOf(machine, after.size()), after);
        EXPECT_EQ(board.params.ChlListChanged, !each.moves.empty());
        EXPECT_TRUE(machine.boxes.empty());
        if (each.moves.empty()) {
            EXPECT_EQ(machines::Count(machine, "ComDBOpen") + machines::Count(machine, "RegQueryValueExW"),
                      0u);
        }
        for (std::size_t i = 0; i < after.size(); ++i) {
            const BPPCHL* chl = board.Channel(static_cast<u32>(i) + 1);
            EXPECT_EQ(chl->SavedInfo.Uart.PortName, machines::PortName(after[i]));
            EXPECT_EQ(chl->CurrentInfo.Uart.PortName, machines::PortName(after[i]));
        }
    }
}

TEST(ComSort, ManyPortsInReverseTakeHalfAsManyExchanges) {
    Numbers numbers(255);
    std::iota(numbers.rbegin(), numbers.rend(), 1);
    sim::Machine machine = machines::BoardOn(numbers);
    const AtWork at_work(machine);
    machine.journal_reads = false;
    const OpenBoard board;
    _SortCOMClicked(nullptr, board.Channel(1));
    EXPECT_EQ(machines::Count(machine, "ComDBClaimPort"), 127 * renames_in_exchange);
    std::ranges::sort(numbers);
    EXPECT_EQ(NumbersOf(machine, 255), numbers);
}

// With channels 1 to 4 on 7, 5, 8 and 6.
TEST(ComSort, AFailureLeavesWhatTheMovesBeforeItDid) {
    using Change = std::function<void(sim::Machine&)>;
    const auto nth = [](const char* operation, std::size_t call) {
        return [=](sim::Machine& machine) { machine.faults.at_call = {{operation, call}}; };
    };
    // The n-th rename finds the old DOS name gone on the second look.
    const auto rename = [](std::size_t n) {
        return [=](sim::Machine& machine) { machine.faults.at_call = {{"QueryDosDeviceW", 2 * n}}; };
    };
    const auto opened = [](std::size_t device) {
        return [=](sim::Machine& machine) { machine.devices[device].key.SetDword(u"ChlOpened", 1); };
    };
    const auto all_claimed = [](sim::Machine& machine) { machine.port_usage.fill(0xFF); };
    const struct {
        const char* what;
        Change change;
        Numbers after;
        const char* box;
        bool disables;
    } cases[] = {
        {"no memory",
         nth("LocalAlloc", 1),
         {7, 5, 8, 6},
         "Insufficient memory for this operation;\r\rclose one or "
         "more Windows applications to increase available memory.",
         false},
        {"no database",
         nth("ComDBOpen", 1),
         {7, 5, 8, 6},
         "Get COM port max number available failure. [serr:200]",
         false},
        {"no free number",
         all_claimed,
         {7, 5, 8, 6},
         "Get COM port max number available failure. [serr:203]",
         false},
        {"a port is open",
         opened(3),
         {7, 5, 8, 6},
         "COM8 has been opened by another application. Close and try again.",
         false},
        {"a partner is open",
         opened(2),
         {7, 5, 8, 6},
         "COM5 has been opened by another application. Close and try again.",
         false},
        {"whether a port is open can't be read",
         nth("RegQueryValueExW", 4),
         {7, 5, 8, 6},
         "COM6 check opened failure. [serr:101]",
         false},
        {"S1 of the first exchange",
         rename(1),
         {7, 5, 8, 6},
         "KVR channle(2), COM5 remap to temporary COM256 failure. [serr:300]",
         true},
        {"S2 of the first",
         rename(2),
         {7, 256, 8, 6},
         "KVR channle(1), COM7 remap to COM5 failure. [serr:300]",
         true},
        {"S3 of the first",
         rename(3),
         {5, 256, 8, 6},
         "KVR channle(2), temporary COM256 remap to COM7 failure. [serr:300]",
         true},
        {"S1 of the second",
         rename(4),
         {5, 7, 8, 6},
         "KVR channle(4), COM6 remap to temporary COM256 failure. [serr:300]",
         true},
        {"S3 of the last",
         rename(9),
         {5, 6, 7, 256},
         "KVR channle(4), temporary COM256 remap to COM8 failure. [serr:300]",
         true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        sim::Machine machine = machines::BoardOn({7, 5, 8, 6});
        const AtWork at_work(machine);
        OpenBoard board;
        machines::Forget(machine);
        each.change(machine);
        machines::SortInDialog(machine, board.Channel(3));
        EXPECT_EQ(NumbersOf(machine, 4), each.after);
        ASSERT_EQ(machine.boxes.size(), 1u);
        EXPECT_EQ(sim::ToUtf8(machine.boxes[0].text), each.box);
        EXPECT_EQ(board.params.ChlListChanged, std::string_view(each.what) != "no memory");
        std::vector<std::string> buttons;
        for (const sim::JournalEntry& entry : machine.journal) {
            if (entry.name == "EnableWindow" && !entry.detail.starts_with("104")) {
                buttons.push_back(entry.detail);
            }
        }
        const std::vector<std::string> off_and_on = {"1 off", "2 off", "844 off", "1054 off",
                                                     "1 on",  "2 on",  "844 on",  "1054 on"};
        buttons.erase(buttons.begin()); // the dialog's own
        EXPECT_EQ(buttons, each.disables ? off_and_on : std::vector<std::string>{});
        // Once the obstacle is gone, another click finishes.
        machine.faults = {};
        machine.devices[2].key.SetDword(u"ChlOpened", 0);
        machine.devices[3].key.SetDword(u"ChlOpened", 0);
        sim::SetClaimed(machine.port_usage, 256, std::ranges::count(each.after, 256u) != 0);
        machines::SortInDialog(machine, board.Channel(3));
        Numbers repaired = each.after;
        std::ranges::sort(repaired);
        EXPECT_EQ(NumbersOf(machine, 4), repaired);
    }
}

TEST(ComSort, PortsInTheirPlaceAreNotEvenAsked) {
    sim::Machine machine = machines::BoardOn({4, 2, 3, 1});
    machine.devices[2].key.SetDword(u"ChlOpened", 1);
    const AtWork at_work(machine);
    OpenBoard board;
    machines::Forget(machine);
    _SortCOMClicked(nullptr, board.Channel(2));
    EXPECT_EQ(NumbersOf(machine, 4), (Numbers{1, 2, 3, 4}));
    for (const sim::JournalEntry& entry : machine.journal) {
        EXPECT_FALSE(entry.detail.starts_with("KVR\\Channel\\2") ||
                     entry.detail.starts_with("KVR\\Channel\\3"));
    }
}

TEST(ComSort, ABoardThatBreaksTheAssumptionsEndsWithoutHarm) {
    const auto name = [](std::size_t device, const char16_t* text) {
        return [=](sim::Machine& machine) { machine.devices[device].key.SetText(u"PortName", text); };
    };
    const auto unclaimed = [](sim::Machine& machine) { machine.port_usage = {}; };
    const auto unwalked = [](sim::Machine& machine) { machine.devices[1].key.SetDword(u"ChlNumber", 2); };
    const struct {
        const char* what;
        Numbers numbers;
        std::function<void(sim::Machine&)> change;
        const char* names;
    } cases[] = {
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
        sim::Machine machine = machines::BoardOn(each.numbers);
        each.change(machine);
        const AtWork at_work(machine);
        const OpenBoard board;
        for (int click = 0; click < 3; ++click) {
            _SortCOMClicked(nullptr, static_cast<BPPCHL*>(ChlListFirst(&board.params.ChlList)));
        }
        std::string names;
        for (std::size_t device = 1; device <= each.numbers.size(); ++device) {
            names += sim::ToUtf8(machines::PlacesOf(machine, device).port_name) + ' ';
        }
        EXPECT_EQ(names, each.names);
        EXPECT_FALSE(_SortCOMClicked(nullptr, nullptr));
    }
    Numbers many(300);
    for (std::size_t i = 0; i < many.size(); ++i) {
        many[i] = 256 - static_cast<u32>(i) % 256;
    }
    sim::Machine machine = machines::BoardOn(many);
    sim::SetClaimed(machine.port_usage, 200, false);
    const AtWork at_work(machine);
    machine.journal_reads = false;
    const OpenBoard board;
    EXPECT_EQ(board.params.ChlCount, 300u);
    _SortCOMClicked(nullptr, board.Channel(300));
}

// --- Whole machines at random ---------------------------------------------------------------------------

// A machine with one board among other things.
struct RandomMachine {
    sim::Machine machine;
    Numbers numbers;                      // of the board's UARTs, by channel
    std::vector<std::size_t> uarts;       // their devices
    std::vector<std::size_t> others;      // further ports
    std::vector<machines::Places> before; // theirs
    std::size_t exchanges = 0;

    void Keep(std::size_t other) {
        others.push_back(other);
        before.push_back(machines::PlacesOf(machine, other));
    }
    bool OthersAreAsBefore() {
        return std::ranges::equal(others, before, {},
                                  [&](std::size_t other) { return machines::PlacesOf(machine, other); });
    }
};

// A COM number and what is on it: see MakeMachine.
using Entries = std::vector<std::pair<u32, u32>>;

// Numbers are taken once, and one stays free.
RandomMachine MakeMachine(const Entries& entries, bool reversed) {
    RandomMachine made;
    sim::Machine& machine = made.machine;
    machines::AddBoard(machine, {}, 400);
    std::set<u32> used;
    u32 channel = 0;
    for (const auto& [number, kind] : entries) {
        if (used.size() == 255 || !used.insert(number).second) {
            continue;
        }
        switch (kind) {
        case 0:
            sim::SetClaimed(machine.port_usage, number, true);
            break;
        case 1:
            made.Keep(machines::AddMainboardPort(machine, number));
            break;
        case 2:
            made.Keep(machines::AddUart(machine, {3, 18}, channel, number));
            break;
        case 3:
            machines::AddChannel(machine, {}, ClassDio + number % 4, ++channel);
            break;
        case 4:
            ++channel;
            [[fallthrough]];
        default:
            made.numbers.push_back(number);
            made.uarts.push_back(machines::AddUart(machine, {}, ++channel, number));
        }
    }
    if (reversed) {
        std::ranges::reverse(machine.interfaces);
    }
    // A cycle of k ports takes k - 1 exchanges.
    Numbers sorted = made.numbers;
    std::ranges::sort(sorted);
    std::vector<bool> seen(sorted.size());
    for (std::size_t i = 0; i < seen.size(); ++i) {
        for (std::size_t j = i; !seen[j]; made.exchanges += !seen[j]) {
            seen[j] = true;
            j = static_cast<std::size_t>(std::ranges::lower_bound(sorted, made.numbers[j]) - sorted.begin());
        }
    }
    return made;
}

RandomMachine AnyMachine() {
    const auto entries = rc::gen::container<Entries>(
        rc::gen::pair(rc::gen::inRange<u32>(1, 257), rc::gen::resize(100, rc::gen::inRange<u32>(0, 16))));
    RandomMachine made = MakeMachine(*entries, *rc::gen::arbitrary<bool>());
    RC_PRE(!made.uarts.empty());
    return made;
}

void Click(const OpenBoard& board) {
    BPPCHL* chl = board.params.WalkFirst;
    while (chl->Class != ClassUart) {
        chl = chl->WalkNext;
    }
    _SortCOMClicked(nullptr, chl);
}

// One case of a property with a seed that its test names, so that each run is the same.
template <class Property> void Check(int count, int size, const Property& property) {
    rc::detail::TestParams params;
    params.seed = std::hash<std::string>()(testing::UnitTest::GetInstance()->current_test_info()->name());
    params.maxSuccess = count;
    params.maxSize = size;
    const auto result = rc::detail::checkTestable(property, rc::detail::TestMetadata(), params);
    if (!result.template is<rc::detail::SuccessResult>()) {
        std::ostringstream report;
        rc::detail::printResultMessage(result, report);
        FAIL() << "seed " << params.seed << '\n' << report.str();
    }
}

void SortsAnyMachine() {
    RandomMachine made = AnyMachine();
    sim::Machine& machine = made.machine;
    const sim::Machine before = machine;
    const AtWork at_work(machine);
    machine.journal_reads = false;
    const OpenBoard board;
    Click(board);
    std::ranges::sort(made.numbers);
    for (std::size_t i = 0; i < made.uarts.size(); ++i) {
        RC_ASSERT(machines::PlacesOf(machine, made.uarts[i]) ==
                  machines::PlacesAt(machine, made.uarts[i], made.numbers[i]));
    }
    RC_ASSERT(made.OthersAreAsBefore());
    RC_ASSERT(machine.port_usage == before.port_usage);
    RC_ASSERT(machine.dos_names.size() == before.dos_names.size());
    RC_ASSERT(machine.serial_map.list.size() == before.serial_map.list.size());
    RC_ASSERT(machine.profile[0].second.list.size() == before.profile[0].second.list.size());
    RC_ASSERT(machines::Count(machine, "ComDBClaimPort") == renames_in_exchange * made.exchanges);
    RC_ASSERT(board.params.ChlListChanged == (made.exchanges != 0));
    RC_ASSERT(machine.boxes.empty());
}

bool IsOfSerialMap(const sim::JournalEntry& entry) {
    return entry.name == "RegOpenKeyExW" || entry.name == "RegEnumValueW" ||
           entry.detail.starts_with("SERIALCOMM");
}

// Takes from both sides the places that a failing operation leaves behind for good, without a word.
void LeaveOut(const sim::JournalEntry& failed, machines::Places& places) {
    const std::string_view name = failed.name;
    if (name.ends_with("DosDeviceW")) {
        places.dos_name = u"";
    } else if (IsOfSerialMap(failed)) {
        places.serial_map = u"";
    } else if (name == "RegSetValueExW") {
        places.port_name = places.settings_line = u"";
        places.claimed = true;
    } else if (name.starts_with("ComDB")) {
        places.claimed = true;
    } else if (name.ends_with("DeviceRegistryPropertyW")) {
        places.friendly_name = u"";
    } else if (name == "LocalAlloc" || name.ends_with("ProfileStringW")) {
        places.settings_line = u"";
    }
}

// True if there was an operation at that place.
bool SurvivesFailureAt(std::size_t at, RandomMachine made) {
    sim::Machine& machine = made.machine;
    machine.journal_reads = false;
    const AtWork at_work(machine);
    sim::JournalEntry failed;
    {
        const OpenBoard board;
        machines::Forget(machine);
        machine.faults.when = [&](const sim::JournalEntry& entry) {
            const bool fails = machine.faults.count == at;
            failed = fails ? entry : failed;
            return fails;
        };
        Click(board);
        machine.faults = {};
    }
    RC_LOG() << "operation " << at << ", " << failed.name << ' ' << failed.detail << '\n';
    std::ranges::sort(made.numbers);
    const auto expect_numbers = [&](const Numbers& numbers, bool silent) {
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            machines::Places places = machines::PlacesOf(machine, made.uarts[i]);
            machines::Places expected = machines::PlacesAt(machine, made.uarts[i], numbers[i]);
            if (silent) {
                LeaveOut(failed, places);
                LeaveOut(failed, expected);
            }
            RC_ASSERT(places == expected);
        }
    };
    if (machine.boxes.empty()) {
        expect_numbers(made.numbers, true);
        machine.journal.clear();
        Click(OpenBoard());
        const bool name_is_wrong = failed.name == "RegSetValueExW" && !IsOfSerialMap(failed);
        RC_ASSERT(name_is_wrong || machine.journal.empty());
    } else {
        // All places agree, and at most one port is on a number that was free. Another click finishes.
        Numbers after;
        for (const std::size_t uart : made.uarts) {
            after.push_back(ComNumberFromName(machines::PlacesOf(machine, uart).port_name.c_str()));
        }
        expect_numbers(after, false);
        std::ranges::sort(after);
        Numbers foreign;
        std::ranges::set_difference(after, made.numbers, std::back_inserter(foreign));
        RC_ASSERT(foreign.size() <= 1);
        Click(OpenBoard());
        expect_numbers(after, false);
    }
    RC_ASSERT(made.OthersAreAsBefore());
    return !failed.name.empty();
}

void SurvivesOneFailure() {
    RandomMachine made = AnyMachine();
    RC_PRE(made.exchanges != 0);
    // An exchange is of a hundred operations and more; behind the last all goes well.
    const std::size_t last = 130 * made.exchanges;
    SurvivesFailureAt(*rc::gen::resize(100, rc::gen::inRange<std::size_t>(1, last)), std::move(made));
}

void SurvivesEachFailure() {
    constexpr u32 on_mainboard = 1;
    constexpr u32 on_board = 5;
    const Entries entries = {{7, on_board}, {1, on_mainboard}, {5, on_board}, {8, on_board}, {6, on_board}};
    std::size_t at = 1;
    while (SurvivesFailureAt(at, MakeMachine(entries, false))) {
        ++at;
    }
    RC_ASSERT(at > 9 * 30u);
}

TEST(ComSort, EachOperationMayFailOnce) {
    Check(1, 0, SurvivesEachFailure);
}
TEST(ComSortAtRandom, SmallMachines) {
    Check(9500, 20, SortsAnyMachine);
}
TEST(ComSortAtRandom, LargeMachines) {
    Check(700, 100, SortsAnyMachine);
}
TEST(ComSortAtRandom, OneOperationFails) {
    Check(3000, 30, SurvivesOneFailure);
}

} // namespace
