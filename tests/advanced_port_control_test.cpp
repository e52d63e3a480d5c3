// The Advanced Port Control dialog: what each capability offers for each stored mode, and what OK stores.
#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

const char* no_capability = "Check COM port advance settings with capability failure.";

// "1t.": the second entry is selected; the termination box is enabled and on, the ACS box disabled and off.
// "o" is a box that is enabled and off; "-" no selection, "?" the entry of an unknown mode; "#" a disabled
// combo.
std::string State(HWND dialog) {
    const auto box = [=](int id, char on) {
        const bool enabled = IsEnabled(dialog, id);
        return IsOn(dialog, id) ? (enabled ? on : '!') : (enabled ? 'o' : '.');
    };
    const int entry = Selection(dialog, IDC_INTERFACE_SELECT);
    const bool enabled = IsEnabled(dialog, IDC_INTERFACE_SELECT);
    EXPECT_EQ(IsEnabled(dialog, IDC_INTERFACE_CAPTION), enabled);
    EXPECT_TRUE(IsEnabled(dialog, IDC_SORT_COM));
    const bool unknown = Items(dialog, IDC_INTERFACE_SELECT) == Lines{"Unknow"};
    return std::string(1, entry < 0 ? '-'
                          : unknown ? '?'
                                    : static_cast<char>('0' + entry)) +
           box(IDC_TERMINATION_ENABLE, 't') + box(IDC_ACS_ENABLE, 'a') + (enabled ? "" : "#");
}

// A board with one UART on COM3, device 1, with a stored mode and the other five values alike.
sim::Machine UartWith(u32 capability, u32 mode, u32 others) {
    sim::Machine machine = BoardOn({3});
    sim::Values& key = machine.devices[1].key;
    key.SetDword(u"UartCapability", capability);
    key.SetDword(u"UartMode", mode);
    for (const char16_t* name :
         {u"UartAHDC", u"UartCS", u"UartAutoRS422485", u"UartRS422Termination", u"UartRS485Termination"}) {
        key.SetDword(name, others);
    }
    return machine;
}

// Opens the dialog from its page, which is cancelled afterwards.
void AtDialog(std::function<void(HWND)> user) {
    const auto advanced = [](HWND page) { Do(page, "advanced"); };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = advanced, .at_dialog = std::move(user)}), "left");
}

