// The keyboard in cases that tests/windows/keys_test.py does not compare with the real dialogs: open lists,
// letters typed in a row, hot keys that several controls share, and the focus when it is taken away.
#include <gtest/gtest.h>

#include "host/screen/keyboard.h"
#include "tests/machines.h"
#include "tests/sheets.h"

namespace {

constexpr host::Key f4{VK_F4}, enter{VK_RETURN}, escape{VK_ESCAPE}, down{VK_DOWN}, tab{VK_TAB};
constexpr int tabs = 0x3020; // of a sheet
constexpr host::Key alt_down{VK_DOWN, 0, false, true}, alt_up{VK_UP, 0, false, true};

int Focused() {
    return GetFocus() == nullptr ? 0 : GetDlgCtrlID(GetFocus());
}

HWND SheetOf(HWND page) {
    return GetParent(page);
}

void Type(HWND front, const char16_t* letters) {
    for (; *letters != 0; ++letters) {
        host::PressKey(front, {0, *letters});
    }
}

// On the page of a board with eight UARTs.
void AtBoard(const sheets::User& user) {
    sim::Machine machine = machines::BoardOn({3, 4, 6, 5, 12, 120, 13, 14});
    const machines::AtWork at_work(machine);
    sheets::Open(sheets::Page::Board, 0, user);
}

TEST(Keyboard, AnOpenListTakesEnterAndEscForItself) {
    AtBoard({.at_page = [](HWND page) {
        const HWND sheet = SheetOf(page), combo = GetDlgItem(page, IDC_PORT_NUMBER);
        host::PressKey(sheet, {0, 'P', false, true});
        for (const auto& [opens, closes] : {std::pair{f4, enter}, {alt_down, escape}, {alt_up, tab}}) {
            const LRESULT before = SendMessageW(combo, CB_GETCURSEL, 0, 0);
            host::PressKey(sheet, opens);
            EXPECT_TRUE(SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0));
            host::PressKey(sheet, down);
            host::PressKey(sheet, closes);
            EXPECT_FALSE(SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0));
            EXPECT_EQ(SendMessageW(combo, CB_GETCURSEL, 0, 0), before + 1);
        }
        EXPECT_TRUE(IsWindowVisible(sheet));
    }});
}

TEST(Keyboard, LettersTypedInARowFindTheItemThatBeginsWithThem) {
    AtBoard({.at_page = [](HWND page) {
        const HWND sheet = SheetOf(page);
        Type(sheet, u"com1");
        EXPECT_EQ(sheets::Shown(page, IDC_PORT_LIST), "COM12 (port5)");
        Type(sheet, u"20");
        EXPECT_EQ(sheets::Shown(page, IDC_PORT_LIST), "COM120 (port6)");
        Type(sheet, u"c"); // no item begins with both, so the search starts again
        EXPECT_EQ(sheets::Shown(page, IDC_PORT_LIST), "COM13 (port7)");
        host::PressKey(sheet, {VK_UP});
        host::PressKey(sheet, f4); // which a list does not know
        EXPECT_EQ(sheets::Shown(page, IDC_PORT_LIST), "COM120 (port6)");
        Type(sheet, u"p");
        EXPECT_EQ(Focused(), IDC_PORT_LIST);
        host::PressKey(sheet, tab); // to a box, where a letter is a hot key
        Type(sheet, u"p");
        EXPECT_EQ(Focused(), IDC_PORT_NUMBER);
    }});
}

TEST(Keyboard, ASharedHotKeyMovesFromOneControlToTheNext) {
    AtBoard({.at_page = [](HWND page) {
        const HWND sheet = SheetOf(page);
        const host::Key apply{0, 'a', false, true};
        SendMessageW(sheet, PSM_CHANGED, reinterpret_cast<WPARAM>(page), 0);
        for (const int next : {IDC_APPLY, ID_APPLY_NOW, IDC_APPLY}) {
            host::PressKey(sheet, apply);
            EXPECT_EQ(Focused(), next);
        }
        EXPECT_TRUE(IsWindowEnabled(GetDlgItem(sheet, ID_APPLY_NOW))); // so none was pressed
    }});
}

TEST(Keyboard, TheFocusComesBackAfterASortAndAfterADialog) {
    AtBoard({.at_page =
                 [](HWND page) {
                     host::PressKey(SheetOf(page), {0, 'v', false, true});
                     EXPECT_EQ(Focused(), IDC_PORT_LIST); // the page moves it there: the numbers are new
                 },
             .at_dialog =
                 [](HWND dialog) {
                     EXPECT_EQ(Focused(), IDC_SORT_COM);
                     host::PressKey(dialog, enter);
                     EXPECT_EQ(Focused(), IDC_SORT_COM);
                     EXPECT_FALSE(sheets::Changes().empty());
                     EnableWindow(GetFocus(), FALSE);
                     EXPECT_EQ(Focused(), 0);
                     host::PressKey(dialog, tab); // leads nowhere, as in the real dialogs; a hot key does
                     EXPECT_EQ(Focused(), 0);
                     host::PressKey(dialog, {0, 'T', false, true});
                     EXPECT_EQ(Focused(), IDC_INTERFACE_SELECT);
                 }});
}

TEST(Keyboard, KeysStayWhereTheyAreMeant) {
    AtBoard({.at_page =
                 [](HWND page) {
                     const HWND sheet = SheetOf(page);
                     SetFocus(GetDlgItem(sheet, tabs));
                     host::PressKey(sheet, down); // for the tabs, as a letter is without Alt
                     Type(sheet, u"p");
                     EXPECT_EQ(Focused(), tabs);
                     host::PressKey(sheet, {0, 'v', false, true});
                 },
             .at_dialog =
                 [](HWND dialog) {
                     const HWND list = GetDlgItem(dialog, IDC_INTERFACE_SELECT);
                     SetFocus(list);
                     MSG message = {list, WM_KEYDOWN, VK_TAB, 0, 0, {}};
                     EXPECT_FALSE(IsDialogMessageW(GetWindow(dialog, GW_OWNER), &message));
                     EXPECT_EQ(Focused(), IDC_INTERFACE_SELECT);
                     EnableWindow(GetDlgItem(dialog, IDOK), FALSE);
                     host::PressKey(dialog, enter);
                     EXPECT_TRUE(IsWindowVisible(dialog));
                 }});
}

} // namespace
