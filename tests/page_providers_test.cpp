// The providers of both pages, as the device manager calls them: every failure with its box, nothing left
// over.
#include <span>

#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

constexpr DWORD sheet = SPPSR_ENUM_ADV_DEVICE_PROPERTIES;
constexpr const char* refused = "no page, refused";
constexpr const char* not_taken = "not taken, refused";

struct Case {
    const char* name;
    Fault fault;
    Request request;
    const char* outcome;
    Lines boxes;
};

// clang-format off
const Case both[] = {
    {"as it should be", no_fault, {}, "left", {}},
    {"another request adds nothing", no_fault, {1, TRUE}, "no page", {}},
    {"no memory for the record", Fail("LocalAlloc", 1), {}, refused, {no_memory}},
    {"no memory for another request's record", Fail("LocalAlloc", 1), {1, TRUE}, refused, {no_memory}},
    {"no memory at all", Fail("LocalAlloc", 0), {}, refused, {no_memory}},
    {"no page", Fail("CreatePropertySheetPageW", 0), {}, refused, {"Create property page failure."}},
    {"not taken", no_fault, {sheet, 0}, not_taken, {"Add property page failure."}},
    {"only 1 means taken", no_fault, {sheet, 2}, not_taken, {"Add property page failure."}},
};
const Case of_the_board[] = {
    {"no key", Lock(0), {}, refused, {"Get BOARD basic information failure. [serr:100]"}},
    {"another request, no bus number", Erase(0, u"BoardPciBusNumber"), {1, TRUE}, refused,
     {"Get BOARD basic information failure. [serr:101]"}},
    {"no third interface set", Fail("SetupDiGetClassDevsW", 3), {}, refused,
     {"Initiate BOARD parameter failure. [serr:2]"}},
    {"no memory for the discovery", Fail("LocalAlloc", 2), {}, refused, {"Initiate BOARD parameter failure. [serr:1]"}},
    {"a value that nobody uses is missing", Erase(0, u"ConfigBrand"), {}, refused,
     {"Initiate BOARD parameter failure. [serr:101]"}},
};
const Fault no_uart = [](sim::Machine& machine) { machine.devices[1].key.SetDword(u"ChlType", 2); };
const Case of_the_port[] = {
    {"no key", Lock(1), {}, refused, {"Get channel basic information failure. [serr:100]"}},
    {"another request, a value missing", Erase(1, u"ChlOpened"), {1, TRUE}, refused,
     {"Get channel basic information failure. [serr:101]"}},
    {"no UART", no_uart, {}, refused, {"KVR channle(1) not COM port type."}},
    {"another request, no UART", no_uart, {1, TRUE}, refused, {"KVR channle(1) not COM port type."}},
    {"no memory for the dialog's record", Fail("LocalAlloc", 2), {}, refused, {"Initiate COM port parameter failure."}},
};
// clang-format on

void Try(Page page, std::size_t device, std::span<const Case> cases) {
    for (const Case& one : cases) {
        SCOPED_TRACE(testing::Message() << (page == Page::Board ? "board: " : "port: ") << one.name);
        sim::Machine machine = BoardOn({3});
        SetLine(machine, 3, u"9600,n,8,1");
        const AtWork at_work(machine);
        one.fault(machine);
        EXPECT_EQ(Open(page, device, {}, one.request), one.outcome);
        EXPECT_EQ(Boxes(), one.boxes);
        EXPECT_EQ(Changes(), Lines{});
    }
}

TEST(PageProviders, EachFailureHasItsBoxAndLeavesNothing) {
    Try(Page::Board, 0, both);
    Try(Page::Board, 0, of_the_board);
    Try(Page::Port, 1, both);
    Try(Page::Port, 1, of_the_port);
}

// A message to a dialog's procedure; of WM_NOTIFY the code.
struct Message {
    UINT message;
    WPARAM what;
};

constexpr Message Command(int id, int code = 0) {
    return {WM_COMMAND, MAKEWPARAM(id, code)};
}
constexpr Message opened = {WM_INITDIALOG, 0}, slid = {WM_HSCROLL, TB_ENDTRACK},
                  applied = {WM_NOTIFY, PSN_APPLY};

// Whether the procedure takes it. Only at PSN_APPLY the sheet gets a result.
bool IsTaken(HWND dialog, const Message& sent) {
    const LONG_PTR record = GetWindowLongPtrW(dialog, DWLP_USER);
    NMHDR notice = {dialog, 0, static_cast<UINT>(sent.what)};
    PROPSHEETPAGEW description = {};
    description.lParam = record;
    const LPARAM with = sent.message == WM_NOTIFY                ? reinterpret_cast<LPARAM>(&notice)
                        : sent.message != WM_INITDIALOG          ? 0
                        : GetWindow(dialog, GW_OWNER) != nullptr ? record
                                                                 : reinterpret_cast<LPARAM>(&description);
    SetWindowLongPtrW(dialog, DWLP_MSGRESULT, PSNRET_INVALID);
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrW(dialog, DWLP_DLGPROC));
    const bool taken = procedure(dialog, sent.message, sent.what, with) != FALSE;
    if (sent.message == WM_NOTIFY) {
        EXPECT_EQ(GetWindowLongPtrW(dialog, DWLP_MSGRESULT), taken ? PSNRET_NOERROR : PSNRET_INVALID);
    }
    return taken;
}

