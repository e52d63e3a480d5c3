// Sort UART on random machines and on six ports in every order, undisturbed and with one or two operations
// that fail.
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

// What is not looked at here takes three quarters of the time.
void Hurry(sim::Machine& machine) {
    machine.journal_reads = false;
    machine.trace = nullptr;
}

void Click(const OpenBoard& board) {
    BPPCHL* chl = board.params.WalkFirst;
    while (chl->Class != ClassUart) {
        chl = chl->WalkNext;
    }
    _SortCOMClicked(nullptr, chl);
}

// How many operations the click was.
std::size_t Sorts(RandomMachine made) {
    sim::Machine& machine = made.machine;
    const sim::Machine before = machine;
    const AtWork at_work(machine);
    Hurry(machine);
    const OpenBoard board;
    Forget(machine);
    Click(board);
    const std::size_t operations = machine.faults.count;
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
    return operations;
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

using Positions = std::vector<std::size_t>;

// Fails the operations at these positions. Returns how many of them there were.
std::size_t SurvivesFailuresAt(const Positions& at, RandomMachine made) {
    sim::Machine& machine = made.machine;
    const AtWork at_work(machine);
    Hurry(machine);
    std::vector<sim::JournalEntry> failed;
    bool told = false; // by a box, unless that is what fails
    Numbers after;     // as the records have them
    {
        const OpenBoard board;
        Forget(machine);
        machine.faults.when = [&](const sim::JournalEntry& entry) {
            const bool fails = std::ranges::find(at, machine.faults.count) != at.end();
            if (fails) {
                failed.push_back(entry);
            }
            told |= entry.name == "MessageBoxW";
            return fails;
        };
        Click(board);
        machine.faults = {};
        for (const BPPCHL* chl = board.params.WalkFirst; chl != nullptr; chl = chl->WalkNext) {
            if (chl->Class == ClassUart) {
                RC_ASSERT(sim::ToUtf8(chl->SavedInfo.Uart.PortName) ==
                          sim::ToUtf8(chl->CurrentInfo.Uart.PortName));
                after.push_back(ComNumberFromName(chl->CurrentInfo.Uart.PortName));
            }
        }
    }
    for (const sim::JournalEntry& entry : failed) {
        RC_LOG() << "failed " << entry.name << ' ' << entry.detail << '\n';
    }
    // A single failure that the user is told of leaves nothing behind.
    const bool leaves = !told || failed.size() > 1;
    const auto expect_numbers = [&](const Numbers& numbers) {
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            Places places = PlacesOf(machine, made.uarts[i]);
            Places expected = PlacesAt(machine, made.uarts[i], numbers[i]);
            for (const sim::JournalEntry& entry : leaves ? failed : std::vector<sim::JournalEntry>()) {
                LeaveOut(entry, places);
                LeaveOut(entry, expected);
            }
            RC_ASSERT(places == expected);
        }
    };
    expect_numbers(after);
    Numbers sorted = after;
    std::ranges::sort(sorted);
    std::ranges::sort(made.numbers);
    Numbers foreign; // at most one port is on a number that was free
    std::ranges::set_difference(sorted, made.numbers, std::back_inserter(foreign));
    RC_ASSERT(foreign.size() <= (told ? 1u : 0u));
    RC_ASSERT(told || after == sorted);
    // Another click finishes, or does nothing, unless a port's own name was not written or a port stays on a
    // number that seems free.
    machine.journal.clear();
    if (std::ranges::none_of(failed, [&](const sim::JournalEntry& entry) {
            return (entry.name == "RegSetValueExW" && !IsOfSerialMap(entry)) ||
                   (entry.name == "ComDBClaimPort" && told);
        })) {
        Click(OpenBoard());
        RC_ASSERT(told || machine.journal.empty());
        expect_numbers(sorted);
    }
    RC_ASSERT(made.OthersAreAsBefore());
    return failed.size();
}

// Of all pairs half are close together, most of them within one rename.
void SurvivesOneOrTwoFailures() {
    RandomMachine made = AnyMachine();
    RC_PRE(made.exchanges != 0);
    // An exchange takes a hundred operations or more. After the last operation nothing can fail.
    const std::size_t last = 130 * made.exchanges;
    const auto below = [](std::size_t bound) {
        return *rc::gen::resize(100, rc::gen::inRange<std::size_t>(0, bound));
    };
    const std::size_t one = 1 + below(last);
    SurvivesFailuresAt({one, one + below(below(2) == 0 ? 40 : last)}, std::move(made));
}

// All orders of six ports. In each order an operation fails, a different one for each order, and then that
// one and one of the next hundred. In one order, and in a long run in each, every operation fails: half a
// million sorts.
TEST(ComSort, SixPortsInEveryOrderOneOrTwoOperationsMayFail) {
    Numbers numbers = {3, 4, 5, 6, 7, 8};
    std::size_t orders = 0;
    do {
        Entries entries;
        for (const u32 number : numbers) {
            entries.emplace_back(number, on_board);
        }
        const bool every = ++orders == 360 || IsLongRun();
        Check(1, 0, [&] {
            const std::size_t operations = Sorts(MakeMachine(entries, false));
            const std::size_t first = every ? 1 : 1 + orders * 97 % operations;
            for (std::size_t at = first; at <= (every ? operations : first); ++at) {
                SurvivesFailuresAt({at}, MakeMachine(entries, false));
                SurvivesFailuresAt({at, at + 1 + (orders * 31 + at) % 100}, MakeMachine(entries, false));
            }
        });
    } while (std::ranges::next_permutation(numbers).found && !testing::Test::HasFailure());
    EXPECT_EQ(orders, 720u);
}

TEST(ComSort, AllNumbersButOneOnOneBoard) {
    Check(1, 0, SortsTheFullestMachine);
}
TEST(ComSortAtRandom, SmallMachines) {
    Check(IsLongRun() ? 9500 : 900, 20, SortsAnyMachine);
}
TEST(ComSortAtRandom, LargeMachines) {
    Check(IsLongRun() ? 700 : 60, 100, SortsAnyMachine);
}
TEST(ComSortAtRandom, OneOrTwoOperationsFail) {
    Check(IsLongRun() ? 9500 : 300, 30, SurvivesOneOrTwoFailures);
}

} // namespace
