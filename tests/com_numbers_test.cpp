// The COM port database, the rename in its five places, and the steps before and after it.
#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "com_numbers/com_port_database.h"
#include "com_numbers/com_remap.h"
#include "com_numbers/port_device.h"
#include "com_numbers/port_rename.h"
#include "com_numbers/port_settings_migration.h"
#include "reporting/error_reporter.h"
#include "reporting/statuses.h"
#include "tests/at_work.h"

namespace {

using namespace machines;
using sim::Reach;
using Change = std::function<void(sim::Machine&)>;

constexpr std::size_t port = 1; // the device of BoardOn's first UART

// --- The database ---------------------------------------------------------------------------------------

TEST(ComPortDatabase, NumbersAreBitsAndTheHighestFreeOneWins) {
    const struct {
        const char* what;
        u32 first, last, exception; // all of these are claimed except one
        u32 status, number;
    } cases[] = {
        {"an empty database", 1, 0, 0, 0, 256},        {"the highest claimed", 256, 256, 0, 0, 255},
        {"only the highest free", 1, 255, 0, 0, 256},  {"only the lowest free", 2, 256, 0, 0, 1},
        {"the last of a byte free", 1, 256, 8, 0, 8},  {"the first of a byte free", 1, 256, 9, 0, 9},
        {"all claimed", 1, 256, 0, StatusNoneFree, 0},
    };
    for (const auto& each : cases) {
        sim::Machine machine;
        for (u32 number = each.first; number <= each.last; ++number) {
            const BYTE bit = static_cast<BYTE>(number % 8 == 0 ? 0x80 : 1 << (number % 8 - 1));
            machine.port_usage[(number - 1) / 8] |= number == each.exception ? BYTE{0} : bit;
        }
        const AtWork at_work(machine);
        u32 number = 77;
        EXPECT_EQ(Kavro_COMPortGetMaxNumberAvailable(&number), each.status) << each.what;
        EXPECT_EQ(number, each.number) << each.what;
        for (u32 n = 1; n <= 256; ++n) {
            const bool claimed = n >= each.first && n <= each.last && n != each.exception;
            EXPECT_EQ(Kavro_COMPortCheckNumberInUse(n), claimed ? StatusNumberClaimed : 0) << each.what << n;
        }
    }
}

// --- The rename -----------------------------------------------------------------------------------------

// A user who may not take a claimed number renames a UART from COM5 to COM7.
bool RenameFrom5To7() {
    OpenDevice device(port);
    BPPCHL channel = {};
    for (ChannelInfo* info : {&channel.SavedInfo, &channel.CurrentInfo}) {
        CopyText(info->Uart.PortName, StoreTextCapacity, u"COM5");
    }
    constexpr RenameTerms terms = {FailurePortNumberInUse, FailurePortOpened, FailurePortRemap, false};
    const bool renamed = RemapForUser(nullptr, terms, device.set, &device.data, 5, 7);
    if (renamed) {
        Kavro_COMPortBroadcastRemap(device.set, &device.data);
        NameChannel(&channel, 7);
        MoveChannelSettings(&channel);
    }
    EXPECT_EQ(sim::ToUtf8(channel.CurrentInfo.Uart.PortName), renamed ? "COM7" : "COM5");
    EXPECT_EQ(sim::ToUtf8(channel.SavedInfo.Uart.PortName), renamed ? "COM7" : "COM5");
    return renamed;
}

TEST(PortRename, TouchesTheOutsideInThisOrder) {
    sim::Machine machine = BoardOn({5, 6});
    machine.devices[port].install_flags = 0x10;
    const AtWork at_work(machine);
    ASSERT_TRUE(RenameFrom5To7());
    const std::string device = "KVR\\Channel\\1";
    const std::vector<std::string> expected = {
        // The number is free.
        "ComDBOpen", "ComDBGetCurrentPortUsage", "ComDBClose",
        // The port is closed.
        "SetupDiOpenDevRegKey " + device, "RegQueryValueExW " + device + " ChlOpened", "RegCloseKey",
        // The rename.
        "LocalAlloc 696 bytes", "SetupDiOpenDevRegKey " + device, "ComDBOpen", "QueryDosDeviceW COM5",
        "QueryDosDeviceW COM5", "DefineDosDeviceW remove COM5", "DefineDosDeviceW COM7 -> \\Device\\Serial1",
        "RegOpenKeyExW Hardware\\DeviceMap\\SerialComm", "RegEnumValueW SERIALCOMM 0",
        "RegSetValueExW SERIALCOMM \\Device\\Serial1 = \"COM7\"", "RegCloseKey", "ComDBReleasePort 5",
        "ComDBClaimPort 7 force", "SetupDiGetDeviceRegistryPropertyW " + device + " description",
        "SetupDiSetDeviceRegistryPropertyW " + device + " friendly name = \"Board channel (COM7)\"",
        "RegSetValueExW " + device + " PortName = \"COM7\"", "ComDBClose", "RegCloseKey", "LocalFree",
        // The device is told.
        "SetupDiGetDeviceInstallParamsW " + device,
        "SetupDiSetDeviceInstallParamsW " + device + " flags 0x00004010",
        "SetupDiSetClassInstallParamsW " + device + " DIF_PROPERTYCHANGE",
        "SetupDiCallClassInstaller " + device + " DIF_PROPERTYCHANGE",
        // The settings move.
        "LocalAlloc 12 bytes", "LocalAlloc 12 bytes",
        "GetProfileStringW [Ports] COM5:", "WriteProfileStringW [Ports] COM7: = \"1201,e,7,1\"",
        "SendNotifyMessageW WM_WININICHANGE \"Ports\"", "WriteProfileStringW [Ports] COM5: deleted",
        "LocalFree", "LocalFree",
        // The test's own set.
        "SetupDiDestroyDeviceInfoList"};
    EXPECT_EQ(Journal(machine, {Reach::Memory, Reach::Read, Reach::Write}), expected);
    EXPECT_EQ(PlacesOf(machine, port), PlacesAt(machine, port, 7));
    EXPECT_EQ(PlacesOf(machine, 2), PlacesAt(machine, 2, 6));
}

// The state of the port's places: PortName, friendly name, DOS names, serial map, database, line. "5d" stands
// for the default line.
std::string State(sim::Machine& machine) {
    const Places places = PlacesOf(machine, port);
    sim::Text names;
    for (const auto& [name, target] : machine.dos_names) {
        names += name == u"COM6" ? u"" : names.empty() ? name : u' ' + name;
    }
    std::string claimed;
    std::string lines;
    for (const u32 number : {5, 7}) {
        const std::string digit = std::to_string(number);
        claimed += sim::IsClaimed(machine.port_usage, number) ? digit : "";
        const sim::Text line = Line(machine, number);
        lines += line.empty() ? "" : line == LineOf(port) ? digit : digit + "d";
    }
    std::string state = sim::ToUtf8(places.port_name + u" | " + places.friendly_name + u" | " + names +
                                    u" | " + places.serial_map) +
                        " | " + claimed + " | " + lines;
    for (const std::string_view part : {"Board channel ", "COM"}) {
        for (std::size_t at; (at = state.find(part)) != std::string::npos;) {
            state.erase(at, part.size());
        }
    }
    return state;
}
constexpr const char* untouched = "5 | (5) | 5 | 5 | 5 | 5";
constexpr const char* renamed = "7 | (7) | 7 | 7 | 7 | 7";

using Call = std::pair<std::string_view, std::size_t>; // a name, and the number of the call
struct Outcome {
    std::string state = renamed;
    std::string box = {};
    bool done = box.empty();
};
const std::map<Call, Outcome> after_failure = {
    {{"ComDBOpen", 1}, {untouched, "Check COM port in use failure. [serr:200]"}},
    {{"ComDBGetCurrentPortUsage", 1}, {untouched, "Check COM port in use failure. [serr:201]"}},
    {{"SetupDiOpenDevRegKey", 1}, {untouched, "Check COM port opened failure. [serr:100]"}},
    {{"RegQueryValueExW", 1}, {untouched, "Check COM port opened failure. [serr:101]"}},
    {{"LocalAlloc", 1}, {untouched, "There was an error renaming the COM port."}},
    {{"SetupDiOpenDevRegKey", 2}, {untouched, "There was an error renaming the COM port."}},
    {{"ComDBOpen", 2}, {untouched, "There was an error renaming the COM port."}},
    {{"QueryDosDeviceW", 1}, {"7 | (7) | 5 | 7 | 7 | 7"}},
    {{"QueryDosDeviceW", 2}, {untouched, "There was an error renaming the COM port."}},
    {{"DefineDosDeviceW", 1}, {"7 | (7) | 5 7 | 7 | 7 | 7"}},
    {{"DefineDosDeviceW", 2}, {untouched, "There was an error renaming the COM port."}},
    {{"RegOpenKeyExW", 1}, {"7 | (7) | 7 | 5 | 7 | 7"}},
    {{"RegEnumValueW", 1}, {"7 | (7) | 7 | 5 | 7 | 7"}},
    {{"RegSetValueExW", 1}, {"7 | (7) | 7 | 5 | 7 | 7"}},
    {{"ComDBReleasePort", 1}, {"7 | (7) | 7 | 7 | 57 | 7"}},
    {{"ComDBClaimPort", 1}, {"7 | (7) | 7 | 7 |  | 7"}},
    {{"SetupDiGetDeviceRegistryPropertyW", 1}, {"7 | 7 | 7 | 7 | 7 | 7"}},
    {{"SetupDiSetDeviceRegistryPropertyW", 1}, {"7 | (5) | 7 | 7 | 7 | 7"}},
    {{"RegSetValueExW", 2}, {"5 | (7) | 7 | 7 | 7 | 7"}},
    {{"LocalAlloc", 2}, {"7 | (7) | 7 | 7 | 7 | 5"}},
    {{"LocalAlloc", 3}, {"7 | (7) | 7 | 7 | 7 | 5"}},
    {{"GetProfileStringW", 1}, {"7 | (7) | 7 | 7 | 7 | 7d"}},
    {{"WriteProfileStringW", 1}, {"7 | (7) | 7 | 7 | 7 | "}},
    {{"WriteProfileStringW", 2}, {"7 | (7) | 7 | 7 | 7 | 57"}},
};
// Pairs of failures that leave something else than the later one alone, or than the earlier one if only that
// leaves anything.
const std::map<std::pair<Call, Call>, Outcome> after_both = {
    {{{"DefineDosDeviceW", 2}, {"DefineDosDeviceW", 3}},
     {"5 | (5) |  | 5 | 5 | 5", "There was an error renaming the COM port."}},
    {{{"RegOpenKeyExW", 1}, {"RegSetValueExW", 1}}, {"5 | (7) | 7 | 5 | 7 | 7"}}, // the one of PortName
    {{{"RegEnumValueW", 1}, {"RegSetValueExW", 1}}, {"5 | (7) | 7 | 5 | 7 | 7"}},
    {{{"ComDBReleasePort", 1}, {"ComDBClaimPort", 1}}, {"7 | (7) | 7 | 7 | 5 | 7"}},
    {{{"GetProfileStringW", 1}, {"WriteProfileStringW", 1}}, {"7 | (7) | 7 | 7 | 7 | "}},
    {{{"GetProfileStringW", 1}, {"WriteProfileStringW", 2}}, {"7 | (7) | 7 | 7 | 7 | 57d"}},
    {{{"WriteProfileStringW", 1}, {"WriteProfileStringW", 2}}, {"7 | (7) | 7 | 7 | 7 | 5"}},
};

Outcome OutcomeOf(const Call& failed) {
    const auto row = after_failure.find(failed);
    return row != after_failure.end() ? row->second : Outcome();
}

// Place by place, the differences from a rename without failure.
Outcome OutcomeOf(const Call& failed, const Call& failed_too) {
    const auto row = after_both.find({failed, failed_too});
    Outcome first = OutcomeOf(failed), second = OutcomeOf(failed_too);
    if (row != after_both.end()) {
        return row->second;
    }
    if (!first.done) {
        return first;
    }
    if (!second.done) {
        return second;
    }
    const auto places = [](const std::string& state) {
        std::vector<std::string> parts;
        std::size_t from = 0;
        for (std::size_t to; (to = state.find(" | ", from)) != std::string::npos; from = to + 3) {
            parts.push_back(state.substr(from, to - from));
        }
        parts.push_back(state.substr(from));
        return parts;
    };
    std::string state;
    const auto one = places(first.state), other = places(second.state), sound = places(renamed);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        state += (i == 0 ? "" : " | ") + (other[i] == sound[i] ? one[i] : other[i]);
    }
    return {state, ""};
}

