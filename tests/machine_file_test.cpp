// What a registry export says about a machine.
#include "tests/machine_files.h"

namespace {

using namespace machine_files;
using sim::Text;

TEST(MachineFile, GathersAMachineFromTheWholeFile) {
    std::string lines = R"(Windows Registry Editor Version 5.00
[HKEY_LOCAL_MACHINE\HARDWARE\DEVICEMAP\SERIALCOMM]
"\\Device\\B"="COM9"
"\\Device\\A"="COM5"
"\\Device\\C"=hex(1):
"\\Device\\D"="com5"
[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\Ports]
"COM5:"="9600,n,8,1"
[$PORTS\##?#z]
"DeviceInstance"="x\\y\\Z"
[$PORTS\##?#z\#]
"SymbolicLink"="\\\\?\\own"
[$PORTS\##?#Y_]
"DeviceInstance"="X\\Y\\2"
[$PORTS\##?#Y_\#]
[$PORTS\##?#Y_\#\Control]
"Linked"=dword:1
[$PORTS\##?#yA]
"DeviceInstance"="X\\Y\\2"
[$PORTS\##?#yA\!]
[$PORTS\##?#yA\#one]
[$PORTS\##?#yA\#Two]
[$PORTS\##?#yA\Control]
"Linked"=dword:1
[$PORTS\##?#lost]
"DeviceInstance"="no\\such\\device"
[$PORTS\##?#none\#]
[$SET\Enum\X\Y\Z]
"DeviceDesc"="@x.inf,%a;b%;A Port; new;Port"
"Class"="Ports"
"Mfg"="x"
[$SET\Enum\X\Y\2]
"DeviceDesc"="@x"
"ClassGUID"="{86e0d1e0-8089-11D0-9CE4-08003E301F73}"
"FriendlyName"="F"
[$SET\Control\Class\{86E0D1E0-8089-11D0-9CE4-08003E301F73}]
"Class"="Named"
[$SET\Enum\x\y\z\Device Parameters]
"PortName"="COM5"
[$SET\Enum\x\y\z\Device Parameters\Below]
"PortName"="COM6"
[$SET\Enum\x\y]
"DeviceDesc"="none"
[$SET\Control\COM Name Arbiter]
"ComDB"=hex:11,01
)";
    const std::pair<std::string, std::string> short_forms[] = {
        {"$PORTS", "$SET\\Control\\DeviceClasses\\{86E0D1E0-8089-11D0-9CE4-08003E301F73}"},
        {"$SET", "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet"}};
    for (const auto& [short_form, path] : short_forms) {
        for (std::size_t at = 0; (at = lines.find(short_form, at)) != std::string::npos;) {
            lines.replace(at, short_form.size(), path);
        }
    }
    sim::Machine machine = Loaded(lines);
    host::GiveMachine(Read(lines), machine); // once more, in place of what it had
    const GUID port_class{0x86E0D1E0, 0x8089, 0x11D0, {0x9C, 0xE4, 0x08, 0x00, 0x3E, 0x30, 0x1F, 0x73}};
    ASSERT_EQ(machine.devices.size(), 2u);
    EXPECT_EQ(machine.devices[0].instance_id, u"X\\Y\\Z");
    EXPECT_EQ(machine.devices[0].description, u"Port");
    EXPECT_EQ(machine.devices[0].class_name, u"Ports");
    EXPECT_EQ(machine.devices[0].key, (sim::Values{{{u"PortName", REG_SZ, BytesOf(u"COM5")}}}));
    EXPECT_EQ(machine.devices[1].description, u"@x");
    EXPECT_EQ(machine.devices[1].friendly_name, u"F");
    EXPECT_EQ(machine.devices[1].class_guid, port_class);
    EXPECT_EQ(machine.devices[1].class_name, u"Named");
    EXPECT_FALSE(machine.devices[1].has_key);
    EXPECT_EQ(machine.interfaces, (std::vector<sim::Interface>{{port_class, u"\\\\?\\yA\\one", 1, true},
                                                               {port_class, u"\\\\?\\yA\\Two", 1, true},
                                                               {port_class, u"\\\\?\\Y_", 1, true},
                                                               {port_class, u"\\\\?\\own", 0, false}}));
    EXPECT_EQ(machine.serial_map.list.size(), 4u);
    EXPECT_EQ(machine.dos_names,
              (std::vector<std::pair<Text, Text>>{{u"COM9", u"\\Device\\B"}, {u"COM5", u"\\Device\\A"}}));
    EXPECT_EQ(machine.port_usage, (sim::PortUsage{0x11, 0x01}));
    EXPECT_EQ(machine.profile.size(), 1u);
    EXPECT_EQ(machine.profile.at(0).second.Find(u"com5:")->data, BytesOf(u"9600,n,8,1"));
}

TEST(MachineFile, ChoosesTheControlSetAndHeedsDeletions) {
    const auto device = [](const std::string& control_set) {
        return "[HKEY_LOCAL_MACHINE\\SYSTEM\\" + control_set + "\\Enum\\A\\B\\" + control_set + "]\n";
    };
    const std::string all = device("ControlSet001") + device("CurrentControlSet") + device("ControlSet003");
    const std::string system = "HKEY_LOCAL_MACHINE\\SYSTEM";
    const std::string third = "[" + system + "\\Select]\n\"Current\"=dword:3\n";
    const struct {
        std::string lines;
        Text found; // the one device, if any
    } cases[] = {
        {all + third, u"CurrentControlSet"},
        {third + device("ControlSet001") + device("ControlSet003"), u"ControlSet003"},
        {device("ControlSet001") + device("ControlSet003"), u"ControlSet001"},
        {device("ControlSet001") + third + "\"current\"=-\n", u"ControlSet001"},
        {device("ControlSet001") + third, u""},
        {device("ControlSet001") + "[" + system + "\\CurrentControlSet\\Services\\X]\n", u"ControlSet001"},
        {all + third + "[-" + system + "\\CurrentControlSet]\n", u"ControlSet003"},
        {all + "[-" + system + "\\currentcontrolset\\enum\\a]\n", u""},
        {all + "[-" + system + "\\CurrentControlSet\\Enum\\A\\B\\C]\n", u"CurrentControlSet"},
        {all + "[-" + system + "]\n" + device("ControlSet001"), u"ControlSet001"},
        {all + "[-HKEY_USERS\\SYSTEM]\n", u"CurrentControlSet"},
    };
    for (const auto& each : cases) {
        const sim::Machine machine = Loaded(first_line + each.lines);
        const Text found = machine.devices.empty() ? u"" : machine.devices[0].instance_id.substr(4);
        EXPECT_EQ(found, each.found) << each.lines;
        EXPECT_LE(machine.devices.size(), 1u);
        EXPECT_FALSE(machine.serial_map_exists);
    }
}

// Two texts below differ from a class only in the low bytes of their characters.
TEST(MachineFile, PassesOverInterfacesOfNoClass) {
    const std::string set = "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\";
    std::string lines = first_line + set + "Enum\\A\\B\\C]\n";
    for (const std::string guid :
         {"{86E0D1E0-8089-11D0-9CE4-08003E301F7g}", "{86E0D1E0-8089-11D0-9CE4-08003E301F7Ł}",
          "{İ6E0D1E0-8089-11D0-9CE4-08003E301F73}", "{86E0D1E0-8089-11D0-9CE4-08003E301F7\x7F}",
          "{86E0D1E0-8089-11D0-9CE4 08003E301F73}", "(86E0D1E0-8089-11D0-9CE4-08003E301F73}",
          "{86E0D1E0-8089-11D0-9CE4-08003E301F73", "86E0D1E0"}) {
        lines += set + "Control\\DeviceClasses\\" + guid + "\\##?#a]\n\"DeviceInstance\"=\"A\\\\B\\\\C\"\n";
    }
    EXPECT_EQ(Loaded(lines).interfaces, std::vector<sim::Interface>{});
}

} // namespace
