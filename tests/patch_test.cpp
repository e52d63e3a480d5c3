// What differs between two states of a machine, and a patch as its reader has it: what it changes, what it
// leaves out and how that is put right, and the file that takes it back. That it can be applied is among the
// laws in diagnosis_test.cpp.
#include "host/machine_file/patch.h"
#include "tests/machine_files.h"

namespace {

using namespace machine_files;
using host::Records;

host::StoreValue TextValue(const char16_t* name, const char16_t* text) {
    return {name, REG_SZ, BytesOf(text)};
}

// A port on a number, in every place, and the claims of others.
Records PortOn(const char16_t* name, std::vector<BYTE> usage) {
    const sim::Text port = name;
    host::DeviceRecord device;
    device.id = "A\\B\\1";
    device.listed = 1;
    device.description = "Port";
    device.friendly_name = "Port (" + sim::ToUtf8(port) + ")";
    device.store = {TextValue(u"PortName", name)};
    Records records;
    records.known = host::AllPlaces;
    records.devices = {device};
    records.usage = std::move(usage);
    records.serial_map = {TextValue(u"\\Device\\U", name)};
    records.settings_lines = {TextValue((port + u":").c_str(), u"9600,n,8,1")};
    return records;
}

// The lines of a patch and of what takes it back.
std::pair<std::string, std::string> Patched(const Records& before, const Records& after) {
    const std::string file = OwnFile(".reg");
    std::string error;
    EXPECT_TRUE(host::WritePatch({before, after, u"SYSTEM\\ControlSet002", "old.reg"}, file, error)) << error;
    return {Lines(ContentOf(file)), Lines(ContentOf(host::UndoPath(file)))};
}

TEST(Differences, AreThoseOfThePlacesThatAreKnownInBoth) {
    Records before = PortOn(u"COM7", {0x40}), after = before;
    before.devices.emplace_back().id = "A\\B\\0";
    before.devices[1].description = "Other";
    after.devices[0].present = false;
    before.devices[0].store = {TextValue(u"A", u"same"), TextValue(u"B", u"x"), TextValue(u"C", u"7")};
    after.devices[0].store = {
        TextValue(u"a", u"same"), TextValue(u"B", u"y"), {u"C", REG_BINARY, BytesOf(u"7")}};
    after.usage = {0x40, 0};
    after.settings_lines.clear();
    using Lines = std::vector<std::string>;
    EXPECT_EQ(
        host::DifferenceLines(before, after),
        (Lines{"device: A\\B\\0 (Other), A\\B\\0: gone", "device: device 1 (Port, absent): present -> absent",
               "device store: device 1 (Port, absent): B: \"x\" -> \"y\"",
               "device store: device 1 (Port, absent): C: \"7\" -> 37 00 00 00",
               "settings line: COM7: \"9600,n,8,1\" -> gone"}));
    after.known &= ~static_cast<unsigned>(host::InterfacesPlace | host::SettingsPlace);
    EXPECT_EQ(
        host::DifferenceLines(before, after),
        (Lines{"device: A\\B\\0 (Other), A\\B\\0: gone", "device store: device 1 (Port): B: \"x\" -> \"y\"",
               "device store: device 1 (Port): C: \"7\" -> 37 00 00 00",
               "not compared: the interfaces, which only one of the two holds",
               "not compared: the settings lines, which only one of the two holds"}));
    before.known = after.known = host::InterfacesPlace;
    after.usage = {};
    after.serial_map.clear();
    EXPECT_EQ(host::DifferenceLines(before, after), Lines{"nothing differs"});
}

TEST(Patch, SaysWhatItChangesAndLeavesOut) {
    Records before = PortOn(u"COM7", {0x40, 0}), after = PortOn(u"COM5", {0x10, 1});
    before.devices[0].store.push_back({u"Old", REG_DWORD, {1, 0, 0, 0}});
    after.devices.emplace_back().id = "A\\B\\2";
    const auto [patch, undo] = Patched(before, after);
    EXPECT_EQ(patch, R"~(Windows Registry Editor Version 5.00
; What this file changes:
;   device store: device 1 (Port): Old: 1 (0x1) -> gone
;   device store: device 1 (Port): PortName: "COM7" -> "COM5"
;   database: COM5: free -> claimed
;   database: COM7: claimed -> free
;   database: COM9: free -> claimed
;   settings line: COM5: not there -> "9600,n,8,1"
;   settings line: COM7: "9600,n,8,1" -> gone
;
; Made from old.reg.
; An administrator imports it on that machine (a double click, or regedit /s FILE) and restarts
; the machine, or the ports that it names.
; The COM port database is one value: what was claimed since the export is lost by the import. So
; import it soon, and make it from a fresh export.
;
; Not in this file, because drivers make it anew whenever they start a port:
;   serial map: \Device\U: "COM7" -> "COM5"
; The restart puts it right: the driver enters the port under the number that PortName has then.
;
; Not in this file, because only the system writes this key:
;   friendly name: device 1 (Port): "Port (COM7)" -> "Port (COM5)"
; Device Manager shows the old number, which misleads and does no harm, until the port is given
; its number on its page there (Advanced) or its driver is reinstalled.
;
; Not in this file, because the system finds devices by itself:
;   device: A\B\2, A\B\2: new

[HKEY_LOCAL_MACHINE\SYSTEM\ControlSet002\Enum\A\B\1\Device Parameters]
"Old"=-
"PortName"="COM5"

[HKEY_LOCAL_MACHINE\SYSTEM\ControlSet002\Control\COM Name Arbiter]
"ComDB"=hex:10,01

[HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows NT\CurrentVersion\Ports]
"COM5:"="9600,n,8,1"
"COM7:"=-
)~");
    // What takes it back names the same changes.
    const auto changes = [](const std::string& lines) {
        const std::size_t begin = lines.find(":\n") + 2;
        return lines.substr(begin, lines.find("\n;\n") - begin);
    };
    EXPECT_EQ(undo, first_line + "; Takes back what " + OwnFile(".reg") + " changes:\n" + changes(patch) + R"(
;
; An administrator imports it and restarts the machine, or the ports.

[HKEY_LOCAL_MACHINE\SYSTEM\ControlSet002\Enum\A\B\1\Device Parameters]
"Old"=dword:00000001
"PortName"="COM7"

[HKEY_LOCAL_MACHINE\SYSTEM\ControlSet002\Control\COM Name Arbiter]
"ComDB"=hex:40,00

[HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows NT\CurrentVersion\Ports]
"COM5:"=-
"COM7:"="9600,n,8,1"
)");
}

TEST(Patch, IsSilentAboutPlacesThatAreAsTheyWere) {
    const Records before = PortOn(u"COM7", {0x40});
    Records after = before;
    after.settings_lines[0] = TextValue(u"COM7:", u"300,n,8,1");
    EXPECT_EQ(Patched(before, after).first, R"(Windows Registry Editor Version 5.00
; What this file changes:
;   settings line: COM7: "9600,n,8,1" -> "300,n,8,1"
;
; Made from old.reg.
; An administrator imports it on that machine (a double click, or regedit /s FILE) and restarts
; the machine, or the ports that it names.

[HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows NT\CurrentVersion\Ports]
"COM7:"="300,n,8,1"
)");
}

TEST(Patch, HoldsWhatWasWrittenSinceInAPlaceThatWasNotRead) {
    const Records after = PortOn(u"COM7", {0x40});
    Records before = after;
    before.known &= ~static_cast<unsigned>(host::SettingsPlace);
    before.settings_lines.clear();
    EXPECT_NE(Patched(before, after).first.find("\n\"COM7:\"=\"9600,n,8,1\"\n"), std::string::npos);
}

TEST(Patch, IsNotWrittenIfThereIsNothingToWriteOrNoPlaceForIt) {
    const Records before = PortOn(u"COM7", {0x40});
    Records after = before;
    after.serial_map.clear();
    after.devices[0].friendly_name = "Port";
    std::string error;
    EXPECT_FALSE(
        host::WritePatch({before, after, u"SYSTEM\\ControlSet001", "old.reg"}, OwnFile(".reg"), error));
    EXPECT_EQ(error, "nothing has changed that a patch could hold");
    after.usage = {0};
    EXPECT_FALSE(
        host::WritePatch({before, after, u"SYSTEM\\ControlSet001", "old.reg"}, "/no/such/x.reg", error));
    EXPECT_TRUE(error.starts_with("can't write /no/such/x-undo.reg: ")) << error;
}

TEST(Patch, IsTakenBackByTheFileOfItsName) {
    for (const auto& [path, undo] : {std::pair{"fix.reg", "fix-undo.reg"},
                                     {"a.reg/FIX.Reg", "a.reg/FIX-undo.reg"},
                                     {"fix", "fix-undo.reg"},
                                     {"reg", "reg-undo.reg"},
                                     {".reg", "-undo.reg"},
                                     {"fix.regs", "fix.regs-undo.reg"}}) {
        EXPECT_EQ(host::UndoPath(path), undo);
    }
}

} // namespace