// Renames with failures at these operations. Returns the failures that occurred.
std::vector<Call> ExpectOutcomeWithFailures(const std::vector<std::size_t>& at) {
    sim::Machine machine = BoardOn({5, 6});
    const AtWork at_work(machine);
    machine.faults.at = at;
    const bool done = RenameFrom5To7();
    std::vector<Call> failed = FailedCalls(machine);
    const Outcome expected = failed.size() == 2   ? OutcomeOf(failed[0], failed[1])
                             : failed.size() == 1 ? OutcomeOf(failed[0])
                                                  : Outcome();
    SCOPED_TRACE(testing::PrintToString(failed));
    EXPECT_EQ(done, expected.done);
    EXPECT_EQ(State(machine), expected.state);
    // Each step of the property change is made, whichever of them fails.
    EXPECT_EQ(Count(machine, "SetupDiSetClassInstallParamsW"), done ? 1u : 0u);
    EXPECT_EQ(Count(machine, "SetupDiCallClassInstaller"), done ? 1u : 0u);
    // The second failure may be in the box that reports the first.
    const bool is_untold =
        failed.size() == 2 && !OutcomeOf(failed[0]).done && !after_both.contains({failed[0], failed[1]});
    EXPECT_TRUE(is_untold || machine.boxes.size() == (done ? 0u : 1u));
    EXPECT_TRUE(is_untold || done || sim::ToUtf8(machine.boxes[0].text) == expected.box);
    EXPECT_EQ(PlacesOf(machine, 2), PlacesAt(machine, 2, 6));
    return failed;
}