// clang-format off
TEST(AdvancedPortControl, OffersWhatTheUartCanAndStoresNothingElse) {
    const struct {
        u32 capability;
        Lines offered;
        // Opened with the modes 1, 2, 4, 6 and an unknown one, with the other five values at 1; and the six
        // values after OK, or "" if it was refused.
        const char* opened[4];
        const char* after_ok[5];
        // Restore Defaults at mode 6 and at an unknown one.
        const char* defaults[2];
    } cases[] = {
        {0x01, {"RS-232"},
         {"0..", "-..", "-..", "-.."}, {"100000", "", "", "", "100000"}, {"0..", "?.."}},
        {0x07, {"RS-232", "RS-422"}, // RS-485 takes AHDC
         {"0..", "1..", "-..", "-.."}, {"100000", "200000", "400000", "400000", "100000"}, {"0..", "?.."}},
        {0x0F, {"RS-232", "RS-422", "RS-485"},
         {"0..", "1..", "2..", "-.."}, {"100000", "200000", "410000", "610000", "100000"}, {"0..", "?.."}},
        {0x8F, {"RS-232", "RS-422", "RS-485"}, // RS-422's termination is another bit
         {"0..", "1..", "2t.", "-t."}, {"100000", "200000", "410001", "610001", "100000"}, {"0..", "?.."}},
        {0xFF, {"RS-232", "RS-422", "RS-485", "Auto RS-422/485"},
         {"0..", "1t.", "2ta", "3ta"}, {"100000", "200010", "411001", "611111", "100000"}, {"0..", "?.."}},
        {0x2E, {"RS-422", "RS-485", "Auto RS-422/485"},
         {"-..", "0..", "1..", "2.."}, {"", "200000", "410000", "610100", "200000"}, {"0..", "?.."}},
        {0x6E, {"RS-422", "RS-485", "Auto RS-422/485"},
         {"-..", "0t.", "1..", "2t."}, {"", "200010", "410000", "610110", "200000"}, {"0o.", "?o."}},
        {0xAE, {"RS-422", "RS-485", "Auto RS-422/485"},
         {"-..", "0..", "1t.", "2t."}, {"", "200000", "410001", "610101", "200000"}, {"0..", "?.."}},
        {0x3E, {"RS-422", "RS-485", "Auto RS-422/485"},
         {"-..", "0..", "1.a", "2.a"}, {"", "200000", "411000", "611100", "200000"}, {"0..", "?.."}},
        {0x0C, {"RS-485"},
         {"-..", "-..", "0..", "-.."}, {"", "", "410000", "", "410000"}, {"0..", "?.."}},
        {0x9C, {"RS-485"},
         {"-..", "-..", "0ta", "-ta"}, {"", "", "411001", "", "410000"}, {"0oa", "?oa"}},
        {0x00, {}, {"-..", "-..", "-..", "-.."}, {"", "", "", "", ""}, {"-..#", "?..#"}},
        {0xFFFFFF00, {}, {"-..", "-..", "-..", "-.."}, {"", "", "", "", ""}, {"-..#", "?..#"}},
    };
    for (const auto& one : cases) {
        for (u32 mode = 0; mode < 8; ++mode) {
            SCOPED_TRACE(testing::Message() << std::hex << "capability 0x" << one.capability << ", mode " << mode);
            const int column = mode == 1 ? 0 : mode == 2 ? 1 : mode == 4 ? 2 : mode == 6 ? 3 : 4;
            sim::Machine machine = UartWith(one.capability, mode, 1);
            const AtWork at_work(machine);
            const std::string before = StoredMode(1);
            AtDialog([&](HWND dialog) {
                if (column >= 3) {
                    SendDlgItemMessageW(dialog, IDC_INTERFACE_SELECT, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
                    Do(dialog, "defaults");
                    EXPECT_EQ(State(dialog), one.defaults[column - 3]);
                    SendMessageW(dialog, WM_INITDIALOG, 0, GetWindowLongPtrW(dialog, DWLP_USER)); // shows the record again
                }
                EXPECT_EQ(Items(dialog, IDC_INTERFACE_SELECT), column == 4 ? Lines{"Unknow"} : one.offered);
                EXPECT_EQ(State(dialog), column == 4 ? "?..#" : one.opened[column]);
                Do(dialog, "cancel");
            });
            EXPECT_EQ(Changes(), Lines{});
            AtDialog([&](HWND dialog) {
                Do(dialog, "ok");
                EXPECT_EQ(IsWindowVisible(dialog) != FALSE, *one.after_ok[column] == 0);
                if (*one.after_ok[column] == 0) { // the record is as it was
                    SendMessageW(dialog, WM_INITDIALOG, 0, GetWindowLongPtrW(dialog, DWLP_USER));
                    EXPECT_EQ(State(dialog), column == 4 ? "?..#" : one.opened[column]);
                }
            });
            const std::string after = *one.after_ok[column] ? one.after_ok[column] : before;
            EXPECT_EQ(StoredMode(1), after);
            EXPECT_EQ(Changes().size(), after == before ? 0u : 6u); // only the six values
            EXPECT_EQ(Boxes(), *one.after_ok[column] ? Lines{} : Lines{no_capability});
        }
    }
}

TEST(AdvancedPortControl, TheUsersChoiceIsStoredByOk) {
    const struct {
        const char* name;
        u32 capability, mode, others; // stored
        const char *user, *shown, *after_ok;
    } cases[] = {
        {"RS-232 forgets all others", 0xFF, 4, 1, "mode0", "0..", "100000"},
        {"the boxes show the record at each choice", 0xFF, 1, 1, "mode3", "3ta", "611111"},
        {"a choice drops clicks", 0xFF, 2, 0, "termination mode2 acs mode1", "1o.", "200000"},
        {"both boxes clicked", 0xFF, 4, 0, "termination acs", "2ta", "411001"},
        {"both boxes clicked off", 0xFF, 6, 1, "termination acs", "3oo", "610100"},
        {"a disabled box can't be clicked", 0x0F, 2, 0, "termination acs", "1..", "200000"},
        {"one termination of two", 0x6E, 6, 0, "termination", "2t.", "610110"},
        {"no selection", 0xFF, 2, 1, "mode-1", "-..", "100000"},
        {"defaults after clicks", 0xFF, 6, 0, "termination acs defaults", "0..", "100000"},
        {"defaults of RS-485 turn ACS on", 0x9C, 4, 0, "defaults", "0oa", "411000"},
        {"defaults of an unknown mode", 0xFF, 5, 1, "defaults", "?..", "100000"},
        {"defaults without any mode leave the termination alone", 0x90, 4, 1, "defaults", "-t.#", ""},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = UartWith(one.capability, one.mode, one.others);
        const AtWork at_work(machine);
        const std::string before = StoredMode(1);
        AtDialog([&](HWND dialog) {
            Do(dialog, one.user);
            EXPECT_EQ(State(dialog), one.shown);
            Do(dialog, "ok");
        });
        EXPECT_EQ(StoredMode(1), *one.after_ok ? one.after_ok : before);
        EXPECT_EQ(Boxes(), *one.after_ok ? Lines{} : Lines{no_capability});
    }
}
// clang-format on

TEST(AdvancedPortControl, AFailedWriteKeepsTheDialogOpenAndTheNextOkWritesTheRest) {
    sim::Machine machine = UartWith(0xFF, 1, 0);
    const AtWork at_work(machine);
    const auto at_page = [](HWND page) { Do(page, "advanced advanced advanced advanced advanced"); };
    int opened = 0;
    const auto at_dialog = [&](HWND dialog) {
        if (opened++ == 0) {
            Do(dialog, "mode3 termination acs");
            machine.faults.at_call = {{"RegSetValueExW", 3}, {"RegSetValueExW", 4}};
            Do(dialog, "ok ok");
            EXPECT_TRUE(IsWindowVisible(dialog));
            EXPECT_EQ(StoredMode(1), "610000"); // the values before the failure
        } else if (opened == 3) {
            Do(dialog, "ok"); // all is stored by now
            EXPECT_EQ(Changes(), Lines{});
        } else if (opened > 3) { // at last one value alone changes
            Do(dialog, opened == 4 ? "mode2 ok" : "termination ok");
        } else {
            EXPECT_EQ(State(dialog), "3ta"); // what is not stored yet
            Changes();
            Do(dialog, "ok");
            EXPECT_EQ(Changes(),
                      (Lines{"RegSetValueExW 1 UartMode = 6", "RegSetValueExW 1 UartAHDC = 1",
                             "RegSetValueExW 1 UartCS = 1", "RegSetValueExW 1 UartAutoRS422485 = 1",
                             "RegSetValueExW 1 UartRS422Termination = 1",
                             "RegSetValueExW 1 UartRS485Termination = 1"}));
        }
    };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .at_dialog = at_dialog}), "left");
    EXPECT_EQ(opened, 5);
    EXPECT_EQ(StoredMode(1), "411000");
    EXPECT_EQ(Boxes(), Lines(2, "Set COM port advance settings failure. [serr:102]"));
}

} // namespace
