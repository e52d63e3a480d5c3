// The providers of both pages, as the device manager calls them: every failure with its box, nothing left
// over. What the dialogs answer to their messages.
#include <algorithm>
#include <span>

#include "simulated/stage.h"
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
    {"not taken, and ill destroyed", Fail("DestroyPropertySheetPage", 1), {sheet, 0}, not_taken,
     {"Add property page failure."}},
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

// Whether the procedure takes it. Only at PSN_APPLY the sheet gets a result.
bool IsTaken(HWND dialog, const Message& sent) {
    NMHDR notice = {dialog, 0, static_cast<UINT>(sent.what)};
    PROPSHEETPAGEW page = {};
    page.lParam = GetWindowLongPtrW(dialog, DWLP_USER);
    const LPARAM opens =
        GetWindow(dialog, GW_OWNER) != nullptr ? page.lParam : reinterpret_cast<LPARAM>(&page);
    SetWindowLongPtrW(dialog, DWLP_MSGRESULT, PSNRET_INVALID);
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrW(dialog, DWLP_DLGPROC));
    const bool taken = procedure(dialog, sent.message, sent.what,
                                 sent.message == WM_NOTIFY       ? reinterpret_cast<LPARAM>(&notice)
                                 : sent.message == WM_INITDIALOG ? opens
                                                                 : 0) != FALSE;
    EXPECT_TRUE(sent.message != WM_NOTIFY ||
                GetWindowLongPtrW(dialog, DWLP_MSGRESULT) == (taken ? PSNRET_NOERROR : PSNRET_INVALID));
    return taken;
}

// clang-format off
TEST(PageProviders, EachDialogTakesWhatItActsOn) {
    const Message opens = {WM_INITDIALOG, 0}, slides = {WM_HSCROLL, TB_ENDTRACK}, applies = {WM_NOTIFY, PSN_APPLY},
                  resets = {WM_NOTIFY, PSN_RESET}, closes = {WM_CLOSE, 0}, unknown = Command(9999), accepts = Command(IDOK),
                  leaves = Command(IDCANCEL), fifo = Command(IDC_LARGEFIFO), all = Command(IDC_SET_TO_ALL),
                  stores = Command(IDC_APPLY), defaults = Command(IDC_RESTORE), advanced = Command(IDC_ADVANCED),
                  selects = Command(IDC_PORT_LIST, LBN_SELCHANGE), number = Command(IDC_PORT_NUMBER, CBN_SELCHANGE);
    const Fault no_title = [](sim::Machine& machine) { machine.missing_strings = {IDS_ADVANCED_SETTINGS_TITLE}; };
    const struct {
        const char* name;
        Page page;
        bool in_dialog; // behind "Advanced"
        Fault fault;
        const char* user;
        std::vector<Message> passed_over, taken; // one after the other
        Lines ends = {}; // results of EndDialog, of the dialog behind "Advanced" too
    } cases[] = {
        {"board, a UART", Page::Board, false, no_fault, "select0",
         {resets, closes, unknown, accepts, Command(IDC_PORT_LIST), number},
         {slides, fifo, all, stores, defaults, advanced, selects, applies, opens, leaves}, {"2", "0"}},
        {"board, no UART", Page::Board, false, no_fault, "select1",
         {fifo, all, stores, defaults}, {slides, advanced, selects, applies}},
        {"board, nothing", Page::Board, false, no_fault, "select-1",
         {fifo, all, stores, defaults, advanced}, {slides, selects, applies}},
        {"board, no access", Page::Board, false, Lock(1), "tx50", {stores}, {applies}},
        {"interface", Page::Board, true, no_fault, "",
         {slides, applies, closes, unknown, Command(IDC_INTERFACE_SELECT), Command(IDC_INTERFACE_SELECT, CBN_SELCHANGE),
          Command(IDC_SORT_COM)}, {defaults, opens, accepts, leaves}, {"1", "2"}},
        {"interface, no access", Page::Board, true, Lock(1), "mode1", {accepts}, {}},
        {"port", Page::Port, false, no_fault, "",
         {slides, resets, closes, unknown, accepts, Command(IDC_BAUD_RATE, CBN_DROPDOWN)},
         {Command(IDC_BAUD_RATE, CBN_SELCHANGE), advanced, applies, Command(IDC_RESTORE_PORT), opens, leaves}, {"2", "0"}},
        {"port, no name", Page::Port, false, Erase(1, u"PortName"), "", {opens}, {}},
        {"settings", Page::Port, true, no_fault, "",
         {applies, closes, unknown, number}, {slides, fifo, defaults, opens, accepts, leaves}, {"1", "2"}},
        {"settings, no access", Page::Port, true, Lock(1), "tx50", {accepts}, {}},
        {"settings, no title", Page::Port, true, no_title, "", {opens}, {}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = BoardOn({3});
        AddChannel(machine, {}, ClassDio, 2);
        SetLine(machine, 3, u"9600,n,8,1");
        const AtWork at_work(machine);
        const auto ask = [&](HWND dialog) {
            const auto each = [&](const auto& ask_one) {
                std::ranges::for_each(one.passed_over, [&](const Message& sent) { ask_one(sent, false); });
                std::ranges::for_each(one.taken, [&](const Message& sent) { ask_one(sent, true); });
            };
            Do(dialog, one.user);
            one.fault(machine);
            // Without its record, and before that is filled, it does nothing, and the sheet has its answer all the same.
            const auto devices = machine.devices;
            const LONG_PTR record = SetWindowLongPtrW(dialog, DWLP_USER, 0);
            each([&](const Message& sent, bool taken) {
                const bool always = sent.message == WM_HSCROLL || sent.message == WM_NOTIFY;
                EXPECT_EQ(sent.message != WM_INITDIALOG && IsTaken(dialog, sent), taken && always);
            });
            SetWindowLongPtrW(dialog, DWLP_USER, record);
            if (one.page == Page::Board && !one.in_dialog) {
                bool& filled = reinterpret_cast<BoardParams*>(record)->BasicSettingsDlgInitiateOK;
                EXPECT_TRUE(std::exchange(filled, false) && IsTaken(dialog, applies));
                filled = true;
            }
            EXPECT_TRUE(machine.devices == devices && machine.boxes.empty() && IsWindowVisible(dialog));
            const sim::LogicAtWork logic_at_work;
            each([&](const Message& sent, bool taken) { EXPECT_EQ(IsTaken(dialog, sent), taken) << sent.what; });
            EXPECT_EQ(Details(machine, "EndDialog"), one.ends);
        };
        const auto at_page = [&](HWND page) { one.in_dialog ? Do(page, "advanced") : ask(page); };
        const auto at_dialog = [&](HWND dialog) { one.in_dialog ? ask(dialog) : Do(dialog, "cancel"); };
        Open(one.page, one.page == Page::Board ? 0 : 1, {.at_page = at_page, .at_dialog = at_dialog});
    }
}
// clang-format on

} // namespace
