// What the pages trace while they work. Every test with a library at work checks that each line is right
// where it occurs; this one makes every line of the table occur.
#include <gtest/gtest.h>

#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

// One sheet: what is wrong with the machine when it opens, and what the user's hand does.
struct Walk {
    Page page;
    Fault fault;
    const char* at_page;
    const char* at_dialog;
    int answers = IDYES;
};

// The device's numbers as the driver or a page might have left them.
Fault Store(std::initializer_list<std::pair<const char16_t*, DWORD>> values) {
    return [values = std::vector(values)](sim::Machine& machine) {
        for (const auto& [name, number] : values) {
            machine.devices[1].key.SetDword(name, number);
        }
    };
}

const char* const renames = "com20 ok ok cancel";

const Walk walks[] = {
    {Page::Board, no_fault, "tx50 rx2 fifo fifo apply all defaults select1 advanced com20",
     "sort mode2 termination ok"},
    {Page::Board, no_fault, "apply advanced", "sort sort defaults cancel"},
    {Page::Board, [](sim::Machine& machine) { machine.port_usage.fill(0xFF); }, "advanced", "sort"},
    {Page::Board, Fail("RegSetValueExW", 1), "tx50 apply", ""},
    {Page::Board, Store({{u"UartMode", 2}, {u"UartCapability", 0}}), "advanced", "ok"},
    {Page::Board, Store({{u"UartMode", 2}, {u"UartCapability", 1}}), "advanced", "ok"},
    {Page::Board, Store({{u"UartMode", 4}, {u"UartCapability", 3}}), "advanced", "ok"},
    {Page::Port, no_fault, "restore advanced", "tx50 rx2 fifo fifo defaults com20 ok"},
    {Page::Port, no_fault, "advanced", "fifo com5 ok ok", IDNO},
    {Page::Port, Store({{u"ChlOpened", 1}}), "advanced", renames},
    {Page::Port, [](sim::Machine& machine) { SetLine(machine, 7, u",n,8,1"); }, "", ""},
    {Page::Port, Lock(1), "", ""},
    {Page::Port, Erase(1, u"PortName"), "", ""},
    {Page::Port, Fail("RegQueryValueExW", 28), "advanced", renames}, // of ChlOpened
    {Page::Port, Fail("ComDBOpen", 0), "advanced", ""},
    {Page::Port, Fail("ComDBGetCurrentPortUsage", 0), "advanced", ""},
    {Page::Port, Fail("QueryDosDeviceW", 1), "advanced", renames},
    {Page::Port, Fail("QueryDosDeviceW", 2), "advanced", renames},
    {Page::Port, Fail("DefineDosDeviceW", 2), "advanced", renames},
    {Page::Port, Fail("SetupDiSetClassInstallParamsW", 0), "advanced", renames},
    {Page::Port, Fail("SetupDiCallClassInstaller", 0), "advanced", renames},
};

TEST(Trace, HasEveryLineButOne) {
    for (const Walk& walk : walks) {
        SCOPED_TRACE(testing::Message() << walk.at_page << " / " << walk.at_dialog);
        sim::Machine machine = BoardOn({7, 5});
        AddUart(machine, {4, 18}, 1, 9);
        const AtWork at_work(machine);
        walk.fault(machine);
        const User user = {.at_page = [&](HWND page) { Do(page, walk.at_page); },
                           .at_dialog = [&](HWND dialog) { Do(dialog, walk.at_dialog); },
                           .leaves_by = ok,
                           .answers = walk.answers};
        Open(walk.page, walk.page == Page::Board ? 0 : 1, user);
        DllMain(sim::LibraryInstance(), DLL_PROCESS_DETACH, nullptr);
    }
    // A mode is refused only if no offered one is selected, and by then its bits are always there.
    EXPECT_EQ(TraceReader::Unseen(),
              std::set<std::string>{"%s - Set AUTORS422485 mode, capability(x%08X) not support"});
}

} // namespace
