// The machine file: the forms its lines can have and can't, what it says of a machine, and that a machine
// written is the machine that is read again.
#include <algorithm>
#include <cstring>
#include <fstream>
#include <sstream>
#include <tuple>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "host/simulated/machine_file.h"

namespace {

using sim::Text;
using Bytes = std::vector<BYTE>;

const std::string first_line = "Windows Registry Editor Version 5.00\n";
const std::string store =
    "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum\\A\\B\\C\\Device Parameters]\n";

bool Load(const std::string& bytes, sim::Machine& machine, host::Problem& problem) {
    std::istringstream in(bytes);
    return host::LoadMachine(in, "some.reg", machine, problem);
}

sim::Machine Loaded(const std::string& bytes) {
    sim::Machine machine;
    host::Problem problem;
    EXPECT_TRUE(Load(bytes, machine, problem)) << problem.line << ": expected " << problem.expected << "\n"
                                               << bytes;
    return machine;
}

std::string InUtf16(const std::string& utf8) {
    const Text text = u"\uFEFF" + sim::FromUtf8(utf8);
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(WCHAR)};
}

std::string WithReturns(std::string text) {
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2)
        text.insert(at, 1, '\r');
    return text;
}

// The same text in every form that a file may have.
std::vector<std::string> InEveryForm(const std::string& text) {
    return {text, "\xEF\xBB\xBF" + WithReturns(text), InUtf16(text), InUtf16(WithReturns(text))};
}

std::string WithFullPaths(std::string text) {
    static const std::pair<std::string, std::string> short_forms[] = {
        {"$PORTS", "$SET\\Control\\DeviceClasses\\{86E0D1E0-8089-11D0-9CE4-08003E301F73}"},
        {"$SET", "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet"}};
    for (const auto& [short_form, path] : short_forms)
        for (std::size_t at = 0; (at = text.find(short_form, at)) != std::string::npos;)
            text.replace(at, short_form.size(), path);
    return text;
}

Bytes BytesOf(const Text& text) {
    Bytes bytes((text.size() + 1) * sizeof(WCHAR));
    std::memcpy(bytes.data(), text.data(), text.size() * sizeof(WCHAR));
    return bytes;
}

std::string Saved(const sim::Machine& machine) {
    const std::string file = testing::TempDir() + "machine_file_test.reg";
    std::string error;
    EXPECT_TRUE(host::SaveMachine(machine, file, error)) << error;
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

// All that a file holds of a machine.
auto Contents(const sim::Machine& machine) {
    std::vector<std::tuple<Text, Text, std::optional<GUID>, std::optional<Text>, std::optional<Text>, bool,
                           sim::Values>>
        devices;
    for (const sim::Device& each : machine.devices)
        devices.emplace_back(each.instance_id, each.class_name, each.class_guid, each.description,
                             each.friendly_name, each.has_key, each.key);
    std::vector<std::tuple<GUID, Text, std::size_t, bool>> interfaces;
    for (const sim::Interface& each : machine.interfaces)
        interfaces.emplace_back(each.class_guid, each.path, each.device, each.linked);
    return std::tuple(devices, interfaces, machine.dos_names, machine.serial_map, machine.serial_map_exists,
                      machine.port_usage, machine.profile);
}

// --- Lines ---

TEST(RegistryExport, TakesEveryFormOfAValue) {
    static const struct {
        const char* lines;
        Text name;
        DWORD type;
        Bytes data;
    } cases[] = {
        {R"("A"="text")", u"A", REG_SZ, BytesOf(u"text")},
        {R"(@="")", u"", REG_SZ, BytesOf(u"")},
        {R"("q\"\\n"="C:\\a\"b\\")", u"q\"\\n", REG_SZ, BytesOf(u"C:\\a\"b\\")},
        {R"("a;=]"="x;]" ; comment)", u"a;=]", REG_SZ, BytesOf(u"x;]")},
        {R"("n\n"="a\r\nb")", u"n\n", REG_SZ, BytesOf(u"a\r\nb")},
        {" \t\"A\" = \t\"x\" \t", u"A", REG_SZ, BytesOf(u"x")},
        {"\"Ä€😀\"=\"日本\xED\xA0\x80\"", u"Ä€😀", REG_SZ, BytesOf(u"日本\xD800")},
        {"\"A\"=dword:0089abCD", u"A", REG_DWORD, {0xCD, 0xAB, 0x89, 0x00}},
        {"\"A\"=dword:7 ;", u"A", REG_DWORD, {7, 0, 0, 0}},
        {"\"A\"=hex:", u"A", REG_BINARY, {}},
        {"\"A\"=hex(7): ; nothing", u"A", REG_MULTI_SZ, {}},
        {"\"A\"=hex(0):FF", u"A", REG_NONE, {0xFF}},
        {"\"A\"=hex(b):1, 02 ,3\t,04,05,06,07,08", u"A", REG_QWORD, {1, 2, 3, 4, 5, 6, 7, 8}},
        {"\"A\"=hex(1):41,00,00", u"A", REG_SZ, {0x41, 0, 0}},
        {"\"A\"=hex(ffff0012):01", u"A", 0xFFFF0012, {1}},
        {"\"A\"=hex(4):01,02", u"A", REG_DWORD, {1, 2}},
        {"\"A\"=hex:01,02,\\\n  03,\\ ; more\n\n ; still more\n\t04\n", u"A", REG_BINARY, {1, 2, 3, 4}},
        {"\"A\"=hex:\\\n\\\n01", u"A", REG_BINARY, {1}},
        {"\"A\"=dword:1\n\"a\"=\"again\"", u"A", REG_SZ, BytesOf(u"again")},
        {"\"gone\"=\"x\"\n\"A\"=dword:1\n\"GONE\"=-", u"A", REG_DWORD, {1, 0, 0, 0}},
    };
    for (const auto& each : cases)
        for (const std::string& bytes : InEveryForm(first_line + store + each.lines)) {
            const sim::Machine machine = Loaded(bytes);
            ASSERT_EQ(machine.devices.size(), 1u) << each.lines;
            EXPECT_EQ(machine.devices[0].key, (sim::Values{{{each.name, each.type, each.data}}}))
                << each.lines;
        }
    // The line ends within a text are part of it, as they stand.
    const std::string lines = first_line + store + "\"A\"=\"one\n[two]\n\n\"";
    EXPECT_EQ(Loaded(lines).devices[0].key.list[0].data, BytesOf(u"one\n[two]\n\n"));
    EXPECT_EQ(Loaded(InUtf16(WithReturns(lines))).devices[0].key.list[0].data,
              BytesOf(u"one\r\n[two]\r\n\r\n"));
    // A key may hold brackets, is known without regard to case, and has none of the values behind its
    // deletion.
    const sim::Machine machine = Loaded(WithFullPaths(R"(Windows Registry Editor Version 5.00
[hkey_local_machine\system\CURRENTcontrolSET\enum\A\[b]\c;] ; x
[-$SET\Enum\A\B\C] ; y
"DeviceDesc"="x"
)"));
    ASSERT_EQ(machine.devices.size(), 1u);
    EXPECT_EQ(machine.devices[0].instance_id, u"A\\[b]\\c;");
    EXPECT_FALSE(machine.devices[0].description);
}

