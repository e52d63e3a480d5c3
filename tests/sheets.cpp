#include "tests/sheets.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <sstream>

#include "board_page/board_page_provider.h"
#include "uart_page/uart_page_provider.h"

namespace sheets {
namespace {

// Where an add-page function keeps the pages, and what it answers.
struct Shelf {
    std::vector<HPROPSHEETPAGE> pages;
    BOOL answer = TRUE;
    int offered = 0;
};

BOOL CALLBACK Take(HPROPSHEETPAGE page, LPARAM shelf) {
    auto& to = *reinterpret_cast<Shelf*>(shelf);
    ++to.offered;
    if (to.answer == TRUE) {
        to.pages.push_back(page);
    }
    return to.answer;
}

std::string ClassOf(HWND window) {
    WCHAR name[32] = {};
    GetClassNameW(window, name, 32);
    return sim::ToUtf8(name);
}

struct ListMessages {
    UINT count, length, text, selection, select;
};

ListMessages MessagesOf(HWND list) {
    return ClassOf(list) == "ListBox"
               ? ListMessages{LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_GETCURSEL, LB_SETCURSEL}
               : ListMessages{CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_GETCURSEL, CB_SETCURSEL};
}

HWND Touchable(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    return control != nullptr && IsWindowEnabled(control) ? control : nullptr;
}

std::string Item(HWND list, int index) {
    const ListMessages to = MessagesOf(list);
    const auto item = static_cast<WPARAM>(index);
    const LRESULT length = SendMessageW(list, to.length, item, 0);
    if (length < 0) {
        return "";
    }
    sim::Text text(static_cast<std::size_t>(length) + 1, u'\0');
    SendMessageW(list, to.text, item, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return sim::ToUtf8(text);
}

void Slide(HWND dialog, int id, int position) {
    if (const HWND slider = Touchable(dialog, id)) {
        SendMessageW(slider, TBM_SETPOS, TRUE, position);
        SendMessageW(dialog, WM_HSCROLL, TB_ENDTRACK, reinterpret_cast<LPARAM>(slider));
    }
}

void Click(HWND dialog, int id) {
    if (const HWND button = Touchable(dialog, id)) {
        SendMessageW(button, BM_CLICK, 0, 0);
    }
}

// The title of a sheet names its port, which may be long.
sim::Text TitleOf(std::size_t device) {
    sim::Text title = u"Properties of ";
    if (const sim::Value* name = sim::Current().devices[device].key.Find(u"PortName")) {
        title.resize(title.size() + name->data.size() / 2);
        std::memcpy(title.data() + 14, name->data.data(), (title.size() - 14) * 2);
    }
    return title.substr(0, title.find(u'\0'));
}

} // namespace

Fault Fail(const char* operation, std::size_t call) {
    return [=](sim::Machine& machine) {
        machine.faults = {};
        machine.faults.at_call = {{operation, call}};
    };
}

Fault Erase(std::size_t device, const char16_t* value) {
    return [=](sim::Machine& machine) { machine.devices[device].key.Erase(value); };
}

Fault Lock(std::size_t device) {
    return [=](sim::Machine& machine) { machine.devices[device].access_denied = true; };
}

std::string Open(Page page, std::size_t device, const User& user, const Request& request) {
    sim::Machine& machine = sim::Current();
    std::vector<HWND> met; // no handle is given twice
    machine.user = [&](HWND front) {
        const bool is_new = std::ranges::find(met, front) == met.end();
        met.push_back(front);
        if (const UINT style = sim::BoxStyle(front)) {
            SendMessageW(front, WM_COMMAND, static_cast<WPARAM>(style & MB_YESNO ? user.answers : IDOK), 0);
        } else if (GetWindow(front, GW_OWNER) != nullptr) {
            if (is_new && user.at_dialog) {
                user.at_dialog(front);
            }
            if (IsWindowVisible(front)) {
                SendMessageW(front, WM_COMMAND, IDCANCEL, 0);
            }
        } else if (is_new && user.at_page) {
            user.at_page(GetWindow(front, GW_CHILD));
        } else {
            SendMessageW(front, PSM_PRESSBUTTON, user.leaves_by, 0);
        }
    };
    const machines::OpenDevice opened(device);
    SP_DEVINFO_DATA data = opened.data;
    SP_PROPSHEETPAGE_REQUEST asked = {sizeof asked, request.page_requested, opened.set, &data};
    const auto provider = page == Page::Board ? KvrBoardPropPageProvider : KvrUartPropPageProvider;
    Shelf shelf;
    shelf.answer = request.add_page;
    const bool provided = provider(&asked, Take, reinterpret_cast<LPARAM>(&shelf)) != FALSE;
    const bool accepted = !shelf.pages.empty() && sim::RunSheet(TitleOf(device), shelf.pages);
    machine.user = nullptr;
    if (shelf.pages.empty()) {
        return std::string(shelf.offered ? "not taken" : "no page") + (provided ? "" : ", refused");
    }
    return std::string(accepted ? "ok" : "left") + (provided ? "" : ", refused");
}

void Choose(HWND dialog, int id, int index) {
    if (const HWND list = Touchable(dialog, id)) {
        SendMessageW(list, MessagesOf(list).select, static_cast<WPARAM>(index), 0);
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
    }
}

void Do(HWND dialog, std::string_view words) {
    static const std::map<std::string, void (*)(HWND, int), std::less<>> hand = {
        {"tx", [](HWND on, int to) { Slide(on, IDC_TRANSMIT_SLIDER, to); }},
        {"rx", [](HWND on, int to) { Slide(on, IDC_RECEIVE_SLIDER, to); }},
        {"select", [](HWND on, int to) { Choose(on, IDC_PORT_LIST, to); }},
        {"com", [](HWND on, int to) { Choose(on, IDC_PORT_NUMBER, to - 1); }},
        {"mode", [](HWND on, int to) { Choose(on, IDC_INTERFACE_SELECT, to); }},
        {"fifo", [](HWND on, int) { Click(on, IDC_LARGEFIFO); }},
        {"termination", [](HWND on, int) { Click(on, IDC_TERMINATION_ENABLE); }},
        {"acs", [](HWND on, int) { Click(on, IDC_ACS_ENABLE); }},
        {"all", [](HWND on, int) { Click(on, IDC_SET_TO_ALL); }},
        {"apply", [](HWND on, int) { Click(on, IDC_APPLY); }},
        {"defaults", [](HWND on, int) { Click(on, IDC_RESTORE); }},
        {"restore", [](HWND on, int) { Click(on, IDC_RESTORE_PORT); }},
        {"advanced", [](HWND on, int) { Click(on, IDC_ADVANCED); }},
        {"sort", [](HWND on, int) { Click(on, IDC_SORT_COM); }},
        {"ok", [](HWND on, int) { Click(on, IDOK); }},
        {"cancel", [](HWND on, int) { Click(on, IDCANCEL); }},
        {"sheet-apply",
         [](HWND on, int) { SendMessageW(GetParent(on), PSM_PRESSBUTTON, PSBTN_APPLYNOW, 0); }},
    };
    std::istringstream stream{std::string(words)};
    for (std::string word; stream >> word;) {
        const std::size_t digits = std::min(word.find_first_of("0123456789"), word.size());
        const std::size_t sign = digits > 0 && digits < word.size() && word[digits - 1] == '-' ? 1 : 0;
        const int number = digits < word.size() ? std::stoi(word.substr(digits - sign)) : 0;
        const auto found = hand.find(word.substr(0, digits - sign));
        ASSERT_NE(found, hand.end()) << word;
        found->second(dialog, number);
    }
}

std::string Shown(HWND window) {
    WCHAR text[1024] = {};
    GetWindowTextW(window, text, 1024);
    return sim::ToUtf8(text);
}

std::string Shown(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    return ClassOf(control) == "ListBox" ? Item(control, Selection(dialog, id)) : Shown(control);
}

std::vector<std::string> Items(HWND dialog, int id) {
    const HWND list = GetDlgItem(dialog, id);
    std::vector<std::string> items;
    const LRESULT count = SendMessageW(list, MessagesOf(list).count, 0, 0);
    for (int index = 0; index < count; ++index) {
        items.push_back(Item(list, index));
    }
    return items;
}

std::vector<std::string> Rows(HWND dialog) {
    const HWND list = GetDlgItem(dialog, IDC_RESOURCE_LIST);
    std::vector<std::string> rows;
    const LRESULT count = SendMessageW(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) {
        WCHAR cells[2][300] = {};
        for (int column = 0; column < 2; ++column) {
            LVITEMW item = {};
            item.iSubItem = column;
            item.pszText = cells[column];
            item.cchTextMax = 300;
            SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        }
        rows.push_back(sim::ToUtf8(cells[0]) + ": " + sim::ToUtf8(cells[1]));
    }
    return rows;
}

int Selection(HWND dialog, int id) {
    const HWND list = GetDlgItem(dialog, id);
    return static_cast<int>(SendMessageW(list, MessagesOf(list).selection, 0, 0));
}

bool IsOn(HWND dialog, int id) {
    return IsDlgButtonChecked(dialog, id) == BST_CHECKED;
}

bool IsEnabled(HWND dialog, int id) {
    return IsWindowEnabled(GetDlgItem(dialog, id)) != FALSE;
}

std::string Fifo(HWND dialog) {
    const auto number = [=](int id, UINT message) {
        return std::to_string(SendDlgItemMessageW(dialog, id, message, 0, 0));
    };
    int live = 0;
    for (const int id : {IDC_TRANSMIT_SLIDER, IDC_TRANSMIT_LOW, IDC_TRANSMIT_HIGH, IDC_TRANSMIT_CAPTION,
                         IDC_RECEIVE_SLIDER, IDC_RECEIVE_LOW, IDC_RECEIVE_HIGH, IDC_RECEIVE_CAPTION}) {
        live += IsEnabled(dialog, id);
    }
    return std::string(IsOn(dialog, IDC_LARGEFIFO) ? "on" : "off") + " tx " +
           number(IDC_TRANSMIT_SLIDER, TBM_GETPOS) + "/" + number(IDC_TRANSMIT_SLIDER, TBM_GETRANGEMAX) +
           " " + Shown(dialog, IDC_TRANSMIT_HIGH) + " rx " + number(IDC_RECEIVE_SLIDER, TBM_GETPOS) + " " +
           Shown(dialog, IDC_RECEIVE_HIGH) +
           (live == 8   ? " live"
            : live == 0 ? " dead"
                        : " torn");
}

std::vector<std::string> Boxes() {
    std::vector<std::string> texts;
    for (const sim::ShownBox& box : sim::Current().boxes) {
        texts.push_back(sim::ToUtf8(box.text));
    }
    sim::Current().boxes.clear();
    return texts;
}

std::vector<std::string> Changes() {
    sim::Machine& machine = sim::Current();
    std::vector<std::string> lines = machines::Journal(machine, {sim::Reach::Write});
    machine.journal.clear();
    for (std::string& line : lines) {
        if (const std::size_t place = line.find("KVR\\Channel\\"); place != std::string::npos) {
            line.erase(place, 12);
        }
    }
    return lines;
}

std::string Stored(std::size_t device, std::initializer_list<const char16_t*> names) {
    std::string values;
    for (const char16_t* name : names) {
        const sim::Value* value = sim::Current().devices[device].key.Find(name);
        DWORD number = 0;
        if (value != nullptr) {
            std::memcpy(&number, value->data.data(), std::min(value->data.size(), sizeof number));
        }
        values += (values.empty() ? "" : " ") + (value ? std::to_string(number) : "-");
    }
    return values;
}

std::string StoredFifo(std::size_t device) {
    return Stored(device, {u"UartFifoEnable", u"UartTxFifoLowHigh", u"UartRxFifoLowHigh"});
}

std::string StoredMode(std::size_t device) {
    std::string digits = Stored(device, {u"UartMode", u"UartAHDC", u"UartCS", u"UartAutoRS422485",
                                         u"UartRS422Termination", u"UartRS485Termination"});
    std::erase(digits, ' ');
    return digits;
}

} // namespace sheets