TEST(PortRename, EveryOneAndTwoOperationsMayFailAndLeaveTheStateOfTheirSteps) {
    std::set<Call> met;
    for (std::size_t one = 1;; ++one) {
        const std::vector<Call> failed = ExpectOutcomeWithFailures({one});
        if (failed.empty()) {
            break;
        }
        met.insert(failed[0]);
        for (std::size_t two = one + 1; ExpectOutcomeWithFailures({one, two}).size() == 2;) {
            ++two;
        }
    }
    for (const auto& [call, outcome] : after_failure) {
        EXPECT_TRUE(met.contains(call)) << call.first << ' ' << call.second;
    }
}

TEST(PortRename, TakesTheMachineAsItFindsIt) {
    const auto map_first = [](const sim::Text& name, DWORD type, const sim::Text& text) {
        return [=](sim::Machine& machine) {
            sim::Values before = std::exchange(machine.serial_map, {});
            machine.serial_map.SetText(name, text);
            machine.serial_map.list[0].type = type;
            std::ranges::copy(before.list, std::back_inserter(machine.serial_map.list));
        };
    };
    const auto target = [](std::size_t length) {
        return [=](sim::Machine& machine) { machine.dos_names[0].second = sim::Text(length, u't'); };
    };
    const auto description = [](const std::optional<sim::Text>& text) {
        return [=](sim::Machine& machine) { machine.devices[port].description = text; };
    };
    const auto database = [](HCOMDB handle) {
        return [=](sim::Machine& machine) { machine.faults.databases = {{2, handle}}; };
    };
    const std::string a71(71, 'a'), a80(80, 'a');
    const auto wide = [](std::size_t count) { return sim::Text(count, u'a'); };
    const struct {
        const char* what;
        Change change;
        std::string state;
    } cases[] = {
        {"no DOS name", [](auto& machine) { machine.dos_names.clear(); }, "7 | (7) |  | 7 | 7 | 7"},
        {"a target that fits its buffer", target(78), renamed},
        {"a target that doesn't is no DOS name", target(79), "7 | (7) | 5 | 7 | 7 | 7"},
        {"no serial map", [](auto& machine) { machine.serial_map_exists = false; },
         "7 | (7) | 7 | 5 | 7 | 7"},
        {"of two in the map the first", map_first(u"Other", REG_SZ, u"COM5"), "7 | (7) | 7 | 5 | 7 | 7"},
        {"a lower case name in the map is another", map_first(u"Other", REG_SZ, u"com5"), renamed},
        {"a longer name in the map is another", map_first(u"Other", REG_SZ, u"COM55"), renamed},
        {"a shorter name in the map is another", map_first(u"Other", REG_SZ, u"COM"), renamed},
        {"another type in the map is passed over", map_first(u"Other", REG_MULTI_SZ, u"COM5"), renamed},
        {"a name that fits the buffer", map_first(wide(80), REG_SZ, u"x"), renamed},
        {"a name that doesn't ends the scan", map_first(wide(81), REG_SZ, u"x"), "7 | (7) | 7 | 5 | 7 | 7"},
        {"a text that fits the buffer", map_first(u"Other", REG_SZ, wide(80)), renamed},
        {"a text that doesn't ends the scan", map_first(u"Other", REG_SZ, wide(81)),
         "7 | (7) | 7 | 5 | 7 | 7"},
        {"a text in the map without terminator",
         [](auto& machine) { machine.serial_map.list[0].data.resize(8); }, renamed},
        {"a database of no handle", database(nullptr), "7 | (7) | 7 | 7 | 5 | 7"},
        {"a database of no valid handle", database(HCOMDB_INVALID_HANDLE_VALUE), "7 | (7) | 7 | 7 | 5 | 7"},
        {"no description", description(std::nullopt), "7 | 7 | 7 | 7 | 7 | 7"},
        {"an empty description", description(u""), "7 |  (7) | 7 | 7 | 7 | 7"},
        {"a description with just enough room", description(wide(71)), "7 | " + a71 + " (7) | 7 | 7 | 7 | 7"},
        {"a description that cuts into the number", description(wide(77)),
         "7 | " + std::string(77, 'a') + " (C | 7 | 7 | 7 | 7"},
        {"a description of its buffer's length", description(wide(255)), "7 | " + a80 + " | 7 | 7 | 7 | 7"},
        {"a description beyond its buffer", description(wide(256)), "7 | 7 | 7 | 7 | 7 | 7"},
        {"a port without a line", [](auto& machine) { machine.profile.clear(); }, "7 | (7) | 7 | 7 | 7 | 7d"},
        {"an empty line", [](auto& machine) { SetLine(machine, 5, u""); }, "7 | (7) | 7 | 7 | 7 | 7d"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        sim::Machine machine = BoardOn({5, 6});
        const AtWork at_work(machine);
        each.change(machine);
        RenameFrom5To7();
        EXPECT_EQ(State(machine), each.state);
    }
}

TEST(PortRename, ADosNameThatStayedIsNotDefinedAgain) {
    sim::Machine machine = BoardOn({5, 6});
    const AtWork at_work(machine);
    machine.faults.at_call = {{"DefineDosDeviceW", 1}, {"DefineDosDeviceW", 2}};
    EXPECT_FALSE(RenameFrom5To7());
    EXPECT_EQ(State(machine), untouched);
    EXPECT_EQ(Count(machine, "DefineDosDeviceW"), 2u);
}

// --- The steps before and after it ----------------------------------------------------------------------

TEST(PortSettingsMigration, MovesALineAsItIsWithBothKeysThereAtTheNotice) {
    const sim::Text longest(80, u'9');
    const struct {
        sim::Text line;
        sim::Text moved;
    } cases[] = {
        {u"115200,n,8,1", u"115200,n,8,1"},
        {u" ,,garbage,\x0665", u" ,,garbage,\x0665"},
        {u"9", u"9"},
        {longest, longest},
        {longest + u"9", longest},
    };
    for (const auto& each : cases) {
        sim::Machine machine;
        SetLine(machine, 5, each.line);
        const AtWork at_work(machine);
        std::size_t notices = 0;
        machine.faults.when = [&](const sim::JournalEntry& entry) {
            if (entry.name == "SendNotifyMessageW") {
                ++notices;
                EXPECT_EQ(Line(machine, 5), each.line);
                EXPECT_EQ(Line(machine, 256), each.moved);
            }
            return false;
        };
        Kavro_COMPortMigratePortSettings(u"COM5", u"COM256");
        EXPECT_EQ(notices, 1u);
        EXPECT_EQ(Line(machine, 5), u"");
        EXPECT_EQ(Line(machine, 256), each.moved);
    }
}

TEST(PortOpenCheck, AnyNumberButZeroIsOpen) {
    const struct {
        std::vector<BYTE> value;
        u32 status;
    } cases[] = {
        {{0, 0, 0, 0}, 0},
        {{1, 0, 0, 0}, StatusPortOpened},
        {{0xFF, 0xFF, 0xFF, 0xFF}, StatusPortOpened},
        {{0, 0, 0, 0x80}, StatusPortOpened},
        {{}, 0},
        {{2}, StatusPortOpened},
        {{0, 0, 1}, StatusPortOpened},
        {{0, 0, 0, 0, 0}, StatusReadFailed},
    };
    for (const auto& each : cases) {
        sim::Machine machine = BoardOn({5});
        machine.devices[port].key.Set(u"ChlOpened", REG_BINARY, each.value);
        const AtWork at_work(machine);
        OpenDevice device(port);
        EXPECT_EQ(Kavro_COMPortCheckOpened(device.set, &device.data), each.status)
            << testing::PrintToString(each.value);
    }
}

} // namespace