TEST(RegistryExport, NamesTheFirstLineThatIsWrong) {
    static const struct {
        const char* lines; // from line 3 on
        std::size_t line;
        const char* expected;
    } cases[] = {
        {"junk", 3, "a key in brackets, a value with its name in quotes, or a comment"},
        {"\n; fine\n  =\"x\"", 5, "a key in brackets, a value with its name in quotes, or a comment"},
        {"[HKEY_LOCAL_MACHINE\\SYSTEM", 3, "] behind the key"},
        {"[HKEY_LOCAL_MACHINE\\SYSTEM] x", 3, "the end of the line behind ]"},
        {"[-SYSTEM]", 3, "a key that begins with HKEY_"},
        {"\"A=1", 3, "\" behind the value's name"},
        {"\"A\"\"x\"", 3, "= behind the value's name"},
        {"\"A\"=", 3, "a text in quotes, dword:, hex: or -"},
        {"\"A\"=Dword:1", 3, "a text in quotes, dword:, hex: or -"},
        {"\"A\"=- -", 3, "the end of the line behind -"},
        {"\"A\"=\"x\" y", 3, "the end of the line behind \""},
        {"\"A\"=\"x\\y\"", 3, "\\ or \" behind \\"},
        {"\"A\"=\"x\\\n\"", 3, "\\ or \" behind \\"},
        {"\"A\"=\"x\n\ny\" z", 5, "the end of the line behind \""},
        {"\"A\"=\"x\n\"B\"=\"y\"", 3, "\" behind the text"},
        {"\n\"A\"=\"x\n\n", 4, "\" behind the text"},
        {"\"A\"=dword:", 3, "one to eight hexadecimal digits"},
        {"\"A\"=dword:123456789", 3, "one to eight hexadecimal digits"},
        {"\"A\"=dword:1g", 3, "the end of the line behind the number"},
        {"\"A\"=hex01", 3, ": behind hex"},
        {"\"A\"=hex(:01", 3, "one to eight hexadecimal digits"},
        {"\"A\"=hex(7:01", 3, ") behind the value's type"},
        {"\"A\"=hex:01,02,", 3, "a byte in two hexadecimal digits"},
        {"\"A\"=hex:01,,02", 3, "a byte in two hexadecimal digits"},
        {"\"A\"=hex:0\xC4\xA0,02", 3, "a comma or the end of the line behind the byte"},
        {"\"A\"=hex:012,02", 3, "a comma or the end of the line behind the byte"},
        {"\"A\"=hex:01\\\n02", 3, "a comma or the end of the line behind the byte"},
        {"\"A\"=hex:01,\\ 02\n02", 3, "the end of the line behind \\"},
        {"\"A\"=hex:01,\\\n; fine\n02,\\\n0x,\\\n03", 6, "a comma or the end of the line behind the byte"},
        {"\"A\"=hex:01,\\\n\"B\"=\"x\"", 4, "a byte in two hexadecimal digits"},
        {"\"A\"=hex:01,\\\n", 3, "another line behind \\"},
    };
    // The same in a key that matters and in one that does not.
    for (const std::string& key : {store, std::string("[HKEY_USERS\\A]\n")})
        for (const auto& each : cases)
            for (const std::string& bytes : InEveryForm(first_line + key + each.lines)) {
                sim::Machine machine;
                machine.devices.resize(3);
                machine.port_usage[5] = 1;
                const auto before = Contents(machine);
                host::Problem problem;
                EXPECT_FALSE(Load(bytes, machine, problem)) << each.lines;
                EXPECT_EQ(std::tie(problem.file, problem.line, problem.expected),
                          std::tuple("some.reg", each.line, each.expected))
                    << each.lines;
                EXPECT_EQ(Contents(machine), before);
            }
    static const struct {
        std::string bytes;
        std::size_t line;
        const char* expected;
    } whole_files[] = {
        {"", 1, "the line \"Windows Registry Editor Version 5.00\""},
        {"REGEDIT4\n", 1, "the line \"Windows Registry Editor Version 5.00\""},
        {"Windows Registry Editor Version 5.001\n", 1, "the line \"Windows Registry Editor Version 5.00\""},
        {InUtf16(first_line).substr(2), 1, "the line \"Windows Registry Editor Version 5.00\""},
        {first_line + "\"A\"=dword:1", 2, "a key in brackets before the first value"},
        {first_line + "; \xC3\n", 2, "text in UTF-8"},
        {first_line + "; \xC0\x80\n", 2, "text in UTF-8"},
        {first_line + "\n; \xF4\x90\x80\x80\n", 3, "text in UTF-8"},
        {first_line + "; \xE2\x82", 2, "text in UTF-8"},
        {InUtf16(first_line + ";") + ' ', 2, "the second byte of the last character"},
    };
    for (const auto& each : whole_files) {
        sim::Machine machine;
        host::Problem problem;
        EXPECT_FALSE(Load(each.bytes, machine, problem)) << each.bytes;
        EXPECT_EQ(std::pair(problem.line, problem.expected),
                  std::pair(each.line, std::string(each.expected)));
    }
}

