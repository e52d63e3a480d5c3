// The Port Settings page: its five combos, the settings line through them, and what OK writes.
#include "simulated/catalogue.h"
#include "simulated/stage.h"
#include "tests/sheets.h"
#include "uart_page/settings_combos.h"
#include "uart_page/settings_line.h"

namespace {

using namespace sheets;
using machines::AtWork;

constexpr int combos[] = {IDC_BAUD_RATE, IDC_PARITY, IDC_DATA_BITS, IDC_STOP_BITS, IDC_FLOW_CONTROL};
constexpr std::size_t port = 1; // the device of the UART on COM3

// One UART on COM3 with a settings line; without one for a null pointer.
sim::Machine UartWithLine(const char16_t* line) {
    sim::Machine machine = machines::BoardOn({3});
    if (line != nullptr) {
        machines::SetLine(machine, 3, line);
    } else {
        machine.profile.clear();
    }
    return machine;
}

std::string Line() {
    return sim::ToUtf8(machines::Line(sim::Current(), 3));
}

// The five selections as shown, separated by bars.
std::string Selected(HWND page) {
    std::string texts;
    for (const int combo : combos) {
        texts += (texts.empty() ? "" : "|") + Shown(page, combo);
    }
    return texts;
}

Lines Writing(const char* line) {
    return {std::string("WriteProfileStringW [Ports] COM3: = \"") + line + '"',
            "SendNotifyMessageW WM_WININICHANGE \"Ports\"", "SetupDiCallClassInstaller 1 DIF_PROPERTYCHANGE"};
}

// How many of the combos are enabled, and whether the two buttons are.
std::string Enabled(HWND page) {
    int live = 0;
    for (const int combo : combos) {
        live += IsEnabled(page, combo) ? 1 : 0;
    }
    return std::to_string(live) + (IsEnabled(page, IDC_ADVANCED) ? " advanced" : "") +
           (IsEnabled(page, IDC_RESTORE_PORT) ? " restore" : "");
}

// clang-format off
TEST(UartPage, AnInitialisationThatFailsLeavesAPageThatSavesNothing) {
    const struct {
        const char* name;
        Fault fault;
        const char *box, *selected; // as far as it came
    } cases[] = {
        {"no parities", [](sim::Machine& machine) { machine.missing_strings = {IDS_PARITY_LIST}; },
         "Initiate \"Parity\" combox failure.", "9600||8||"},
        {"no stop bits", [](sim::Machine& machine) { machine.missing_strings = {IDS_STOP_BITS_LIST}; },
         "Initiate \"Stop bits\" combox failure.", "9600|None|8||"},
        {"no flow controls", [](sim::Machine& machine) { machine.missing_strings = {IDS_FLOW_CONTROL_LIST}; },
         "Initiate \"Flow control\" combox failure.", "9600|None|8|1|"},
        {"no name", Erase(port, u"PortName"),
         "Get COM port name failure. [serr:101]", "9600|None|8|1|None"},
        {"a name of 20 characters",
         [](sim::Machine& machine) { machine.devices[port].key.SetText(u"PortName", u"COM34567890123456789"); },
         "Get COM port name failure. [serr:101]", "9600|None|8|1|None"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = UartWithLine(u"75,e,4,2,x");
        one.fault(machine);
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            EXPECT_EQ(Enabled(page), "5");
            EXPECT_EQ(Selected(page), one.selected);
            Choose(page, IDC_BAUD_RATE, 5);
        };
        EXPECT_EQ(Open(Page::Port, port, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(Boxes(), Lines{one.box});
        EXPECT_EQ(Changes(), Lines{});
    }
}

TEST(UartPage, CombosHaveTheirItemsUnderAnySeparators) {
    // A made-up language whose lists are separated by other characters, one of them with empty items, and whose
    // texts are longer than what takes them.
    static const sim::Text long_text = u"xaxbx." + sim::Text(300, u'c');
    static const std::vector<sim::CatalogueString> strings = [] {
        const auto english = sim::CatalogueFor(1033).strings;
        std::vector<sim::CatalogueString> made_up(english.begin(), english.end());
        for (sim::CatalogueString& string : made_up) {
            string.text = string.id == IDS_PARITY_LIST      ? u";a.,b;c;;d;e"
                          : string.id == IDS_STOP_BITS_LIST ? u"|1|1.5.0|2|"
                          : string.id == IDS_FLOW_CONTROL_LIST ? long_text.c_str()
                          : string.id == IDS_ADVANCED_SETTINGS_TITLE ? long_text.c_str()
                          : string.id == IDS_IN_USE_SUFFIX ? u"012345678901234567890123456789012345678"
                                                               : string.text;
        }
        return made_up;
    }();
    static const sim::Catalogue catalogue = {made_up_language, sim::CatalogueFor(1033).dialogs, strings};
    static const bool entered = sim::EnterCatalogue(catalogue);
    ASSERT_TRUE(entered);
    const Lines parities = {"Even", "Odd", "None", "Mark", "Space"};
    const struct {
        LANGID language;
        const char16_t* decimal;
        Lines parity, stop_bits;
    } cases[] = {
        {1033, u".", parities, {"1", "1.5", "2"}},
        {1033, u",", parities, {"1", "1,5", "2"}},
        {1033, u"\u066B", parities, {"1", "1\u066B5", "2"}},
        {1033, u"::", parities, {"1", "1.5", "2"}},
        {1033, u"", parities, {"1", "1.5", "2"}},
        {made_up_language, u"x", {"a.,b", "c", "", "d", "e"}, {"1", "1x5.0", "2", ""}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(sim::ToUtf8(one.decimal));
        sim::Machine machine = UartWithLine(u"9600,n,8,1.5");
        machine.language = one.language;
        machine.decimal_separator = one.decimal;
        sim::SetClaimed(machine.port_usage, 4, true);
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            EXPECT_EQ(Items(page, IDC_BAUD_RATE),
                      (Lines{"75", "110", "134", "150", "300", "600", "1200", "1800", "2400", "4800", "7200", "9600",
                             "14400", "19200", "38400", "57600", "115200", "128000", "230400", "460800", "921600"}));
            EXPECT_EQ(Items(page, IDC_DATA_BITS), (Lines{"4", "5", "6", "7", "8"}));
            EXPECT_EQ(Items(page, IDC_PARITY), one.parity);
            EXPECT_EQ(Items(page, IDC_STOP_BITS), one.stop_bits);
            EXPECT_EQ(Shown(page, IDC_STOP_BITS), one.stop_bits[1]);
            EXPECT_EQ(Enabled(page), "5 advanced restore");
            EXPECT_EQ(Items(page, IDC_FLOW_CONTROL)[2], one.language == 1033 ? "None" : "." + std::string(251, 'c'));
            Do(page, "advanced");
            Choose(page, IDC_STOP_BITS, 3); // no item, or one that the line has no text for
            Do(page, "sheet-apply");
            EXPECT_EQ(Line(), "9600,n,8,1.5");
            Choose(page, IDC_STOP_BITS, 1);
            Choose(page, IDC_FLOW_CONTROL, 0);
        };
        const auto at_dialog = [&](HWND dialog) { // a long title and a long suffix are cut
            EXPECT_EQ(Shown(dialog).size(), one.language == 1033 ? 26u : 199u);
            EXPECT_EQ(Items(dialog, IDC_PORT_NUMBER)[3], one.language == 1033
                                                             ? "COM4 (in use)"
                                                             : "COM401234567890123456789012345678901234");
        };
        Open(Page::Port, port, {.at_page = at_page, .at_dialog = at_dialog, .leaves_by = ok});
        EXPECT_EQ(Line(), "9600,n,8,1.5,x"); // whatever is displayed
    }
}

TEST(UartPage, ALineIsReadAndWrittenOnlyIfItDiffers) {
    const char* defaults = "9600|None|8|1|None";
    const std::u16string long_line = u"9600," + std::u16string(70, u' ') + u"e,7,1.5,x"; // the read ends at ",1"
    const struct {
        const char16_t* line; // null for a port without one
        const char* selected;
        const char* after_ok; // null if OK writes nothing
    } cases[] = {
        {u"9600,n,8,1", defaults, nullptr},
        {u"9600,n,8,1 ", defaults, nullptr},
        {u"  9600,n,8,1", defaults, nullptr},
        {u"9600", defaults, nullptr},
        {u"115200,e,7,1.5,x", "115200|Even|7|1.5|Xon / Xoff", nullptr},
        // The speed is searched for by the beginning of an item, and compared as a number.
        {u"19,n,8,1", "19200|None|8|1|None", "19200,n,8,1 "},
        {u"1,s,8,1", "110|Space|8|1|None", "110,s,8,1 "},
        {u"0,o,8,1", "75|Odd|8|1|None", "75,o,8,1 "},
        {u"1000000,n,8,1", "75|None|8|1|None", "75,n,8,1 "},
        {u"9600 ,n,8,1", "75|None|8|1|None", "75,n,8,1 "},
        {u",n,8,1", "75|None|8|1|None", "75,n,8,1 "},
        {u"4294967371,e,8,1", "75|Even|8|1|None", nullptr}, // 75 modulo 2 to the power 32
        {long_line.c_str(), "9600|Even|7|1|None", nullptr},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(sim::ToUtf8(one.line));
        sim::Machine machine = UartWithLine(one.line);
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            EXPECT_EQ(Selected(page), one.selected);
            EXPECT_EQ(Changes(), Lines{});
        };
        EXPECT_EQ(Open(Page::Port, port, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(Changes(), one.after_ok ? Writing(one.after_ok) : Lines{});
        EXPECT_EQ(Line(), one.after_ok ? one.after_ok : sim::ToUtf8(one.line));
    }
    for (const char16_t* none : {static_cast<const char16_t*>(nullptr), u"", u"    "}) {
        for (const WPARAM leaves_by : {ok, cancel}) {
            sim::Machine machine = UartWithLine(none);
            machine.devices[port].remote = leaves_by == cancel;
            const AtWork at_work(machine);
            const auto at_page = [&](HWND page) { EXPECT_EQ(Selected(page), defaults); };
            Open(Page::Port, port, {.at_page = at_page, .leaves_by = leaves_by});
            EXPECT_EQ(Changes(), Lines{"WriteProfileStringW [Ports] COM3: = \"9600,n,8,1\""});
        }
    }
}
// clang-format on

// Each sheet finds what the previous one has written, saves it again without writing, and writes the next.
TEST(UartPage, EverySelectionReadsBackToItself) {
    sim::Machine machine = UartWithLine(u"75,e,4,1,x");
    machine.journal_reads = false;
    const AtWork at_work(machine);
    // Each speed occurs with each number of data bits and so on: two lists are tried in all their pairs, a
    // field that stands alone in the line once.
    constexpr int sheets_run = 21 * 5 * 3;
    const auto selections = [](int sheet) {
        return std::array{sheet % 21, sheet % 5, sheet / 21 % 5, sheet / 5 % 3, sheet / 35 % 3};
    };
    for (int sheet = 0; sheet < sheets_run && !testing::Test::HasFailure(); ++sheet) {
        const auto at_page = [&](HWND page) {
            for (std::size_t i = 0; i < std::size(combos); ++i) {
                EXPECT_EQ(Selection(page, combos[i]), selections(sheet)[i]) << Line() << " at " << combos[i];
            }
            Do(page, "sheet-apply");
            EXPECT_EQ(Changes(), Lines{});
            for (std::size_t i = 0; i < std::size(combos); ++i) {
                Choose(page, combos[i], selections(sheet + 1)[i]);
            }
        };
        Open(Page::Port, port, {.at_page = at_page, .leaves_by = ok});
        EXPECT_EQ(Changes().size(), 3u);
    }
}

TEST(UartPage, EveryChangeIsReportedToTheSheetAndComparedWithWhatWasRead) {
    sim::Machine machine = UartWithLine(u"19200,e,7,1.5,x");
    const AtWork at_work(machine);
    const auto at_page = [](HWND page) {
        const auto is_told = [=] {
            const bool told = IsEnabled(GetParent(page), ID_APPLY_NOW);
            Do(page, "sheet-apply");
            return told;
        };
        EXPECT_FALSE(is_told());
        for (const int combo : combos) {
            const int before = Selection(page, combo);
            Choose(page, combo, 2);
            EXPECT_TRUE(is_told());
            EXPECT_EQ(Changes().size(), 3u) << combo;
            EXPECT_TRUE(before != 2 && !is_told());
            EXPECT_EQ(Changes().size(), 3u) << "it still differs from what was read";
            Choose(page, combo, before);
            EXPECT_TRUE(is_told());
            EXPECT_EQ(Changes(), Lines{}) << "what was read is not written back";
        }
        EXPECT_EQ(Line(), "19200,e,7,1.5 ");
        Do(page, "restore");
        EXPECT_EQ(Selected(page), "9600|None|8|1|None");
        EXPECT_EQ(Changes(), Lines{});
        EXPECT_TRUE(is_told());
        EXPECT_EQ(Changes(), Writing("9600,n,8,1 "));
        Do(page, "advanced");
        EXPECT_FALSE(is_told());
        EXPECT_EQ(Changes(), Writing("9600,n,8,1 "));
        // Without a selection nothing is written, nothing said.
        for (const int combo : {IDC_BAUD_RATE, IDC_DATA_BITS}) {
            Choose(page, combo, -1);
            Do(page, "sheet-apply");
            EXPECT_EQ(Changes(), Lines{});
            Choose(page, combo, 0);
        }
        Choose(page, IDC_PARITY, -1);
    };
    EXPECT_EQ(Open(Page::Port, port, {.at_page = at_page, .leaves_by = ok}), "ok");
    EXPECT_EQ(Line(), "9600,n,8,1 ");
    EXPECT_EQ(Boxes(), Lines{});
}

TEST(UartPage, ARemoteMachineIsShownAndItsLineIsStillSaved) {
    for (const bool detail_fails : {false, true}) { // a set that doesn't say counts as local
        sim::Machine machine = UartWithLine(u"19,n,8,1");
        machine.devices[port].remote = true;
        const AtWork at_work(machine);
        machine.faults.at_call = {{"SetupDiGetDeviceInfoListDetailW", detail_fails ? 0 : 99}};
        const auto at_page = [=](HWND page) {
            EXPECT_EQ(Enabled(page), detail_fails ? "5 advanced restore" : "0");
            EXPECT_EQ(Selected(page), "19200|None|8|1|None");
        };
        EXPECT_EQ(Open(Page::Port, port, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(Line(), "19200,n,8,1 ");
    }
}

TEST(UartPage, FillingTheCombosStartsFromNoFailure) {
    sim::Machine machine = UartWithLine(u"9600,n,8,1");
    const AtWork at_work(machine);
    const auto at_page = [](HWND page) {
        const sim::LogicAtWork logic_at_work;
        u32 code = 77;
        EXPECT_TRUE(_FillComboxDlg(page, &code));
        EXPECT_EQ(code, 0u);
    };
    EXPECT_EQ(Open(Page::Port, port, {.at_page = at_page}), "left");
}

} // namespace
