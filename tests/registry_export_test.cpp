// The lines of a registry export: which forms are valid, and how they are written.
#include <sstream>

#include "tests/machine_files.h"

namespace {

using namespace machine_files;
using sim::Text;

const std::string store =
    "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum\\A\\B\\C\\Device Parameters]\n";

std::string InUtf16(const std::string& utf8) {
    const Text text = u"\uFEFF" + sim::FromUtf8(utf8);
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(WCHAR)};
}

std::string WithReturns(std::string text) {
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) {
        text.insert(at, 1, '\r');
    }
    return text;
}

// The same text in every encoding that a file may have.
std::vector<std::string> InEveryForm(const std::string& text) {
    return {text, "\xEF\xBB\xBF" + WithReturns(text), InUtf16(text), InUtf16(WithReturns(text))};
}

TEST(RegistryExport, TakesEveryFormOfAValue) {
    static const struct {
        const char* lines;
        Text name;
        DWORD type;
        Bytes data;
    } cases[] = {
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
        {"\"A\"=hex:01,02,\\\n  03,\\ ; more\n\n ; still more\n\t04\n", u"A", REG_BINARY, {1, 2, 3, 4}},
        {"\"A\"=hex:\\\n\\\n01", u"A", REG_BINARY, {1}},
        {"\"A\"=dword:1\n\"a\"=\"again\"", u"A", REG_SZ, BytesOf(u"again")},
        {"\"gone\"=\"x\"\n\"A\"=dword:1\n\"GONE\"=-", u"A", REG_DWORD, {1, 0, 0, 0}},
    };
    for (const auto& each : cases) {
        for (const std::string& bytes : InEveryForm(first_line + store + each.lines)) {
            const sim::Machine machine = Loaded(bytes);
            ASSERT_EQ(machine.devices.size(), 1u) << each.lines;
            EXPECT_EQ(machine.devices[0].key, (sim::Values{{{each.name, each.type, each.data}}}))
                << each.lines;
        }
    }
    // The line ends within a text are part of it, unchanged.
    const std::string lines = first_line + store + "\"A\"=\"one\n[two]\n\n\"";
    EXPECT_EQ(Loaded(lines).devices[0].key.list[0].data, BytesOf(u"one\n[two]\n\n"));
    EXPECT_EQ(Loaded(InUtf16(WithReturns(lines))).devices[0].key.list[0].data,
              BytesOf(u"one\r\n[two]\r\n\r\n"));
    // A key may hold brackets and slashes, is known in any case of letters, and loses its values when it is
    // deleted.
    const sim::Machine machine = Loaded(R"(Windows Registry Editor Version 5.00
[HKEY_LOCAL_MACHINE\SOFTWARE\Classes\MIME\Database\Content Type\text/html]
"x"=-
[hkey_local_machine\system\CURRENTcontrolSET\enum\A\[b]\c;] ; x
[-HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Enum\A\B\C] ; y
"DeviceDesc"="x"
)");
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
        {"[HKEY_LOCAL_MACHINE\\SYSTEM", 3, "] after the key"},
        {"[HKEY_LOCAL_MACHINE\\SYSTEM] x", 3, "the end of the line after ]"},
        {"[-SYSTEM]", 3, "a key that begins with HKEY_LOCAL_MACHINE\\ or another root"},
        {"[HKEY_LOCAL_MACHIN\\SYSTEM]", 3, "a key that begins with HKEY_LOCAL_MACHINE\\ or another root"},
        {"[HKEY_LOCAL_MACHINE/SYSTEM]", 3, "a key that begins with HKEY_LOCAL_MACHINE\\ or another root"},
        {"[HKEY_LOCAL_MACHINE\\SYSTEM/Select]", 3, "\\ and not / between the names of a key"},
        {"[HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001/Enum\\A\\B\\C]", 3,
         "\\ and not / between the names of a key"},
        {"[HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001\\Control/COM Name Arbiter]", 3,
         "\\ and not / between the names of a key"},
        {"\"A=1", 3, "\" after the value's name"},
        {"\"A\"\"x\"", 3, "= after the value's name"},
        {"\"A\"=", 3, "a text in quotes, dword:, hex: or -"},
        {"\"A\"=Dword:1", 3, "a text in quotes, dword:, hex: or -"},
        {"\"A\"=- -", 3, "the end of the line after -"},
        {"\"A\"=\"x\" y", 3, "the end of the line after \""},
        {"\"A\"=\"x\\y\"", 3, "\\ or \" after \\"},
        {"\"A\"=\"x\\\n\"", 3, "\\ or \" after \\"},
        {"\"A\"=\"x\n\ny\" z", 5, "the end of the line after \""},
        {"\"A\"=\"x\n\"B\"=\"y\"", 3, "\" after the text"},
        {"\n\"A\"=\"x\n\n", 4, "\" after the text"},
        {"\"A\"=dword:", 3, "one to eight hexadecimal digits"},
        {"\"A\"=dword:123456789", 3, "one to eight hexadecimal digits"},
        {"\"A\"=hex01", 3, ": after hex"},
        {"\"A\"=hex(:01", 3, "one to eight hexadecimal digits"},
        {"\"A\"=hex(7:01", 3, ") after the value's type"},
        {"\"A\"=hex:01,02,", 3, "a byte in two hexadecimal digits"},
        {"\"A\"=hex:0\xC4\xA0,02", 3, "a comma or the end of the line after the byte"},
        {"\"A\"=hex:0\xC2\x80,02", 3, "a comma or the end of the line after the byte"},
        {"\"A\"=hex:01\\\n02", 3, "a comma or the end of the line after the byte"},
        {"\"A\"=hex:01,\\ 02\n02", 3, "the end of the line after \\"},
        {"\"A\"=hex:01,\\\n; fine\n02,\\\n0x,\\\n03", 6, "a comma or the end of the line after the byte"},
        {"\"A\"=hex:01,\\\n\"B\"=\"x\"", 4, "a byte in two hexadecimal digits"},
        {"\"A\"=hex:01,\\\n", 3, "another line after \\"},
    };
    static const struct {
        std::string bytes;
        std::size_t line;
        const char* expected;
    } whole_files[] = {
        {"", 1, "the line \"Windows Registry Editor Version 5.00\""},
        {"REGEDIT4\n", 1, "the line \"Windows Registry Editor Version 5.00\""},
        {"Windows Registry Editor Version 5.001\n", 1, "the line \"Windows Registry Editor Version 5.00\""},
        {"\xFF\xFE", 1, "the line \"Windows Registry Editor Version 5.00\""},
        {"\xFE\xFF", 1, "UTF-16LE or UTF-8 and not UTF-16BE"},
        {std::string(4, '\0'), 1, "the line \"Windows Registry Editor Version 5.00\""},
        {std::string("\xFE\xFF\0W\0i", 6), 1, "UTF-16LE or UTF-8 and not UTF-16BE"},
        {std::string("\0W\0i", 4), 1, "UTF-16LE or UTF-8 and not UTF-16BE"},
        {first_line + store + std::string("\"A\"=\"x\0y\"", 9), 3, "a text without NUL"},
        {first_line + std::string("[HKEY_USERS\\A\0B]", 16), 2, "a text without NUL"},
        {InUtf16(first_line).substr(2), 1, "the line \"Windows Registry Editor Version 5.00\""},
        {first_line + "\"A\"=dword:1", 2, "a key in brackets before the first value"},
        {first_line + "; \xC0\x80\n", 2, "text in UTF-8"},
        {first_line + "\n; \xF4\x90\x80\x80\n", 3, "text in UTF-8"},
        {first_line + "; \xE2\x82", 2, "text in UTF-8"},
        {InUtf16(first_line + ";") + ' ', 2, "the second byte of the last character"},
    };
    // A malformed file leaves everything that was read before as it was.
    const auto expect_refusal = [](const std::string& bytes, std::size_t line, const char* expected) {
        std::istringstream in(bytes);
        host::MachineFile file;
        file.count = 3;
        host::Problem problem;
        EXPECT_FALSE(host::LoadMachine(in, "some.reg", file, problem)) << bytes;
        EXPECT_EQ(std::tie(problem.file, problem.line, problem.expected),
                  std::tuple("some.reg", line, expected))
            << bytes;
        EXPECT_EQ(file.count, 3u);
    };
    // The same in a key that matters and in one that doesn't.
    for (const std::string& key : {store, std::string("[HKEY_USERS\\A]\n")}) {
        for (const auto& each : cases) {
            for (const std::string& bytes : InEveryForm(first_line + key + each.lines)) {
                expect_refusal(bytes, each.line, each.expected);
            }
        }
    }
    for (const auto& each : whole_files) {
        expect_refusal(each.bytes, each.line, each.expected);
    }
}