TEST(RegistryExport, ReadsAcrossTheEndsOfItsBlocks) {
    Text text;
    while (text.size() < 150'000)
        text += u"ਊ😀"; // both bytes of the first are a line feed's; with seven bytes the two shift against
                       // any block
    std::string lines = first_line + store;
    for (const char* name : {"A", "B", "C"})
        lines += std::string("\"") + name + "\"=\"" + sim::ToUtf8(text) + "\"\n";
    for (const std::string& bytes : InEveryForm(lines)) {
        const sim::Machine machine = Loaded(bytes);
        ASSERT_EQ(machine.devices[0].key.list.size(), 3u);
        for (const sim::Value& value : machine.devices[0].key.list)
            EXPECT_TRUE(value.data == BytesOf(text)) << sim::ToUtf8(value.name);
    }
}

TEST(RegistryExport, WritesWhatRegeditWrites) {
    std::ostringstream out;
    host::ExportWriter writer(out);
    writer.Key(u"HKEY_LOCAL_MACHINE\\K");
    writer.SetValue(u"", REG_SZ, BytesOf(u"C:\\\"x\""));
    writer.SetValue(u"a\\\"\n\r", REG_DWORD, Bytes{0xEF, 0xBE, 0xAD, 0});
    writer.SetValue(u"short", REG_DWORD, Bytes{1});
    writer.SetValue(u"none", 0, Bytes{});
    writer.SetValue(u"type", 0xFFFF0012, Bytes{1, 2});
    writer.SetValue(u"open", REG_SZ, Bytes{'a', 0});
    writer.SetValue(u"zero", REG_SZ, Bytes{0, 0, 'a', 0, 0, 0});
    writer.SetValue(u"odd", REG_SZ, Bytes{'a', 0, 0});
    writer.SetValue(u"line", REG_SZ, BytesOf(u"\n"));
    writer.SetValue(u"12345", REG_BINARY, Bytes(48, 0xA5));
    EXPECT_EQ(out.str(), InUtf16(WithReturns(first_line + R"(
[HKEY_LOCAL_MACHINE\K]
@="C:\\\"x\""
"a\\\"\n\r"=dword:00adbeef
"short"=hex(4):01
"none"=hex(0):
"type"=hex(ffff0012):01,02
"open"=hex(1):61,00
"zero"=hex(1):00,00,61,00,00,00
"odd"=hex(1):61,00,00
"line"=hex(1):0a,00,00,00
"12345"=hex:a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,\
  a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,\
  a5
)")));
}

// --- Machines ---

TEST(MachineFile, GathersAMachineFromTheWholeFile) {
    const sim::Machine machine = Loaded(WithFullPaths(R"(Windows Registry Editor Version 5.00
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
)"));
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
    EXPECT_EQ(std::get<1>(Contents(machine)), (std::vector<std::tuple<GUID, Text, std::size_t, bool>>{
                                                  {port_class, u"\\\\?\\yA\\one", 1, true},
                                                  {port_class, u"\\\\?\\yA\\Two", 1, true},
                                                  {port_class, u"\\\\?\\Y_", 1, true},
                                                  {port_class, u"\\\\?\\own", 0, false}}));
    EXPECT_EQ(machine.serial_map.list.size(), 4u);
    EXPECT_EQ(machine.dos_names,
              (std::vector<std::pair<Text, Text>>{{u"COM9", u"\\Device\\B"}, {u"COM5", u"\\Device\\A"}}));
    EXPECT_EQ(machine.port_usage, (sim::PortUsage{0x11, 0x01}));
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

TEST(MachineFile, SaysWhyItCannotBeWritten) {
    for (const std::string file : {"/no/such/folder/x.reg", "/dev/full"}) {
        std::string error;
        EXPECT_FALSE(host::SaveMachine(Loaded(std::string(host::SampleMachine())), file, error));
        EXPECT_TRUE(error.starts_with("can't write " + file + ": ")) << error;
    }
}

// Every place that holds a port's number agrees, so that a rename begins on sound ground.
TEST(MachineFile, BringsASampleThatAgreesWithItself) {
    const sim::Machine machine = Loaded(std::string(host::SampleMachine()));
    EXPECT_EQ(machine.devices.size(), 19u);
    EXPECT_EQ(machine.interfaces.size(), 17u);
    std::size_t ports = 0;
    for (const sim::Device& device : machine.devices)
        if (const sim::Value* const port = device.key.Find(u"PortName")) {
            ++ports;
            const Text name(reinterpret_cast<const WCHAR*>(port->data.data()));
            EXPECT_EQ(device.friendly_name, *device.description + u" (" + name + u")");
            EXPECT_TRUE(std::ranges::find(machine.dos_names, name, &std::pair<Text, Text>::first) !=
                        machine.dos_names.end());
            EXPECT_TRUE(sim::IsClaimed(machine.port_usage,
                                       static_cast<unsigned>(std::stoul(sim::ToUtf8(name.substr(3))))));
        }
    EXPECT_EQ(ports, machine.serial_map.list.size());
    EXPECT_EQ(Contents(Loaded(Saved(machine))), Contents(machine));
}

// --- Any machine ---

// Texts of all that has a meaning in a file, and of half surrogates.
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
        // Names differ by their number; without it, one is the default value.
        const Text name = i == 0 && Either() ? u"" : sim::FromUtf8(std::to_string(i)) + *AnyText();
        if (Either())
            values.SetText(name, *AnyText());
        else
            values.Set(name, *rc::gen::element<DWORD>(0, 1, 2, 3, 4, 7, 11, 0xFFFF0012),
                       *rc::gen::arbitrary<Bytes>());
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
    for (const GUID& each : classes)
        for (int i = 0; i < interfaces; ++i)
            machine.interfaces.push_back(
                {each, u"\\\\?\\dev#" + sim::FromUtf8(std::to_string(i)) + (i % 2 ? u"" : u"\\ref"),
                 *rc::gen::inRange<std::size_t>(0, machine.devices.size()), Either()});
    for (BYTE& byte : machine.port_usage)
        byte = *rc::gen::arbitrary<BYTE>();
    machine.serial_map_exists = Either();
    machine.serial_map = machine.serial_map_exists ? AnyValues() : sim::Values();
    if (Either())
        machine.profile.emplace_back(u"Ports", AnyValues());
    return machine;
}

TEST(MachineFile, GivesAnyMachineBackAsItWas) {
    EXPECT_TRUE(rc::check([] {
        const sim::Machine machine = AnyMachine();
        sim::Machine read = Loaded(Saved(machine));
        read.dos_names.clear(); // which the file holds as the serial map alone
        RC_ASSERT(Contents(read) == Contents(machine));
    }));
}

} // namespace
