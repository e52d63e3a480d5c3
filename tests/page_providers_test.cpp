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

TEST(PageProviders, APageTakesNoUnknownCommandAndClosesAtCancel) {
    for (const Page kind : {Page::Board, Page::Port}) {
        sim::Machine machine = BoardOn({3});
        SetLine(machine, 3, u"9600,n,8,1");
        const AtWork at_work(machine);
        const auto at_page = [](HWND page) {
            SendMessageW(page, WM_COMMAND, MAKEWPARAM(9999, 0), 0);
            SendMessageW(page, WM_HSCROLL, 0, 0);
            EXPECT_TRUE(IsWindowVisible(page));
            SendMessageW(page, WM_COMMAND, IDCANCEL, 0);
            EXPECT_FALSE(IsWindowVisible(page));
        };
        EXPECT_EQ(Open(kind, kind == Page::Board ? 0 : 1, {.at_page = at_page}), "left");
        EXPECT_EQ(Changes(), Lines{});
    }
}

} // namespace
