// Sort UART on random machines and on six ports in every order, undisturbed and with one operation that
// fails.
#include <algorithm>
#include <functional>
#include <set>
#include <sstream>

#include <rapidcheck.h>

#include "com_numbers/com_sort.h"
#include "tests/at_work.h"
#include "tests/random_check.h"

namespace {

using namespace machines;
using Numbers = std::vector<u32>;

constexpr std::size_t renames_in_exchange = 3;

// A machine with one board among other devices.
struct RandomMachine {
    sim::Machine machine;
    Numbers numbers;                 // of the board's UARTs, in channel order
    std::vector<std::size_t> uarts;  // their devices
    std::vector<std::size_t> others; // the other ports
    std::vector<Places> before;      // places of the other ports
    std::size_t exchanges = 0;

    void Keep(std::size_t other) {
        others.push_back(other);
        before.push_back(PlacesOf(machine, other));
    }
    bool OthersAreAsBefore() {
        return std::ranges::equal(others, before, {},
                                  [&](std::size_t other) { return PlacesOf(machine, other); });
    }
};

// A COM number and what has it: see MakeMachine.
using Entries = std::vector<std::pair<u32, u32>>;
constexpr u32 on_mainboard = 1;
constexpr u32 on_board = 5;

// Each number is used once, and at least one stays free.
RandomMachine MakeMachine(const Entries& entries, bool reversed) {
    RandomMachine made;
    sim::Machine& machine = made.machine;
    AddBoard(machine, {}, 400);
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
        case on_mainboard:
            made.Keep(AddMainboardPort(machine, number));
            break;
        case 2:
            made.Keep(AddUart(machine, {3, 18}, channel, number));
            break;
        case 3:
            AddChannel(machine, {}, ClassDio + number % 4, ++channel);
            break;
        case 4:
            ++channel;
            [[fallthrough]];
        default:
            made.numbers.push_back(number);
            made.uarts.push_back(AddUart(machine, {}, ++channel, number));
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
        for (std::size_t j = i; !seen[j]; made.exchanges += seen[j] ? 0 : 1) {
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

void Sorts(RandomMachine made) {
    sim::Machine& machine = made.machine;
    const sim::Machine before = machine;
    const AtWork at_work(machine);
    machine.journal_reads = false;
    const OpenBoard board;
    Click(board);
    std::ranges::sort(made.numbers);
    for (std::size_t i = 0; i < made.uarts.size(); ++i) {
        RC_ASSERT(PlacesOf(machine, made.uarts[i]) == PlacesAt(machine, made.uarts[i], made.numbers[i]));
    }
    RC_ASSERT(made.OthersAreAsBefore());
    RC_ASSERT(machine.port_usage == before.port_usage);
    RC_ASSERT(machine.dos_names.size() == before.dos_names.size());
    RC_ASSERT(machine.serial_map.list.size() == before.serial_map.list.size());
    RC_ASSERT(machine.profile[0].second.list.size() == before.profile[0].second.list.size());
    RC_ASSERT(Count(machine, "ComDBClaimPort") == renames_in_exchange * made.exchanges);
    RC_ASSERT(board.params.ChlListChanged == (made.exchanges != 0));
    RC_ASSERT(machine.boxes.empty());
}

void SortsAnyMachine() {
    Sorts(AnyMachine());
}

void SortsTheFullestMachine() {
    Entries all_but_one;
    for (u32 number = 256; number != 1; --number) {
        all_but_one.emplace_back(number, on_board);
    }
    Sorts(MakeMachine(all_but_one, false));
}

bool IsOfSerialMap(const sim::JournalEntry& entry) {
    return entry.name == "RegOpenKeyExW" || entry.name == "RegEnumValueW" ||
           entry.detail.starts_with("SERIALCOMM");
}

// Removes from both sides the places that a failing operation leaves wrong silently and permanently.
void LeaveOut(const sim::JournalEntry& failed, Places& places) {
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

// Returns whether there was an operation at that position.
bool SurvivesFailureAt(std::size_t at, RandomMachine made) {
    sim::Machine& machine = made.machine;
    machine.journal_reads = false;
    const AtWork at_work(machine);
    sim::JournalEntry failed;
    {
        const OpenBoard board;
        Forget(machine);
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
            Places places = PlacesOf(machine, made.uarts[i]);
            Places expected = PlacesAt(machine, made.uarts[i], numbers[i]);
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
        // All places agree, and at most one port has a number that was free before. Another click finishes
        // the sort.
        Numbers after;
        for (const std::size_t uart : made.uarts) {
            after.push_back(ComNumberFromName(PlacesOf(machine, uart).port_name.c_str()));
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
    // An exchange takes a hundred operations or more. After the last operation nothing can fail.
    const std::size_t last = 130 * made.exchanges;
    SurvivesFailureAt(*rc::gen::resize(100, rc::gen::inRange<std::size_t>(1, last)), std::move(made));
}

void SurvivesEachFailure() {
    const Entries entries = {{7, on_board}, {1, on_mainboard}, {5, on_board}, {8, on_board}, {6, on_board}};
    std::size_t at = 1;
    while (SurvivesFailureAt(at, MakeMachine(entries, false))) {
        ++at;
    }
    RC_ASSERT(at > 9 * 30u);
}

// All orders of six ports, with each operation of each order failing once. A normal run takes one operation
// in a hundred, starting at a different one for each order; a long run takes all, a quarter of a million
// sorts.
TEST(ComSort, SixPortsInEveryOrderEachOperationMayFailOnce) {
    const std::size_t step = IsLongRun() ? 1 : 97;
    Numbers numbers = {3, 4, 5, 6, 7, 8};
    std::size_t orders = 0;
    do {
        Entries entries;
        for (const u32 number : numbers) {
            entries.emplace_back(number, on_board);
        }
        std::size_t at = 1 + orders++ % step;
        Check(1, 0, [&] {
            Sorts(MakeMachine(entries, false));
            while (SurvivesFailureAt(at, MakeMachine(entries, false))) {
                at += step;
            }
        });
    } while (std::ranges::next_permutation(numbers).found && !testing::Test::HasFailure());
    EXPECT_EQ(orders, 720u);
}

TEST(ComSort, AllNumbersButOneOnOneBoard) {
    Check(1, 0, SortsTheFullestMachine);
}
TEST(ComSort, EachOperationMayFailOnce) {
    Check(1, 0, SurvivesEachFailure);
}
TEST(ComSortAtRandom, SmallMachines) {
    Check(IsLongRun() ? 9500 : 900, 20, SortsAnyMachine);
}
TEST(ComSortAtRandom, LargeMachines) {
    Check(IsLongRun() ? 700 : 60, 100, SortsAnyMachine);
}
TEST(ComSortAtRandom, OneOperationFails) {
    Check(IsLongRun() ? 3000 : 300, 30, SurvivesOneFailure);
}

} // namespace
