// The Advanced Port Settings dialog: the FIFO settings of one port, its COM number, and what the page
// gets back.
#include <algorithm>

#include "simulated/stage.h"
#include "tests/sheets.h"
#include "uart_page/parent_title.h"

namespace {

using namespace machines;
using namespace sheets;

constexpr std::size_t port = 1; // the device of the UART on COM3; COM4 is taken by another

const char* notified = "SetupDiCallClassInstaller 1 DIF_PROPERTYCHANGE";

// Opens the dialog once from its page, which is then closed by OK.
void AtDialog(std::function<void(HWND)> user, int answers = IDNO) {
    const auto at_page = [](HWND page) { Do(page, "advanced"); };
    const User hand = {.at_page = at_page, .at_dialog = std::move(user), .leaves_by = ok, .answers = answers};
    EXPECT_EQ(Open(Page::Port, port, hand), "ok");
}

// clang-format off
TEST(AdvancedPortSettings, FifoSettingsGoFromTheStoreToTheControlsAndBack) {
    const struct {
        const char* name;
        u32 sizes[2], stored[3];
        const char *user, *shown, *after_ok;
    } cases[] = {
        {"off", {128, 128}, {0, 9, 32}, "", "off tx 1/128 High (1) rx 1 High (1) dead", "0 1 1"},
        {"turned on, at where the sliders stand", {128, 128}, {0, 9, 32}, "fifo",
         "on tx 1/128 High (1) rx 1 High (1) live", "1 1 1"},
        {"slid", {128, 128}, {1, 9, 32}, "tx77 rx3", "on tx 77/128 High (77) rx 3 High (64) live", "1 77 64"},
        {"unchecked", {128, 128}, {1, 9, 32}, "tx77 fifo", "off tx 1/128 High (1) rx 1 High (1) dead", "0 1 1"},
        {"unchecked and checked", {128, 128}, {1, 9, 32}, "tx77 rx3 fifo fifo",
         "on tx 77/128 High (77) rx 3 High (64) live", "1 77 64"},
        {"defaults", {128, 128}, {0, 9, 32}, "defaults", "on tx 128/128 High (128) rx 4 High (112) live", "1 128 112"},
        {"the box remembers defaults", {128, 128}, {1, 9, 32}, "defaults fifo fifo",
         "on tx 128/128 High (128) rx 4 High (112) live", "1 128 112"},
        {"a deep one", {4096, 4096}, {1, 4000, 3583}, "", "on tx 4000/4096 High (4000) rx 3 High (2048) live",
         "1 4000 2048"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = BoardOn({3, 4});
        sim::Values& key = machine.devices[port].key;
        key.SetDword(u"UartTxFifoSize", one.sizes[0]);
        key.SetDword(u"UartRxFifoSize", one.sizes[1]);
        const AtWork at_work(machine);
        StoreFifo(port, one.stored);
        Open(Page::Port, port, {.leaves_by = ok}); // corrects the made-up speed of the line
        Changes();
        const std::string before = StoredFifo(port);
        AtDialog([&](HWND dialog) {
            EXPECT_EQ(Shown(dialog), "Advanced Settings for COM3");
            EXPECT_EQ(Shown(dialog, IDC_LARGEFIFO),
                      "&Enable " + std::to_string(one.sizes[1]) + " Byte FIFO buffers");
            EXPECT_EQ(Shown(dialog, IDC_TRANSMIT_LOW) + Shown(dialog, IDC_RECEIVE_LOW), "Low (1)Low (1)");
            EXPECT_TRUE(IsEnabled(dialog, IDC_LARGEFIFO) && IsEnabled(dialog, IDC_PORT_NUMBER));
            Do(dialog, one.user);
            EXPECT_EQ(Fifo(dialog), one.shown);
            Do(dialog, "cancel");
        });
        EXPECT_EQ(Changes(), Lines{});
        AtDialog([&](HWND dialog) {
            Do(dialog, one.user);
            Do(dialog, "ok");
            EXPECT_FALSE(IsWindowVisible(dialog));
        });
        EXPECT_EQ(StoredFifo(port), one.after_ok);
        const Lines changes = Changes();
        EXPECT_EQ(changes.size(), before == one.after_ok ? 1u : 4u);
        EXPECT_EQ(changes.back(), notified); // at every OK
        EXPECT_EQ(Boxes(), Lines{});
    }
}

TEST(AdvancedPortSettings, OkRenamesThePortOrStaysOpen) {
    const char* notice = "There was an error renaming the COM port.";
    const struct {
        const char* name;
        const char* user;
        int answers;
        Fault fault; // before OK
        Lines boxes;
        u32 number; // afterwards
        bool closed;
        const char* fifo = "1 50 112"; // stored before the number is checked
    } cases[] = {
        {"a free number", "com20", IDNO, no_fault, {}, 20, true},
        {"the present number", "com20 com3", IDNO, no_fault, {}, 3, true},
        {"no selection", "com0", IDNO, no_fault, {}, 3, true},
        {"defaults go back to the present number", "com20 defaults tx50", IDNO, no_fault, {}, 3, true},
        {"a taken number, and no", "com4", IDNO, no_fault, {in_use_question}, 3, false},
        {"a taken number, and yes", "com4", IDYES, no_fault, {in_use_question}, 4, true},
        {"no memory for the question counts as no", "com4", IDYES, Fail("LocalAlloc", 1),
         {no_memory}, 3, false},
        {"only no refuses: a question that can't be shown does not", "com4", IDNO, Fail("MessageBoxW", 1), {}, 4, true},
        {"an open port, after the question", "com4", IDYES,
         [](sim::Machine& machine) { machine.devices[port].key.SetDword(u"ChlOpened", 1); },
         {in_use_question, "The port has been opened by another application. Close and try again."}, 3, false},
        {"no database is no question", "com20", IDYES, Fail("ComDBOpen", 0),
         {"Check COM port in use failure. [serr:200]"}, 3, false},
        {"no DOS name", "com20", IDNO, Fail("DefineDosDeviceW", 2), {notice}, 3, false},
        {"a FIFO write fails", "com20", IDNO, Fail("RegSetValueExW", 2),
         {"Set COM port fifo settings failure. [serr:102]"}, 3, false, "1 128 112"},
        {"the device can't be told", "com20", IDNO, Fail("SetupDiCallClassInstaller", 0), {}, 20, true},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = BoardOn({3, 4});
        const AtWork at_work(machine);
        AtDialog([&](HWND dialog) {
            const HWND sheet = GetWindow(dialog, GW_OWNER);
            Do(dialog, "tx50");
            Do(dialog, one.user);
            one.fault(machine);
            Do(dialog, "ok");
            EXPECT_EQ(!IsWindowVisible(dialog), one.closed);
            EXPECT_EQ(PlacesOf(machine, port), PlacesAt(machine, port, one.number));
            EXPECT_EQ(Shown(sheet), "Properties of COM" + std::to_string(one.number));
            machine.faults = {};
            Changes();
        }, one.answers);
        EXPECT_EQ(Boxes(), one.boxes);
        EXPECT_EQ(StoredFifo(port), one.fifo);
        // The page's own OK writes the line, whose speed is in no list, under the name that the port has now.
        EXPECT_EQ(Changes().front(),
                  "WriteProfileStringW [Ports] COM" + std::to_string(one.number) + ": = \"75,e,7,1 \"");
    }
}

TEST(AdvancedPortSettings, AValueThatCantBeReadIsReportedAtTheOpening) {
    // The check box has no text, and the captions beside the sliders fail.
    const Fault bounds_only = [](sim::Machine& machine) {
        StoreFifo(port, {1, 9, 32});
        machine.faults = {};
        machine.faults.at_call = {{"GetWindowTextW", 1}, {"SetWindowTextW", 3}, {"SetWindowTextW", 4},
                                  {"SetWindowTextW", 7}, {"SetWindowTextW", 8}};
    };
    const struct {
        const char* name;
        Fault fault;
        const char* box;
        const char* title; // null if no dialog opens
        const char* captions = "&Enable 128 Byte FIFO buffers|Low (1)|High (128)|Low (1)|High (112)";
    } cases[] = {
        {"no key", Lock(port),
         "Get COM port name failure. [serr:100]", nullptr},
        {"no name", Erase(port, u"PortName"),
         "Get COM port name failure. [serr:101]", nullptr},
        {"a name of 20 characters",
         [](sim::Machine& machine) { machine.devices[port].key.SetText(u"PortName", u"COM34567890123456789"); },
         "Get COM port name failure. [serr:101]", nullptr},
        {"a value missing", Erase(port, u"UartCS"),
         "Get COM port basic information failure. [serr:101]", nullptr},
        {"no database", Fail("ComDBOpen", 1),
         "Initiate \"COM Port Number\" combox failure. [serr:200]", "Advenced Port Settings"},
        {"an empty name", [](sim::Machine& machine) { machine.devices[port].key.SetText(u"PortName", u""); },
         "Initiate \"COM Port Number\" combox failure. [serr:301]", "Advenced Port Settings"},
        {"no string for the title", [](sim::Machine& machine) { machine.missing_strings = {IDS_ADVANCED_SETTINGS_TITLE}; },
         nullptr, "Advenced Port Settings"},
        {"bounds only", bounds_only, nullptr, "Advanced Settings for COM3",
         "&Enable %d Byte FIFO buffers|Low (1)|High (128)|Low (1)|High (112)"},
        {"no strings", [](sim::Machine& machine) { machine.missing_strings = {IDS_LOW, IDS_HIGH}; }, nullptr,
         "Advanced Settings for COM3", "&Enable 128 Byte FIFO buffers|(1)|(128)|(1)|(112)"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = BoardOn({3, 4});
        const AtWork at_work(machine);
        bool opened = false;
        const auto at_page = [&](HWND page) {
            one.fault(machine);
            Do(page, "advanced");
        };
        const auto at_dialog = [&](HWND dialog) {
            opened = true;
            EXPECT_EQ(Shown(dialog), one.title);
            EXPECT_EQ(IsEnabled(dialog, IDC_PORT_NUMBER), one.box == nullptr);
            EXPECT_EQ(Shown(dialog, IDC_LARGEFIFO) + "|" + Shown(dialog, IDC_TRANSMIT_LOW) + "|" +
                          Shown(dialog, IDC_TRANSMIT_HIGH) + "|" + Shown(dialog, IDC_RECEIVE_LOW) + "|" +
                          Shown(dialog, IDC_RECEIVE_HIGH),
                      one.captions);
            Do(dialog, "tx50 rx4 ok"); // works, partly filled
            EXPECT_FALSE(IsWindowVisible(dialog));
        };
        EXPECT_EQ(Open(Page::Port, port, {.at_page = at_page, .at_dialog = at_dialog}), "left");
        EXPECT_EQ(opened, one.title != nullptr);
        EXPECT_EQ(Boxes(), one.box ? Lines{one.box} : Lines{});
        EXPECT_EQ(StoredFifo(port), opened ? "1 50 112" : "1 128 112");
    }
}
// clang-format on

TEST(AdvancedPortSettings, TheFirstOldNameInATitleGivesWayToTheNewOne) {
    const struct {
        const char16_t *title, *old_name, *new_name;
        const char* shown;
        Lines memory;
    } cases[] = {
        {u"COM9, COM9", u"COM9", u"COM10", "COM10, COM9", {"22 bytes", "24 bytes"}},
        {u"COM10", u"COM10", u"COM9", "COM9", {"12 bytes", "12 bytes"}},
        {u"COM12 (COM1)", u"COM1", u"COM3", "COM32 (COM1)", {"26 bytes", "26 bytes"}},
        {u"C", u"C", u"D", "D", {"4 bytes", "4 bytes"}},
        {u"Port", u"COM1", u"COM3", "Port", {"10 bytes"}},
        {u"Port", u"", u"COM3", "Port", {}},
        {u"", u"COM1", u"COM3", "", {}},
    };
    sim::Machine machine = BoardOn({3});
    const AtWork at_work(machine);
    const auto at_page = [&](HWND page) {
        const sim::LogicAtWork logic_at_work;
        for (const auto& one : cases) {
            SetWindowTextW(page, one.title);
            Forget(machine);
            _ChangeParentTitle(page, one.old_name, one.new_name);
            EXPECT_EQ(Details(machine, "LocalAlloc"), one.memory) << one.shown;
            EXPECT_EQ(Shown(page), one.shown);
        }
    };
    Open(Page::Port, port, {.at_page = at_page});
}

TEST(AdvancedPortSettings, OkReadsAllControlsBeforeItWritesAnything) {
    sim::Machine machine = BoardOn({3, 4});
    const AtWork at_work(machine);
    AtDialog([&](HWND dialog) {
        Do(dialog, "tx50 com20");
        Forget(machine);
        Do(dialog, "ok");
        const Lines seen = Journal(machine, {sim::Reach::Screen, sim::Reach::Write});
        const auto at = [&](std::string_view what) {
            return std::ranges::find_if(seen, [&](const auto& line) { return line.find(what) != line.npos; });
        };
        EXPECT_LT(at("842 TBM_GETPOS"), at("846 CB_GETCURSEL"));
        EXPECT_LT(at("846 CB_GETCURSEL"), at("UartFifoEnable"));
        EXPECT_LT(at("PortName"), at("SetWindowTextW"));
        EXPECT_LT(at("SetWindowTextW"), at("[Ports]"));
        EXPECT_NE(at("[Ports]"), seen.end());
    });
}

TEST(AdvancedPortSettings, AFailedOkWritesTheFifoAgainAndANewOpeningReadsAfresh) {
    sim::Machine machine = BoardOn({3, 4});
    const AtWork at_work(machine);
    int opened = 0;
    const auto at_page = [](HWND page) { Do(page, "advanced advanced"); };
    const auto at_dialog = [&](HWND dialog) {
        if (opened++ == 0) {
            Do(dialog, "tx50 com4 ok ok com256 ok");
            EXPECT_EQ(Count(machine, "RegSetValueExW"), 3u * 3 + 2);
        } else {
            EXPECT_EQ(Shown(dialog), "Advanced Settings for COM256");
            EXPECT_EQ(Shown(dialog, IDC_PORT_NUMBER), "COM256");
            EXPECT_EQ(Items(dialog, IDC_PORT_NUMBER)[2], "COM3");
            EXPECT_EQ(Fifo(dialog), "on tx 50/128 High (50) rx 4 High (112) live");
            Do(dialog, "com3 ok");
            EXPECT_EQ(Shown(GetWindow(dialog, GW_OWNER)), "Properties of COM3");
        }
    };
    EXPECT_EQ(Open(Page::Port, port, {.at_page = at_page, .at_dialog = at_dialog}), "left");
    EXPECT_EQ(Boxes(), Lines(2, in_use_question));
    EXPECT_EQ(PlacesOf(machine, port), PlacesAt(machine, port, 3));
}

} // namespace
