// A machine is written as a registry export that holds what was read and what has changed, and reads back as
// it was.
#include <algorithm>

#include <rapidcheck.h>

#include "tests/machine_files.h"
#include "tests/random_check.h"

namespace {

using namespace machine_files;
using sim::Text;

std::string Saved(const host::MachineFile& file, const sim::Machine& machine) {
    const std::string path = OwnFile(".reg");
    std::string error;
    EXPECT_TRUE(host::SaveMachine(file, machine, path, error)) << error;
    return ContentOf(path);
}

// All that a file holds of a machine.
auto Contents(const sim::Machine& machine) {
    return std::tuple(machine.devices, machine.interfaces, machine.dos_names, machine.serial_map,
                      machine.serial_map_exists, machine.port_usage, machine.profile);
}

TEST(SavedMachine, SaysWhyItCannotBeWritten) {
    for (const std::string file : {"/no/such/folder/x.reg", "/dev/full"}) {
        std::string error;
        EXPECT_FALSE(host::SaveMachine({}, Loaded(std::string(host::SampleMachine())), file, error));
        EXPECT_TRUE(error.starts_with("can't write " + file + ": ")) << error;
    }
}

// Every place that holds a port's number agrees, so that a rename starts from a sound state.
TEST(SavedMachine, BringsASampleThatAgreesWithItself) {
    const sim::Machine machine = Loaded(std::string(host::SampleMachine()));
    EXPECT_EQ(machine.devices.size(), 19u);
    EXPECT_EQ(machine.interfaces.size(), 17u);
    std::size_t ports = 0;
    for (const sim::Device& device : machine.devices) {
        if (const sim::Value* const port = device.key.Find(u"PortName")) {
            ++ports;
            const Text name(reinterpret_cast<const WCHAR*>(port->data.data()));
            EXPECT_EQ(device.friendly_name, *device.description + u" (" + name + u")");
            EXPECT_TRUE(std::ranges::find(machine.dos_names, name, &std::pair<Text, Text>::first) !=
                        machine.dos_names.end());
            EXPECT_TRUE(sim::IsClaimed(machine.port_usage,
                                       static_cast<unsigned>(std::stoul(sim::ToUtf8(name.substr(3))))));
        }
    }
    EXPECT_EQ(ports, machine.serial_map.list.size());
    EXPECT_EQ(Contents(Loaded(Saved(Read(std::string(host::SampleMachine())), machine))), Contents(machine));
}

// Each place alone comes back as it was, and no other comes with it.
TEST(SavedMachine, WritesNothingThatItHasNotRead) {
    const std::string system = "\n[HKEY_LOCAL_MACHINE\\SYSTEM\\", set = system + "CurrentControlSet\\",
                      arbiter = set + "Control\\COM Name Arbiter]\n\"ComDB\"=",
                      guid = "{86E0D1E0-8089-11D0-9CE4-08003E301F73}";
    const std::string cases[] = {
        "",
        system + "Select]\n\"Current\"=dword:00000003\n" + system + "ControlSet003\\Enum\\A\\B\\C]\n",
        set + "Enum\\A\\B\\C\\Device Parameters]\n\"PortName\"=hex(1):43,00,4f,00,4d,00,35,00\n",
        set + "Enum\\A\\B\\C]\n\"DeviceDesc\"=\"@x.inf,%a%;A Port\"\n\"ClassGUID\"=\"" + guid + "\"\n" + set +
            "Control\\Class\\" + guid + "]\n\"Class\"=\"Ports\"\n" + set + "Control\\DeviceClasses\\" + guid +
            "\\##?#A#B#C]\n\"DeviceInstance\"=\"a\\\\b\\\\c\"\n",
        arbiter + "hex:07\n",
        arbiter + "hex:\n",
        "\n[HKEY_LOCAL_MACHINE\\HARDWARE\\DEVICEMAP\\SERIALCOMM]\n\"\\\\Device\\\\A\"=\"COM5\"\n",
        "\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows "
        "NT\\CurrentVersion\\Ports]\n\"COM5:\"=\"9600\"\n",
    };
    for (const std::string& lines : cases) {
        EXPECT_EQ(Lines(Saved(Read(first_line + lines), Loaded(first_line + lines))), first_line + lines);
    }
    const std::string more = first_line + arbiter + "hex:07\n\"Other\"=\"x\"\n";
    EXPECT_EQ(Lines(Saved(Read(more), Loaded(more))), first_line + arbiter + "hex:07\n");
}

TEST(SavedMachine, WritesANewDeviceAndItsInterfaceUnderTheirNames) {
    sim::Machine machine = Loaded(first_line);
    sim::Device& device = machine.devices.emplace_back();
    device.instance_id = u"A\\B\\C";
    device.has_key = false;
    machine.interfaces = {
        {{0x86E0D1E0, 0x8089, 0x11D0, {1, 2, 3, 4, 5, 6, 7, 8}}, u"\\\\?\\a\\ref\\x", 0, true}};
    EXPECT_EQ(Lines(Saved({}, machine)), first_line + R"(
[HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Enum\A\B\C]

[HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Control\DeviceClasses\{86e0d1e0-8089-11d0-0102-030405060708}\##?#a]
"DeviceInstance"="A\\B\\C"

[HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Control\DeviceClasses\{86e0d1e0-8089-11d0-0102-030405060708}\##?#a\#ref#x]
"SymbolicLink"="\\\\?\\a\\ref\\x"

[HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Control\DeviceClasses\{86e0d1e0-8089-11d0-0102-030405060708}\##?#a\#ref#x\Control]
"Linked"=dword:00000001
)");
}

TEST(SavedMachine, TakesOutATextThatADeviceHasLost) {
    const std::string device =
                          first_line + "\n[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum\\A\\B\\C]\n",
                      lines = device + "\"FriendlyName\"=\"x\"\n";
    sim::Machine machine = Loaded(lines);
    machine.devices[0].friendly_name.reset();
    EXPECT_EQ(Lines(Saved(Read(lines), machine)), device);
}

TEST(SavedMachine, WritesOnlyThePortsOfTheProfile) {
    const std::string ports =
        "\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Ports]\n";
    for (const std::string& read : {std::string{}, ports + "\"COM5:\"=\"9600\"\n"}) {
        sim::Machine machine = Loaded(first_line + read);
        machine.ProfileSection(u"Fonts", true)->SetText(u"A", u"B");
        EXPECT_EQ(Lines(Saved(Read(first_line + read), machine)), first_line + read);
        machine.ProfileSection(u"pORTS", true)->SetText(u"COM5:", u"300");
        EXPECT_EQ(Lines(Saved(Read(first_line + read), machine)), first_line + ports + "\"COM5:\"=\"300\"\n");
    }
}

// The COM port database keeps its length and the numbers that no page knows. If the file has none, none is
// made up, because importing it would lose all other numbers.
TEST(SavedMachine, KeepsThePortDatabaseWhole) {
    for (const std::size_t bytes : {1u, 31u, 32u, 33u, 512u}) {
        Bytes data(bytes, 0x81);
        host::MachineFile file;
        file.root.Make(u"SYSTEM\\CurrentControlSet\\Control\\COM Name Arbiter", file.count)
            .values.Set(u"ComDB", REG_BINARY, data);
        sim::Machine machine;
        host::GiveMachine(file, machine);
        EXPECT_TRUE(sim::IsClaimed(machine.port_usage, static_cast<unsigned>(8 * bytes)));
        EXPECT_EQ(host::CurrentPortUsage(file, machine), data);
        sim::SetClaimed(machine.port_usage, 2, true);
        sim::SetClaimed(machine.port_usage, 250, true);
        data.resize(std::max<std::size_t>(bytes, 32));
        data[0] |= 2;
        data[31] |= 2;
        EXPECT_EQ(Loaded(Saved(file, machine)).port_usage, machine.port_usage);
        EXPECT_EQ(host::CurrentPortUsage(file, machine), data);
    }
    sim::Machine machine;
    sim::SetClaimed(machine.port_usage, 2, true);
    EXPECT_EQ(host::CurrentPortUsage({}, machine), std::nullopt);
    EXPECT_EQ(Lines(Saved(Read(first_line), machine)).find("ComDB"), std::string::npos);
}

// Any text that has a meaning in a file, and half surrogate pairs.
rc::Gen<Text> AnyText() {
    return rc::gen::container<Text>(rc::gen::element<char16_t>(u'a', u'Z', u' ', u'"', u'\\', u'\n', u'\r',
                                                               u';', u'=', u']', u'-', u'@', u'\t', 0xD800,
                                                               0xDC00, 0xFEFF, 0x0A0A));
}

bool Either() {
    return *rc::gen::arbitrary<bool>();
}

sim::Values AnyValues() {
    sim::Values values;
    const int count = *rc::gen::inRange(0, 5);
    for (int i = 0; i < count; ++i) {
        // Names differ by their number. One without it is the default value.
        const Text name = i == 0 && Either() ? u"" : sim::FromUtf8(std::to_string(i)) + *AnyText();
        if (Either()) {
            values.SetText(name, *AnyText());
        } else {
            values.Set(name, *rc::gen::element<DWORD>(0, 1, 2, 3, 4, 7, 11, 0xFFFF0012),
                       *rc::gen::arbitrary<Bytes>());
        }
    }
    return values;
}

sim::Machine AnyMachine() {
    sim::Machine machine;
    const GUID classes[] = {{0x10, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}}, {0xF0000000, 0xFFFF, 0, {}}};
    const int devices = *rc::gen::inRange(1, 4);
    for (int i = 0; i < devices; ++i) {
        sim::Device& device = machine.devices.emplace_back();
        device.instance_id = u"PCI\\VEN_1&DEV_2\\" + sim::FromUtf8(std::to_string(9 - i));
        device.class_name = *AnyText();
        device.class_guid = Either() ? std::optional(classes[i % 2]) : std::nullopt;
        device.description = Either() ? std::optional(u"x" + *AnyText()) : std::nullopt;
        device.friendly_name = Either() ? std::optional(*AnyText()) : std::nullopt;
        device.has_key = Either();
        device.key = device.has_key ? AnyValues() : sim::Values();
    }
    const int interfaces = *rc::gen::inRange(0, 4);
    for (const GUID& each : classes) {
        for (int i = 0; i < interfaces; ++i) {
            machine.interfaces.push_back(
                {each, u"\\\\?\\dev#" + sim::FromUtf8(std::to_string(i)) + (i % 2 ? u"" : u"\\ref"),
                 *rc::gen::inRange<std::size_t>(0, machine.devices.size()), Either()});
        }
    }
    for (BYTE& byte : machine.port_usage) {
        byte = *rc::gen::arbitrary<BYTE>();
    }
    machine.serial_map_exists = Either();
    machine.serial_map = machine.serial_map_exists ? AnyValues() : sim::Values();
    if (Either()) {
        machine.profile.emplace_back(u"Ports", AnyValues());
    }
    return machine;
}

TEST(SavedMachine, ReadsAnyMachineBackAsItWas) {
    const host::MachineFile with_database =
        Read(first_line + "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\COM Name Arbiter]\n"
                          "\"ComDB\"=hex:00\n");
    Check(100, 100, [&] {
        const sim::Machine machine = AnyMachine();
        sim::Machine read = Loaded(Saved(with_database, machine));
        read.dos_names.clear(); // the file holds them only as the serial map
        RC_ASSERT(Contents(read) == Contents(machine));
    });
}

} // namespace