// clang-format off
TEST(PageProviders, ADialogTakesWhatItActsOn) {
    const Message no_apply = {WM_NOTIFY, PSN_RESET}, close = {WM_CLOSE, 0}, unknown = Command(9999), ok_click = Command(IDOK);
    const Message fifo = Command(IDC_LARGEFIFO), all = Command(IDC_SET_TO_ALL), store = Command(IDC_APPLY),
                  defaults = Command(IDC_RESTORE), advanced = Command(IDC_ADVANCED), leave = Command(IDCANCEL),
                  selected = Command(IDC_PORT_LIST, LBN_SELCHANGE);
    const struct {
        const char* name;
        Page page;
        bool in_dialog; // behind "Advanced"
        Fault fault;
        const char* user;
        std::vector<Message> passed_over, taken; // by each in turn
    } cases[] = {
        {"board, a UART", Page::Board, false, no_fault, "select0",
         {no_apply, close, unknown, ok_click, Command(IDC_PORT_LIST), Command(IDC_PORT_NUMBER, CBN_SELCHANGE)},
         {slid, fifo, all, store, defaults, advanced, selected, applied, opened, leave}},
        {"board, no UART", Page::Board, false, no_fault, "select1", {fifo, all, store, defaults}, {slid, advanced, selected, applied}},
        {"board, nothing", Page::Board, false, no_fault, "select-1", {fifo, all, store, defaults, advanced}, {slid, selected, applied}},
        {"board, no access", Page::Board, false, Lock(1), "tx50", {store}, {applied}},
        {"interface", Page::Board, true, no_fault, "",
         {slid, applied, close, unknown, Command(IDC_INTERFACE_SELECT), Command(IDC_INTERFACE_SELECT, CBN_SELCHANGE), Command(IDC_SORT_COM)},
         {defaults, opened, ok_click, leave}},
        {"interface, no access", Page::Board, true, Lock(1), "mode1", {ok_click}, {}},
        {"port", Page::Port, false, no_fault, "", {slid, no_apply, close, unknown, ok_click, Command(IDC_BAUD_RATE, CBN_DROPDOWN)},
         {Command(IDC_BAUD_RATE, CBN_SELCHANGE), advanced, applied, Command(IDC_RESTORE_PORT), opened, leave}},
        {"port, no name", Page::Port, false, Erase(1, u"PortName"), "", {opened}, {}},
        {"settings", Page::Port, true, no_fault, "",
         {applied, close, unknown, Command(IDC_PORT_NUMBER, CBN_SELCHANGE)}, {slid, fifo, defaults, opened, ok_click, leave}},
        {"settings, no access", Page::Port, true, Lock(1), "tx50", {ok_click}, {}},
        {"settings, no title", Page::Port, true, [](sim::Machine& machine) { machine.missing_strings = {IDS_ADVANCED_SETTINGS_TITLE}; },
         "", {opened}, {}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = BoardOn({3});
        AddChannel(machine, {}, ClassDio, 2);
        SetLine(machine, 3, u"9600,n,8,1");
        const AtWork at_work(machine);
        const auto ask = [&](HWND dialog) {
            Do(dialog, one.user);
            one.fault(machine);
            // Without its record, and before it is filled, it does nothing, and the sheet has its answer all the same.
            const auto devices = machine.devices;
            const LONG_PTR record = SetWindowLongPtrW(dialog, DWLP_USER, 0);
            for (const auto* messages : {&one.passed_over, &one.taken}) {
                for (const Message& sent : *messages) {
                    EXPECT_EQ(sent.message != WM_INITDIALOG && IsTaken(dialog, sent),
                              messages == &one.taken && (sent.message == WM_HSCROLL || sent.message == WM_NOTIFY));
                }
            }
            if (one.page == Page::Board && !one.in_dialog) {
                bool& filled = reinterpret_cast<BoardParams*>(record)->BasicSettingsDlgInitiateOK;
                filled = false;
                SetWindowLongPtrW(dialog, DWLP_USER, record);
                EXPECT_TRUE(IsTaken(dialog, applied));
                filled = true;
            }
            EXPECT_TRUE(machine.devices == devices && machine.boxes.empty() && IsWindowVisible(dialog));
            SetWindowLongPtrW(dialog, DWLP_USER, record);
            for (const auto* messages : {&one.passed_over, &one.taken}) {
                for (const Message& sent : *messages) {
                    EXPECT_EQ(IsTaken(dialog, sent), messages == &one.taken) << sent.message << ' ' << sent.what;
                }
            }
        };
        const auto at_page = [&](HWND page) { one.in_dialog ? Do(page, "advanced") : ask(page); };
        EXPECT_EQ(Open(one.page, one.page == Page::Board ? 0 : 1, {.at_page = at_page, .at_dialog = one.in_dialog ? std::function<void(HWND)>(ask) : nullptr}), "left");
    }
}
// clang-format on

} // namespace
