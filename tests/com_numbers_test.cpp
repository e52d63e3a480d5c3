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

// What each place holds after a rename from COM5 to COM7; by default, after one that went through. Several
// names in one place are separated by blanks.
struct State {
    std::string port_name = "COM7";
    std::string friendly_name = "Board channel (COM7)";
    std::string dos_names = "COM7";
    std::string serial_map = "COM7";
    std::string claimed = "COM7";
    std::string settings = "COM7"; // the names with a line; "default" follows if it is not the port's own
    friend bool operator==(const State&, const State&) = default;
};
const State renamed;
const State untouched = {"COM5", "Board channel (COM5)", "COM5", "COM5", "COM5", "COM5"};

std::ostream& operator<<(std::ostream& out, const State& state) {
    return out << "port name " << state.port_name << ", friendly name " << state.friendly_name
               << ", DOS names " << state.dos_names << ", serial map " << state.serial_map << ", claimed "
               << state.claimed << ", settings " << state.settings;
}

State StateOf(sim::Machine& machine) {
    const Places places = PlacesOf(machine, port);
    State state = {sim::ToUtf8(places.port_name),
                   sim::ToUtf8(places.friendly_name),
                   "",
                   sim::ToUtf8(places.serial_map),
                   "",
                   ""};
    const auto add = [](std::string& names, const std::string& name) {
        names += (names.empty() ? "" : " ") + name;
    };
    for (const auto& [name, target] : machine.dos_names) {
        if (name != u"COM6") { // of the other port
            add(state.dos_names, sim::ToUtf8(name));
        }
    }
    for (const u32 number : {5, 7}) {
        const std::string name = sim::ToUtf8(PortName(number));
        const sim::Text line = Line(machine, number);
        if (sim::IsClaimed(machine.port_usage, number)) {
            add(state.claimed, name);
        }
        if (!line.empty()) {
            add(state.settings, line == LineOf(port) ? name : name + " default");
        }
    }
    return state;
}

using Call = std::pair<std::string_view, std::size_t>; // a name, and the number of the call
struct Outcome {
    State state;
    const char* box = nullptr; // what a refused rename shows
};
const char* const rename_failed = "There was an error renaming the COM port.";
const std::map<Call, Outcome> after_failure = {
    {{"ComDBOpen", 1}, {untouched, "Check COM port in use failure. [serr:200]"}},
    {{"ComDBGetCurrentPortUsage", 1}, {untouched, "Check COM port in use failure. [serr:201]"}},
    {{"SetupDiOpenDevRegKey", 1}, {untouched, "Check COM port opened failure. [serr:100]"}},
    {{"RegQueryValueExW", 1}, {untouched, "Check COM port opened failure. [serr:101]"}},
    {{"LocalAlloc", 1}, {untouched, rename_failed}},
    {{"SetupDiOpenDevRegKey", 2}, {untouched, rename_failed}},
    {{"ComDBOpen", 2}, {untouched, rename_failed}},
    {{"QueryDosDeviceW", 1}, {{.dos_names = "COM5"}}},
    {{"QueryDosDeviceW", 2}, {untouched, rename_failed}},
    {{"DefineDosDeviceW", 1}, {{.dos_names = "COM5 COM7"}}},
    {{"DefineDosDeviceW", 2}, {untouched, rename_failed}},
    {{"RegOpenKeyExW", 1}, {{.serial_map = "COM5"}}},
    {{"RegEnumValueW", 1}, {{.serial_map = "COM5"}}},
    {{"RegSetValueExW", 1}, {{.serial_map = "COM5"}}},
    {{"ComDBReleasePort", 1}, {{.claimed = "COM5 COM7"}}},
    {{"ComDBClaimPort", 1}, {{.claimed = ""}}},
    {{"SetupDiGetDeviceRegistryPropertyW", 1}, {{.friendly_name = "COM7"}}},
    {{"SetupDiSetDeviceRegistryPropertyW", 1}, {{.friendly_name = "Board channel (COM5)"}}},
    {{"SetupDiGetDeviceInstallParamsW", 1}, {renamed}},
    {{"SetupDiSetDeviceInstallParamsW", 1}, {renamed}},
    {{"SetupDiSetClassInstallParamsW", 1}, {renamed}},
    {{"SetupDiCallClassInstaller", 1}, {renamed}},
    {{"RegSetValueExW", 2}, {{.port_name = "COM5"}}},
    {{"LocalAlloc", 2}, {{.settings = "COM5"}}},
    {{"LocalAlloc", 3}, {{.settings = "COM5"}}},
    {{"GetProfileStringW", 1}, {{.settings = "COM7 default"}}},
    {{"WriteProfileStringW", 1}, {{.settings = ""}}},
    {{"SendNotifyMessageW", 1}, {renamed}},
    {{"WriteProfileStringW", 2}, {{.settings = "COM5 COM7"}}},
};
// Pairs of failures that work together: each of the others leaves what its two leave alone.
const std::map<std::pair<Call, Call>, Outcome> after_both = {
    {{{"DefineDosDeviceW", 2}, {"DefineDosDeviceW", 3}},
     {{"COM5", "Board channel (COM5)", "", "COM5", "COM5", "COM5"}, rename_failed}},
    // The value written first is then the one of PortName.
    {{{"RegOpenKeyExW", 1}, {"RegSetValueExW", 1}}, {{.port_name = "COM5", .serial_map = "COM5"}}},
    {{{"RegEnumValueW", 1}, {"RegSetValueExW", 1}}, {{.port_name = "COM5", .serial_map = "COM5"}}},
    {{{"ComDBReleasePort", 1}, {"ComDBClaimPort", 1}}, {{.claimed = "COM5"}}},
    {{{"GetProfileStringW", 1}, {"WriteProfileStringW", 2}}, {{.settings = "COM5 COM7 default"}}},
    {{{"WriteProfileStringW", 1}, {"WriteProfileStringW", 2}}, {{.settings = "COM5"}}},
};

