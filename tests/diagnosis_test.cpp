// What is found wrong with a machine, and laws that hold for any machine: removing evidence removes findings,
// the pages cause no new ones, mending works, and a patch can be applied and taken back.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <sstream>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <rapidcheck.h>

#include "host/diagnosis/board_table.h"
#include "host/diagnosis/number_map.h"
#include "host/diagnosis/number_ranges.h"
#include "host/diagnosis/ports_table.h"
#include "host/diagnosis/report.h"
#include "host/diagnosis/settings_reading.h"
#include "host/line/line_seat.h"
#include "host/machine_file/patch.h"
#include "host/session/session.h"
#include "host/worlds/simulated/world.h"
#include "tests/machine_files.h"
#include "tests/machines.h"
#include "tests/random_check.h"

namespace {

using namespace machines;
using Names = std::vector<std::string>;

// A file that holds every place of a machine. Such a file identifies an interface by its path alone, and no
// page shows the test machines' settings lines as they are written.
host::MachineFile FileOf(sim::Machine machine) {
    for (std::size_t index = 0; index < machine.interfaces.size(); ++index) {
        machine.interfaces[index].path = u"\\\\?\\" + PortName(static_cast<u32>(index));
    }
    for (sim::Value& line : machine.ProfileSection(u"Ports", true)->list) {
        if (line.data.size() == machine_files::BytesOf(LineOf(1)).size()) {
            line.data = machine_files::BytesOf(u"9600,n,8,1");
        }
    }
    host::MachineFile file;
    file.root.Make(u"SYSTEM\\CurrentControlSet\\Control\\COM Name Arbiter", file.count)
        .values.Set(u"ComDB", REG_BINARY, std::vector<BYTE>(32));
    return host::Changed(file, machine);
}

host::Records RecordsOf(const host::MachineFile& file) {
    sim::Machine machine;
    host::SimulatedWorld world(file, machine);
    return world.Describe();
}

// "stale-claim COM13", or the device's number in the list if there is no COM number.
Names Told(const host::Records& records) {
    Names names;
    for (const host::Finding& finding : host::Diagnose(records)) {
        names.push_back(
            std::string{finding.rule} + ' ' +
            (finding.subject.number ? host::ComName(finding.subject.number) : finding.subject.open));
    }
    return names;
}

// A board with the channels 1 and 2 on COM3 and COM4, and a mainboard port on COM1.
sim::Machine SoundMachine() {
    sim::Machine machine = BoardOn({3, 4});
    AddMainboardPort(machine, 1);
    return machine;
}

void SetNumber(sim::Machine& machine, std::size_t device, std::u16string_view name, DWORD number) {
    machine.devices[device].key.SetDword(name, number);
}

void MakeAbsent(sim::Machine& machine, std::size_t device) {
    for (sim::Interface& one : machine.interfaces) {
        one.linked = one.linked && one.device != device;
    }
}

void TakeFromMap(sim::Machine& machine, std::u16string_view name) {
    std::erase_if(machine.serial_map.list, [&](const sim::Value& value) {
        return value.data == machine_files::BytesOf(sim::Text(name));
    });
}

constexpr std::size_t board = 0, first = 1, second = 2, mainboard = 3; // devices of the machine

TEST(Diagnosis, FindsWhatIsWrong) {
    using Machine = sim::Machine;
    const struct {
        std::function<void(Machine&)> change;
        Names expected;
    } cases[] = {
        {[](Machine&) {}, {}},
        {[](Machine& m) { sim::SetClaimed(m.port_usage, 13, true); }, {"stale-claim COM13"}},
        {[](Machine& m) { sim::SetClaimed(m.port_usage, 300, true); }, {"stale-claim COM300"}},
        {[](Machine& m) { // a live port of another driver
             sim::SetClaimed(m.port_usage, 13, true);
             m.serial_map.SetText(u"\\Device\\Modem", u"COM13");
         },
         {}},
        {[](Machine& m) { sim::SetClaimed(m.port_usage, 4, false); }, {"unclaimed-port COM4"}},
        {[](Machine& m) {
             MakeAbsent(m, second);
             TakeFromMap(m, u"COM4");
         },
         {"ghost-claim COM4"}},
        {[](Machine& m) { TakeFromMap(m, u"COM4"); }, {"not-in-serial-map COM4"}},
        {[](Machine& m) { m.serial_map.SetText(u"\\Device\\Two", u"COM4"); }, {"twice-in-serial-map COM4"}},
        {[](Machine& m) { m.devices[second].key.SetText(u"PortName", u"COM3"); },
         {"same-name COM3", "friendly-number COM3"}},
        {[](Machine& m) { // nothing could be claimed for both of them
             m.devices[second].key.SetText(u"PortName", u"COM3");
             sim::SetClaimed(m.port_usage, 3, false);
         },
         {"same-name COM3", "friendly-number COM3"}},
        {[](Machine& m) { m.devices[mainboard].key.SetText(u"PortName", u"port1"); }, {"no-com-name 2"}},
        {[](Machine& m) { m.devices[mainboard].key.SetText(u"PortName", u"LPT1"); }, {}},
        {[](Machine& m) { m.devices[first].friendly_name = u"A port (COM9)"; }, {"friendly-number COM3"}},
        {[](Machine& m) { m.devices[first].friendly_name = u"A port"; }, {}},
        {[](Machine& m) { SetLine(m, 44, u"9600,n,8,1"); }, {"orphan-line COM44"}},
        {[](Machine& m) { SetLine(m, 3, u"1000000,n,8,1"); }, {"misread-line COM3"}},
        {[](Machine& m) { SetNumber(m, first, u"ChlOpened", 1); }, {"held-open COM3"}},
        {[](Machine& m) { m.devices[board].key.Erase(u"ConfigModel"); },
         {"board-unreadable 1", "channel-without-board COM3", "channel-without-board COM4"}},
        {[](Machine& m) { m.devices[first].key.Erase(u"UartMode"); }, {"channel-unreadable COM3"}},
        {[](Machine& m) { m.devices[first].key.SetQword(u"ChlType", 1); }, {"channel-unreadable COM3"}},
        {[](Machine& m) { SetNumber(m, first, u"BoardIrq", 5); }, {"channel-without-board COM3"}},
        {[](Machine& m) { SetNumber(m, second, u"ChlNumber", 1); }, {"channel-twice COM4"}},
        {[](Machine& m) { SetNumber(m, second, u"ChlNumber", 9); }, {"channel-beyond-board COM4"}},
        {[](Machine& m) { SetNumber(m, first, u"ChlType", 2); }, {"type-no-uart COM3"}},
        {[](Machine& m) { SetNumber(m, first, u"UartMode", 3); }, {"mode-impossible COM3"}},
        {[](Machine& m) { SetNumber(m, first, u"UartCapability", 6); }, {"mode-impossible COM3"}},
        {[](Machine& m) { SetNumber(m, first, u"UartRxFifoLowHigh", 33); }, {"trigger-impossible COM3"}},
        {[](Machine& m) { SetNumber(m, first, u"UartTxFifoLowHigh", 129); }, {"trigger-impossible COM3"}},
        {[](Machine& m) {
             m = BoardOn({4, 3});
         },
         {"numbers-unordered 1"}},
    };
    for (const auto& each : cases) {
        sim::Machine machine = SoundMachine();
        each.change(machine);
        const host::Records records = RecordsOf(FileOf(machine));
        EXPECT_EQ(Told(records), each.expected) << &each - cases;
        // Each finding has its evidence, one that is safe to mend its command, and no number that one is
        // about is said to be in order. In the map of numbers some are conflicts.
        const std::vector<host::Finding> findings = host::Diagnose(records);
        const auto list = host::DiagnosisJson(records, findings, {});
        const std::vector<unsigned long> sound = list["sound"]["numbers"];
        for (const host::Finding& finding : findings) {
            EXPECT_EQ(finding.sentence.find(": ."), std::string::npos) << finding.sentence;
            EXPECT_EQ(std::ranges::count(sound, finding.subject.number), 0) << finding.sentence;
            EXPECT_TRUE(!finding.safe || !finding.command.empty()) << finding.sentence;
        }
        const Names lines = host::DiagnosisLines(records, findings);
        EXPECT_EQ(std::ranges::any_of(lines, [](auto& one) { return one.starts_with("The command mend"); }),
                  std::ranges::any_of(findings, &host::Finding::safe));
        if (!findings.empty() && findings[0].subject.number != 0) {
            const std::set<std::string> conflicts = {"same-name", "twice-in-serial-map", "unclaimed-port"};
            EXPECT_EQ(host::StateOf(records, findings[0].subject.number) == host::NumberState::Conflict,
                      conflicts.contains(findings[0].rule))
                << findings[0].sentence;
        }
    }
}

TEST(Diagnosis, NamesThePlacesItDependsOn) {
    sim::Machine machine = SoundMachine();
    machine.devices[first].key.SetQword(u"ChlType", 1);
    machine.devices[first].description = u"A\nport\x1B[2J";
    sim::SetClaimed(machine.port_usage, 13, true);
    host::Records records = RecordsOf(FileOf(machine));
    const auto list = host::DiagnosisJson(records, host::Diagnose(records), "m.reg");
    EXPECT_EQ(list["findings"][0]["sentence"],
              "COM3, device 3 (A\\nport\\x1B[2J), is missing on its board's page: ChlType is too long: qword "
              "of 8 bytes, of which at most 4 are read.");
    EXPECT_EQ(list["findings"][1]["number"], 13);
    EXPECT_EQ(list["findings"][1]["command"], "free COM13");
    EXPECT_EQ(list["sound"]["numbers"], (std::vector<int>{1, 4}));
    records.known &= ~static_cast<unsigned>(host::SerialMapPlace);
    const Names lines = host::DiagnosisLines(records, host::Diagnose(records));
    EXPECT_EQ(lines.front(), "One thing is wrong: 1 serious.");
    EXPECT_EQ(std::ranges::count(lines, "    HKEY_LOCAL_MACHINE\\HARDWARE\\DEVICEMAP\\SERIALCOMM"), 1);
    EXPECT_EQ(lines.back(), "In order as far as was checked: COM 1, 4; device 1 (Multi-function board).");
    // A table is shown whole where it fits.
    const Names table = host::PortsTable(records, 0);
    const std::string& widest = *std::ranges::max_element(table, {}, &std::string::size);
    EXPECT_EQ(host::PortsTable(records, static_cast<int>(widest.size())), table);
    for (const std::string& line : host::NumberLines(records, host::Diagnose(records), 13)) {
        EXPECT_LE(line.size(), 80u) << line;
    }
    EXPECT_EQ(host::NumberLines(records, host::Diagnose(records), 1).back(),
              "COM1: nothing is wrong with what is known of it.");
    records.known &= ~static_cast<unsigned>(host::DatabasePlace);
    EXPECT_EQ(host::ClaimedWithoutDevice(records), "not known");
}

// A board with a channel that is no port, after an interface that has gone, and a port with an odd name.
TEST(Diagnosis, ListsABoardAndThePorts) {
    sim::Machine machine = SoundMachine();
    AddChannel(machine, {}, ClassCan, 3);
    machine.interfaces.insert(machine.interfaces.begin(), machine.interfaces.back());
    machine.interfaces.front().linked = false;
    machine.devices[mainboard].key.SetText(u"PortName", u"port1");
    const host::Records records = RecordsOf(FileOf(machine));
    const host::BoardTable table = host::TableOfBoard(records, records.devices[board]);
    ASSERT_EQ(table.lines.size(), 4u);
    EXPECT_EQ(table.listed, (std::vector<std::size_t>{0, 3, 4, 0}));
    EXPECT_EQ(table.lines[1], "  1        UART   COM3    RS-232     large  112      128       3");
    EXPECT_EQ(table.lines[3], "  3        CAN    -       -          -      -        -         -");
    EXPECT_EQ(host::PortRows(records)[1][2], "port1 is not COM");
}

TEST(Diagnosis, SeesWhatAPageWouldNotShowAsItIsWritten) {
    for (const char* line : {"9600,n,8,1", " 115200,e,7,1.5,x", "19200,n,8,2 ,p", "9600", ""}) {
        EXPECT_EQ(host::Misread(line), "") << line;
    }
    const std::pair<const char*, const char*> misread[] = {
        {"19,n,8,1", "speed is \"19\", which the page does not know: it shows 19200"},
        {",n,8,1", "speed is \"\", which the page does not know: it shows 75"},
        {"9600,E,8,1", "parity is \"E\", which the page does not know: it shows none"},
        {"9600,n,8,3", "number of stop bits is \"3\", which the page does not know: it shows 1"}};
    for (const auto& [line, told] : misread) {
        EXPECT_EQ(host::Misread(line), std::string("the ") + told);
    }
    EXPECT_EQ(host::RangesOf({9, 10, 33, 40, 41, 42, 59}), "9, 10, 33, 40-42, 59");
    EXPECT_EQ(host::RangesOf({}), "none");
}

// --- Laws -----------------------------------------------------------------------------------------------

// Runs commands on the machine of a file. Returns their output.
std::string Do(const host::MachineFile& file, const Names& commands, host::MachineFile* after = nullptr) {
    sim::Machine machine;
    host::SimulatedWorld world(file, machine);
    std::stringstream lines;
    std::ostringstream out;
    for (const std::string& command : commands) {
        lines << command << '\n';
    }
    const std::unique_ptr<host::LineSource> script = host::LinesOf(lines);
    host::LineSeat seat(*script, out);
    host::Session(world, seat).Run();
    if (after != nullptr) {
        *after = host::Changed(file, machine);
    }
    return out.str();
}

// The numbers of a board's UARTs, each used once; the first is that of the first channel.
std::vector<u32> AnyNumbers() {
    std::vector<u32> numbers = *rc::gen::unique<std::vector<u32>>(rc::gen::inRange<u32>(1, 60));
    numbers.resize(std::min<std::size_t>(numbers.size(), 8));
    return numbers.empty() ? std::vector<u32>{7} : numbers;
}

u32 AnyNumber() {
    return *rc::gen::inRange<u32>(1, 257);
}

// The same, with anything wrong in the places.
sim::Machine AnyMachine() {
    sim::Machine machine = BoardOn(AnyNumbers());
    for (std::size_t count = *rc::gen::inRange<std::size_t>(0, 6); count > 0; --count) {
        const auto device = *rc::gen::inRange<std::size_t>(1, machine.devices.size());
        switch (*rc::gen::inRange(0, 6)) {
        case 0:
            sim::SetClaimed(machine.port_usage, AnyNumber(), *rc::gen::arbitrary<bool>());
            break;
        case 1:
            SetLine(machine, AnyNumber(), u"9600,n,8,1");
            break;
        case 2:
            machine.devices[device].key.SetText(u"PortName", PortName(AnyNumber()));
            break;
        case 3:
            MakeAbsent(machine, device);
            break;
        case 4:
            TakeFromMap(machine, PortName(static_cast<u32>(device)));
            break;
        default:
            machine.devices[device].key.Erase(u"UartMode");
        }
    }
    return machine;
}

TEST(DiagnosisLaws, LessEvidenceGivesNoNewFindings) {
    Check(200, 100, [] {
        host::Records records = RecordsOf(FileOf(AnyMachine()));
        const Names all = Told(records);
        const auto taken = *rc::gen::inRange<unsigned>(0, host::AllPlaces + 1);
        records.known &= ~taken;
        for (host::DeviceRecord& device : records.devices) {
            if ((taken & host::InterfacesPlace) != 0) {
                device.interfaces.clear();
                device.present = true;
            }
        }
        const auto take = [&](host::Place place, auto& what) {
            if ((taken & place) != 0) {
                what.clear();
            }
        };
        take(host::DevicesPlace, records.devices);
        take(host::DatabasePlace, records.usage);
        take(host::SerialMapPlace, records.serial_map);
        take(host::SettingsPlace, records.settings_lines);
        host::JoinNumbers(records);
        for (const std::string& name : Told(records)) {
            RC_ASSERT(std::ranges::find(all, name) != all.end());
        }
    });
}

TEST(DiagnosisLaws, ThePagesCauseNoFindings) {
    Check(20, 100, [] {
        const std::vector<u32> numbers = AnyNumbers();
        const host::MachineFile file = FileOf(BoardOn(numbers));
        const u32 free = *rc::gen::suchThat(rc::gen::inRange<u32>(1, 257), [&](u32 number) {
            return std::ranges::find(numbers, number) == numbers.end();
        });
        host::MachineFile after;
        // Whether the numbers ascend is the user's choice and the task of the sort.
        Do(file, {"open 1", "pick 846 COM" + std::to_string(free), "sheet ok"}, &after);
        for (const std::string& name : Told(RecordsOf(after))) {
            RC_ASSERT(name == "numbers-unordered 1");
        }
        RC_ASSERT(!host::Differences(RecordsOf(file), RecordsOf(after)).empty());
        Do(after, {"open 1", "click Advanced", "click \"Sort UART\""}, &after);
        RC_ASSERT(Told(RecordsOf(after)).empty());
    });
}

TEST(DiagnosisLaws, AfterMendNothingSafeIsLeft) {
    Check(50, 100, [] {
        host::MachineFile after;
        Do(FileOf(AnyMachine()), {"mend"}, &after);
        const std::vector<host::Finding> findings = host::Diagnose(RecordsOf(after));
        RC_ASSERT(std::ranges::none_of(findings, &host::Finding::safe));
    });
}

std::string Content(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

// The file as a registry has it after a patch was imported.
host::MachineFile Imported(const host::MachineFile& file, const std::string& patch) {
    const std::string export_file = machine_files::OwnFile(".reg");
    std::string error;
    sim::Machine machine;
    host::GiveMachine(file, machine);
    EXPECT_TRUE(host::SaveMachine(file, machine, export_file, error)) << error;
    const std::size_t first_line = 2 + 2 * (host::export_first_line.size() + 2); // with its byte order mark
    return machine_files::Read(Content(export_file) + Content(patch).substr(first_line));
}

bool IsEqual(const host::TreeKey& left, const host::TreeKey& right) {
    const auto sorted = [](sim::Values values) {
        std::ranges::sort(values.list, {}, &sim::Value::name);
        return values;
    };
    return sorted(left.values) == sorted(right.values) && left.keys.size() == right.keys.size() &&
           std::ranges::equal(left.keys, right.keys, [](const auto& one, const auto& other) {
               return one.first == other.first && IsEqual(one.second, other.second);
           });
}

// Whether two machines differ in what an administrator may write.
bool DiffersForAPatch(const host::MachineFile& left, const host::MachineFile& right) {
    using host::ChangedPlace;
    const std::vector<host::Difference> differences = host::Differences(RecordsOf(left), RecordsOf(right));
    return std::ranges::any_of(differences, [](const host::Difference& one) {
        return one.place == ChangedPlace::DeviceStore || one.place == ChangedPlace::Database ||
               one.place == ChangedPlace::SettingsLine;
    });
}

TEST(DiagnosisLaws, APatchCanBeAppliedAndTakenBack) {
    Check(40, 100, [] {
        const std::string patch = machine_files::OwnFile("_patch.reg");
        std::filesystem::remove(patch);
        const host::MachineFile file = FileOf(AnyMachine());
        const auto com = [] { return "COM" + std::to_string(AnyNumber()); };
        const Names possible[] = {
            {"mend"},
            {"free " + com() + " --even-so"},
            {"claim " + com() + " --even-so"},
            {"open 1", "pick 846 " + com(), "sheet ok", "answer yes"},
            {"open 1", "click Advanced", "click \"Sort UART\"", "click Cancel", "sheet ok"},
            {"mend", "undo"}};
        Names commands;
        for (std::size_t count = *rc::gen::inRange<std::size_t>(1, 4); count > 0; --count) {
            const Names& some = possible[*rc::gen::inRange<std::size_t>(0, std::size(possible))];
            commands.insert(commands.end(), some.begin(), some.end());
        }
        commands.push_back("patch --over " + patch);
        host::MachineFile after;
        const std::string answers = Do(file, commands, &after);
        if (!std::filesystem::exists(patch)) {
            RC_ASSERT(!DiffersForAPatch(file, after));
            return;
        }
        const host::MachineFile there = Imported(file, patch);
        RC_ASSERT(!DiffersForAPatch(there, after));
        RC_ASSERT(IsEqual(Imported(there, host::UndoPath(patch)).root, file.root));
    });
}

TEST(Bench, UndoesOneStepAtATime) {
    sim::Machine machine = BoardOn({4, 3});
    sim::SetClaimed(machine.port_usage, 13, true);
    const host::MachineFile file = FileOf(machine);
    host::MachineFile after;
    const std::string answers =
        Do(file,
           {"free 13", "open 1", "click Advanced", "click \"Sort UART\"", "click Cancel", "sheet cancel",
            "undo", "changes", "undo", "undo", "reload"},
           &after);
    EXPECT_NE(
        answers.find("> undo\nundone: click \"Sort UART\"\n> changes\ndatabase: COM13: claimed -> free\n"
                     "> undo\nundone: free 13\n> undo\nerror: there is nothing"),
        std::string::npos)
        << answers;
    EXPECT_TRUE(IsEqual(file.root, after.root));
}

TEST(Bench, RefusesWhatALivePortContradicts) {
    sim::Machine machine = SoundMachine();
    sim::SetClaimed(machine.port_usage, 13, true);
    machine.serial_map.SetText(u"\\Device\\Modem", u"COM13");
    const host::MachineFile file = FileOf(machine);
    const std::string answers =
        Do(file, {"free COM13", "free COM3", "free COM9", "claim COM9", "claim COM3", "forget COM3",
                  "forget COM9", "free COM3 --even-so", "claim COM9 --even-so", "free COM1 --even-so",
                  "claim 4096 --even-so", "claim 4097 --even-so", "why x"});
    for (const char* expected :
         {"error: not freed: device 3 (", "error: not freed: a port is live on it: \\Device\\Modem",
          "error: not freed: it is free already", "error: not claimed: there is nothing",
          "error: not claimed: it is claimed already", "error: not forgotten: device 3 (",
          "error: there is no settings line \"COM9\"", "> free COM3 --even-so\nCOM3: freed",
          "> claim COM9 --even-so\nCOM9: claimed", "> free COM1 --even-so\nCOM1: freed",
          "> claim 4096 --even-so\nCOM4096: claimed", "error: not claimed: a COM number is 1 to 4096",
          "error: \"x\" is not a COM number"}) {
        EXPECT_NE(answers.find(expected), std::string::npos) << expected << "\n" << answers;
    }
}

} // namespace
