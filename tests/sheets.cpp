#include "tests/sheets.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <sstream>

#include "host/screen/hand.h"
#include "host/worlds/simulated/page_provider.h"

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

// A missing control reads as an empty one.
host::Control Read(HWND dialog, int id) {
    const host::Window window = host::ReadWindow(dialog, false);
    const auto found = std::ranges::find(window.controls, id, &host::Control::id);
    return found != window.controls.end() ? *found : host::Control();
}

// Passes a control to the hand with what the hand needs of it; its items, up to 256, would take long to read.
template <class Act> void Touch(HWND dialog, int id, host::Kind kind, const Act& act) {
    host::Control control;
    control.window = GetDlgItem(dialog, id);
    control.id = id;
    control.kind = kind;
    if (control.window != nullptr && IsWindowEnabled(control.window)) {
        act(control);
    }
}

void Slide(HWND dialog, int id, int position) {
    Touch(dialog, id, host::Kind::Slider, [&](const host::Control& slider) { host::Drag(slider, position); });
}

void Click(HWND dialog, int id) {
    Touch(dialog, id, host::Kind::Button, host::Click);
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
    std::vector<HWND> met; // no handle is used twice
    Shelf shelf;
    shelf.answer = request.add_page;
    machine.user = [&](HWND front) {
        const bool is_new = std::ranges::find(met, front) == met.end();
        met.push_back(front);
        const HWND owner = GetWindow(front, GW_OWNER);
        if (const UINT style = sim::BoxStyle(front)) {
            EXPECT_EQ(owner == nullptr, shelf.pages.empty()); // a provider has no window yet
            SendMessageW(front, WM_COMMAND, static_cast<WPARAM>(style & MB_YESNO ? user.answers : IDOK), 0);
        } else if (owner != nullptr) {
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
    const bool provided = host::ProviderOf(page)(&asked, Take, reinterpret_cast<LPARAM>(&shelf)) != FALSE;
    const sim::Text title = u"Properties of " + machines::PlacesOf(machine, device).port_name;
    const bool accepted = !shelf.pages.empty() && sim::RunSheet(title, shelf.pages);
    machine.user = nullptr;
    if (shelf.pages.empty()) {
        return std::string(shelf.offered ? "not taken" : "no page") + (provided ? "" : ", refused");
    }
    return std::string(accepted ? "ok" : "left") + (provided ? "" : ", refused");
}

void Choose(HWND dialog, int id, int index) {
    Touch(dialog, id, id == IDC_PORT_LIST ? host::Kind::List : host::Kind::Combo,
          [&](const host::Control& list) { host::PickItem(list, index); });
}

void Do(HWND dialog, std::string_view words) {
    static const std::map<std::string, void (*)(HWND, int), std::less<>> hand = {
        {"tx", [](HWND on, int to) { Slide(on, IDC_TRANSMIT_SLIDER, to); }},
        {"rx", [](HWND on, int to) { Slide(on, IDC_RECEIVE_SLIDER, to); }},
        {"select", [](HWND on, int to) { Choose(on, IDC_PORT_LIST, to); }},
        {"com", [](HWND on, int to) { Choose(on, IDC_PORT_NUMBER, to - 1); }},
        {"mode", [](HWND on, int to) { Choose(on, IDC_INTERFACE_SELECT, to); }},
        {"baud", [](HWND on, int to) { Choose(on, IDC_BAUD_RATE, to); }},
        {"data", [](HWND on, int to) { Choose(on, IDC_DATA_BITS, to); }},
        {"parity", [](HWND on, int to) { Choose(on, IDC_PARITY, to); }},
        {"stop", [](HWND on, int to) { Choose(on, IDC_STOP_BITS, to); }},
        {"flow", [](HWND on, int to) { Choose(on, IDC_FLOW_CONTROL, to); }},
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
    const host::Control control = Read(dialog, id);
    return control.selection < 0 ? control.text : control.items[static_cast<std::size_t>(control.selection)];
}

Lines Items(HWND dialog, int id) {
    return Read(dialog, id).items;
}

Lines Rows(HWND dialog) {
    const host::Control list = Read(dialog, IDC_RESOURCE_LIST);
    Lines rows(list.rows.size() + 1);
    for (std::size_t column = 0; column < list.columns.size(); ++column) {
        const char* between = column == 0 ? "" : ": ";
        rows[0] += between + list.columns[column].title;
        for (std::size_t row = 0; row < list.rows.size(); ++row) {
            rows[row + 1] += between + list.rows[row][column];
        }
    }
    return rows;
}

int Selection(HWND dialog, int id) {
    return Read(dialog, id).selection;
}

bool IsOn(HWND dialog, int id) {
    return Read(dialog, id).checked;
}

bool IsEnabled(HWND dialog, int id) {
    return IsWindowEnabled(GetDlgItem(dialog, id)) != FALSE;
}

std::string Fifo(HWND dialog) {
    const host::Control tx = Read(dialog, IDC_TRANSMIT_SLIDER), rx = Read(dialog, IDC_RECEIVE_SLIDER);
    int live = 0;
    for (const int id : {IDC_TRANSMIT_SLIDER, IDC_TRANSMIT_LOW, IDC_TRANSMIT_HIGH, IDC_TRANSMIT_CAPTION,
                         IDC_RECEIVE_SLIDER, IDC_RECEIVE_LOW, IDC_RECEIVE_HIGH, IDC_RECEIVE_CAPTION}) {
        live += IsEnabled(dialog, id) ? 1 : 0;
    }
    return std::string(IsOn(dialog, IDC_LARGEFIFO) ? "on" : "off") + " tx " + std::to_string(tx.position) +
           "/" + std::to_string(tx.maximum) + " " + Shown(dialog, IDC_TRANSMIT_HIGH) + " rx " +
           std::to_string(rx.position) + " " + Shown(dialog, IDC_RECEIVE_HIGH) +
           (live == 8   ? " live"
            : live == 0 ? " dead"
                        : " torn");
}

Lines Boxes() {
    Lines texts;
    for (const sim::ShownBox& box : sim::Current().boxes) {
        texts.push_back(sim::ToUtf8(box.text));
    }
    sim::Current().boxes.clear();
    return texts;
}

Lines Changes() {
    sim::Machine& machine = sim::Current();
    Lines lines = machines::Journal(machine, {sim::Reach::Write});
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
        values += (values.empty() ? "" : " ") + (value != nullptr ? std::to_string(number) : "-");
    }
    return values;
}

std::string StoredFifo(std::size_t device) {
    return Stored(device, {u"UartFifoEnable", u"UartTxFifoLowHigh", u"UartRxFifoLowHigh"});
}

void StoreFifo(std::size_t device, const u32 (&values)[3]) {
    sim::Values& key = sim::Current().devices[device].key;
    key.SetDword(u"UartFifoEnable", values[0]);
    key.SetDword(u"UartTxFifoLowHigh", values[1]);
    key.SetDword(u"UartRxFifoLowHigh", values[2]);
}

std::string StoredMode(std::size_t device) {
    std::string digits = Stored(device, {u"UartMode", u"UartAHDC", u"UartCS", u"UartAutoRS422485",
                                         u"UartRS422Termination", u"UartRS485Termination"});
    std::erase(digits, ' ');
    return digits;
}

} // namespace sheets