// What failures leave; a call without a row leaves nothing. A refusal ends the rename, so nothing that fails
// in its wake, such as its box, leaves anything more.
Outcome OutcomeOf(const std::vector<Call>& failed) {
    Outcome outcome;
    for (const Call& call : failed) {
        const auto row = after_failure.find(call);
        if (row == after_failure.end()) {
            continue;
        }
        if (row->second.box != nullptr) {
            return row->second;
        }
        for (std::string State::*place : {&State::port_name, &State::friendly_name, &State::dos_names,
                                          &State::serial_map, &State::claimed, &State::settings}) {
            const std::string& left = row->second.state.*place;
            outcome.state.*place = left != renamed.*place ? left : outcome.state.*place;
        }
    }
    return outcome;
}

// Renames with failures at these operations. Returns the failures that occurred.
std::vector<Call> ExpectOutcomeWithFailures(const std::vector<std::size_t>& at) {
    sim::Machine machine = BoardOn({5, 6});
    const AtWork at_work(machine);
    machine.faults.at = at;
    const bool done = RenameFrom5To7();
    std::vector<Call> failed = FailedCalls(machine);
    SCOPED_TRACE(testing::PrintToString(failed));
    const auto together = failed.size() == 2 ? after_both.find({failed[0], failed[1]}) : after_both.end();
    const Outcome expected = together != after_both.end() ? together->second : OutcomeOf(failed);
    EXPECT_EQ(done, expected.box == nullptr);
    EXPECT_EQ(StateOf(machine), expected.state);
    // Each step of the property change is made, whichever of them fails.
    EXPECT_EQ(Count(machine, "SetupDiSetClassInstallParamsW"), done ? 1u : 0u);
    EXPECT_EQ(Count(machine, "SetupDiCallClassInstaller"), done ? 1u : 0u);
    // The second failure may be in the box that reports the first.
    const bool is_untold =
        failed.size() == 2 && together == after_both.end() && OutcomeOf({failed[0]}).box != nullptr;
    EXPECT_TRUE(is_untold || machine.boxes.size() == (done ? 0u : 1u));
    EXPECT_TRUE(is_untold || done || sim::ToUtf8(machine.boxes[0].text) == expected.box);
    EXPECT_EQ(PlacesOf(machine, 2), PlacesAt(machine, 2, 6));
    return failed;
}