TEST(RegistryExport, ReadsAcrossTheEndsOfItsBlocks) {
    Text text;
    while (text.size() < 150'000) {
        text += u"ਊ😀"; // both bytes of the first are a line feed's; with seven bytes the two shift against
    }
    // any block
    std::string lines = first_line + store;
    for (const char* name : {"A", "B", "C"}) {
        lines += std::string("\"") + name + "\"=\"" + sim::ToUtf8(text) + "\"\n";
    }
    for (const std::string& bytes : InEveryForm(lines)) {
        const sim::Machine machine = Loaded(bytes);
        ASSERT_EQ(machine.devices[0].key.list.size(), 3u);
        for (const sim::Value& value : machine.devices[0].key.list) {
            EXPECT_TRUE(value.data == BytesOf(text)) << sim::ToUtf8(value.name);
        }
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
    writer.SetValue(u"empty", REG_SZ, BytesOf(u""));
    writer.SetValue(u"nothing", REG_SZ, Bytes{});
    writer.SetValue(u"open", REG_SZ, Bytes{'a', 0});
    writer.SetValue(u"zero", REG_SZ, Bytes{0, 0, 'a', 0, 0, 0});
    writer.SetValue(u"odd", REG_SZ, Bytes{'a', 0, 0});
    writer.SetValue(u"line", REG_SZ, BytesOf(u"\n"));
    writer.SetValue(u"return", REG_SZ, BytesOf(u"\r"));
    writer.Comment(u"a comment");
    writer.Comment(u"");
    writer.DeleteValue(u"gone");
    writer.DeleteValue(u"");
    writer.SetValue(u"12345", REG_BINARY, Bytes(48, 0xA5));
    EXPECT_EQ(out.str(), InUtf16(WithReturns(first_line + R"(
[HKEY_LOCAL_MACHINE\K]
@="C:\\\"x\""
"a\\\"\n\r"=dword:00adbeef
"short"=hex(4):01
"none"=hex(0):
"type"=hex(ffff0012):01,02
"empty"=""
"nothing"=hex(1):
"open"=hex(1):61,00
"zero"=hex(1):00,00,61,00,00,00
"odd"=hex(1):61,00,00
"line"=hex(1):0a,00,00,00
"return"=hex(1):0d,00,00,00
; a comment
;
"gone"=-
@=-
"12345"=hex:a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,\
  a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,a5,\
  a5
)")));
}

} // namespace