TEST(PortRename, EveryOneAndTwoOperationsMayFailAndLeaveTheStateOfTheirSteps) {
    std::set<Call> met;
    std::set<std::pair<Call, Call>> met_together;
    for (std::size_t one = 1;; ++one) {
        const std::vector<Call> failed = ExpectOutcomeWithFailures({one});
        if (failed.empty()) {
            break;
        }
        met.insert(failed[0]);
        for (std::size_t two = one + 1;; ++two) {
            const std::vector<Call> both = ExpectOutcomeWithFailures({one, two});
            if (both.size() != 2) {
                break;
            }
            met_together.insert({both[0], both[1]});
        }
    }
    for (const auto& [call, outcome] : after_failure) {
        EXPECT_TRUE(met.contains(call)) << call.first << ' ' << call.second;
    }
    for (const auto& [calls, outcome] : after_both) {
        EXPECT_TRUE(met_together.contains(calls)) << calls.first.first << ", " << calls.second.first;
        EXPECT_NE(OutcomeOf({calls.first, calls.second}).state, outcome.state) << "needs no row";
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
        State state;
    } cases[] = {
        {"no DOS name", [](auto& machine) { machine.dos_names.clear(); }, {.dos_names = ""}},
        {"a target that fits its buffer", target(78), renamed},
        {"a target that doesn't is no DOS name", target(79), {.dos_names = "COM5"}},
        {"no serial map", [](auto& machine) { machine.serial_map_exists = false; }, {.serial_map = "COM5"}},
        {"of two in the map the first", map_first(u"Other", REG_SZ, u"COM5"), {.serial_map = "COM5"}},
        {"a lower case name in the map is another", map_first(u"Other", REG_SZ, u"com5"), renamed},
        {"a longer name in the map is another", map_first(u"Other", REG_SZ, u"COM55"), renamed},
        {"a shorter name in the map is another", map_first(u"Other", REG_SZ, u"COM"), renamed},
        {"another type in the map is passed over", map_first(u"Other", REG_MULTI_SZ, u"COM5"), renamed},
        {"a name that fits the buffer", map_first(wide(80), REG_SZ, u"x"), renamed},
        {"a name that doesn't ends the scan", map_first(wide(81), REG_SZ, u"x"), {.serial_map = "COM5"}},
        {"a text that fits the buffer", map_first(u"Other", REG_SZ, wide(80)), renamed},
        {"a text that doesn't ends the scan", map_first(u"Other", REG_SZ, wide(81)), {.serial_map = "COM5"}},
        {"a text in the map without terminator",
         [](auto& machine) { machine.serial_map.list[0].data.resize(8); }, renamed},
        {"a database of no handle", database(nullptr), {.claimed = "COM5"}},
        {"a database of no valid handle", database(HCOMDB_INVALID_HANDLE_VALUE), {.claimed = "COM5"}},
        {"no description", description(std::nullopt), {.friendly_name = "COM7"}},
        {"an empty description", description(u""), {.friendly_name = " (COM7)"}},
        {"a description with just enough room", description(wide(71)), {.friendly_name = a71 + " (COM7)"}},
        {"a description that cuts into the number",
         description(wide(77)),
         {.friendly_name = std::string(77, 'a') + " (C"}},
        {"a description of its buffer's length", description(wide(255)), {.friendly_name = a80}},
        {"a description beyond its buffer", description(wide(256)), {.friendly_name = "COM7"}},
        {"a port without a line",
         [](auto& machine) { machine.profile.clear(); },
         {.settings = "COM7 default"}},
        {"an empty line", [](auto& machine) { SetLine(machine, 5, u""); }, {.settings = "COM7 default"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        sim::Machine machine = BoardOn({5, 6});
        const AtWork at_work(machine);
        each.change(machine);
        RenameFrom5To7();
        EXPECT_EQ(StateOf(machine), each.state);
    }
}

TEST(PortRename, ADosNameThatStayedIsNotDefinedAgain) {
    sim::Machine machine = BoardOn({5, 6});
    const AtWork at_work(machine);
    machine.faults.at_call = {{"DefineDosDeviceW", 1}, {"DefineDosDeviceW", 2}};
    EXPECT_FALSE(RenameFrom5To7());
    EXPECT_EQ(StateOf(machine), untouched);
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
