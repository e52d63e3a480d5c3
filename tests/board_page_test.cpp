// The Port Control page: the channels and their resources, and the rename at OK.
#include "board_page/channel_selection.h"
#include "board_page/channel_view.h"
#include "simulated/stage.h"
#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

const char* const headings = "Resource Type: Setting";

TEST(BoardPage, ChannelsAreListedByNumberWithTheirResources) {
    sim::Machine machine;
    AddBoard(machine, {}, 9);
    AddChannel(machine, {}, ClassCan, 7);
    const std::size_t uart = AddUart(machine, {}, 4, 12);
    AddChannel(machine, {}, ClassMcp251xFd, 3);
    AddChannel(machine, {}, ClassMcp251x, 2);
    const std::size_t dio = AddChannel(machine, {}, ClassDio, 1);
    AddUart(machine, {}, 9, 13);                    // beyond what the board states
    AddUart(machine, {}, 0, 14);                    // no number of a channel
    AddUart(machine, {.bus = 3, .irq = 18}, 5, 15); // of another board
    AddUart(machine, {}, 4, 16);                    // the number of a channel that came first
    sim::Values& key = machine.devices[uart].key;
    key.SetQword(u"ChlEventAddr", 0xFEDCBA9876543210);
    key.SetDword(u"ChlEventLength", 0xFFFFFFFF);
    key.SetDword(u"ChlMemLength", 0);
    key.SetQword(u"ChlPortAddr", 0xD000);
    machine.devices[dio].key.SetQword(u"ChlPortAddr", 0);
    machine.devices[dio].key.SetDword(u"ChlEventLength", 0);
    const AtWork at_work(machine);
    const auto at_page = [](HWND page) {
        EXPECT_EQ(Items(page, IDC_PORT_LIST), (Lines{"DIO (port1)", "Mcp251x 2 (port2)",
                                                     "Mcp251xFd 3 (port3)", "COM12 (port4)", "CAN (port7)"}));
        EXPECT_EQ(Shown(page, IDC_PORT_LIST), "DIO (port1)");
        EXPECT_EQ(Rows(page), (Lines{headings, "I/O Range: 0x1FEC01000 - 0x1FEC02000", "IRQ: 17"}));
        for (int index = 0; index < 5; ++index) {
            SetWindowTextW(GetDlgItem(page, IDC_TRANSMIT_LOW), u"");
            SetWindowTextW(GetDlgItem(page, IDC_RECEIVE_LOW), u"");
            SetFocus(GetDlgItem(page, IDC_RESOURCE_LIST));
            Changes();
            Choose(page, IDC_PORT_LIST, index);
            EXPECT_EQ(Count(sim::Current(), "SetFocus"), 2u); // before and after the page follows
            const bool is_uart = index == 3;
            EXPECT_EQ(Shown(page, IDC_TRANSMIT_LOW) + Shown(page, IDC_RECEIVE_LOW),
                      is_uart ? "" : "Low (1)Low (1)");
            EXPECT_EQ(Shown(page, IDC_PORT_NUMBER), is_uart ? "COM12" : "NONE");
            EXPECT_EQ(Items(page, IDC_PORT_NUMBER).size(), is_uart ? 256u : 1u);
            EXPECT_EQ(Items(page, IDC_POLLING_CYCLE), Lines{"5"});
            EXPECT_EQ(Shown(page, IDC_POLLING_CYCLE), "5");
            for (const int of_uart : {IDC_PORT_NUMBER, IDC_PORT_NUMBER_CAPTION, IDC_LARGEFIFO, IDC_ADVANCED,
                                      IDC_APPLY, IDC_SET_TO_ALL, IDC_RESTORE}) {
                EXPECT_EQ(IsEnabled(page, of_uart), is_uart) << of_uart << " at " << index;
            }
            for (const int never : {IDC_POLLING_CYCLE, IDC_POLLING_CYCLE_CAPTION}) {
                EXPECT_FALSE(IsEnabled(page, never));
            }
            if (is_uart) {
                EXPECT_EQ(Rows(page), (Lines{headings, "I/O Range: 0xFEDCBA9876543210 - 0xFEDCBA997654320F",
                                             "I/O Range: 0xD000 - 0xD008", "IRQ: 17"}));
            }
            EXPECT_EQ(GetFocus(), GetDlgItem(page, IDC_PORT_LIST));
        }
        EXPECT_EQ(Fifo(page), "off tx 128/128 High (1) rx 4 High (1) dead");
    };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
    EXPECT_EQ(Changes(), Lines{});
    EXPECT_EQ(Boxes(), Lines{});
}

TEST(BoardPage, ARecordOfNoKnownClassTakesNoPositionInTheList) {
    sim::Machine machine = BoardOn({3, 4, 5});
    const AtWork at_work(machine);
    const auto at_page = [](HWND page) {
        const sim::LogicAtWork logic_at_work;
        BPPCHL* second = ChannelAt(PageParams(page), 1);
        for (const u32 unknown : {0u, ChannelClassCount + 1}) {
            second->Class = unknown;
            _FillChannelList(page);
            EXPECT_EQ(Items(page, IDC_PORT_LIST), (Lines{"COM3 (port1)", "COM5 (port3)"}));
        }
        second->Class = ClassUart;
    };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page}), "left");
}

TEST(BoardPage, APositionIsSignedAndBelowZeroSelectsNone) {
    void (*const select)(HWND, BoardParams*, INT) = _ChlListSelectChange;
    sim::Machine machine = BoardOn({3});
    const AtWork at_work(machine);
    const auto at_page = [&](HWND page) {
        const sim::LogicAtWork logic_at_work;
        select(page, PageParams(page), -1);
        const INT selected = SelectedChannel(page);
        EXPECT_EQ(selected, -1);
        EXPECT_EQ(ChannelAt(PageParams(page), selected), nullptr);
        EXPECT_EQ(Shown(page, IDC_PORT_NUMBER), "NONE");
    };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page}), "left");
}

TEST(BoardPage, ABoardWithoutListedChannelsIsEmptyAndWorks) {
    for (const u32 nr_controller : {0u, 1u}) {
        sim::Machine machine = BoardOn({3, 4});
        machine.devices[0].key.SetDword(u"BoardNrController", nr_controller);
        const AtWork at_work(machine);
        const auto at_page = [](HWND page) {
            EXPECT_EQ(Items(page, IDC_PORT_LIST), Lines{});
            EXPECT_EQ(Rows(page), Lines{headings});
            EXPECT_EQ(Shown(page, IDC_PORT_NUMBER), "NONE");
            EXPECT_EQ(Fifo(page), "off tx 0/100 High (1) rx 0 High (1) dead");
        };
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(Changes(), Lines{});
    }
}

TEST(BoardPage, WhatIsMissingCostsItsColumnOrRow) {
    const std::tuple<u32, UINT, Lines> cases[] = {
        {17, IDS_IO_RANGE, {headings, "IRQ: "}}, // the ranges leave their places empty
        {0, IDS_RESOURCE_TYPE, {"Setting", "I/O Range", "I/O Range", "I/O Range"}}};
    for (const auto& [irq, missing, rows] : cases) {
        sim::Machine machine = BoardOn({3, 4});
        for (sim::Device& device : machine.devices) {
            device.key.SetDword(u"BoardIrq", irq);
        }
        machine.missing_strings = {IDS_HIGH, IDS_LOW, IDS_IN_USE_SUFFIX, missing};
        const AtWork at_work(machine);
        const auto at_page = [&, &expected = rows](HWND page) {
            EXPECT_EQ(Fifo(page), "on tx 128/128 (128) rx 4 (112) live");
            EXPECT_EQ(Shown(page, IDC_TRANSMIT_LOW) + Shown(page, IDC_RECEIVE_LOW), "(1)(1)");
            EXPECT_EQ(Items(page, IDC_PORT_NUMBER)[3], "COM4 (in use)");
            EXPECT_EQ(Rows(page), expected);
        };
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page}), "left");
        EXPECT_EQ(Boxes(), Lines{});
    }
}

// clang-format off
TEST(BoardPage, OkRenamesTheSelectedPortOrSaysWhyNot) {
    const struct {
        const char* name;
        const char* user;
        Fault fault;
        Lines boxes;
        u32 number;              // of the first UART afterwards
        const char* fifo = "1 50 112"; // stored before the number is checked
    } cases[] = {
        {"a free number", "com20", no_fault, {}, 20},
        {"the present number is no change", "com3", no_fault, {}, 3},
        {"no selection is no change", "com0", no_fault, {}, 3},
        {"the sheet's Apply renames, and then from the new number on", "com20 sheet-apply com21", no_fault, {}, 21},
        {"Apply drops the choice", "com20 apply", no_fault, {}, 3},
        {"Set to All drops the choice", "com20 all", no_fault, {}, 3},
        {"another selection drops the choice", "com20 apply select1 select0", no_fault, {}, 3},
        {"a taken number is refused without a question", "com4", no_fault,
         {"This COM name is being used by another device. Try another."}, 3},
        {"an open port", "com20",
         [](sim::Machine& machine) { machine.devices[1].key.SetDword(u"ChlOpened", 2); },
         {"The port has been opened by another application. Close and try again."}, 3},
        {"no DOS name", "com20", Fail("DefineDosDeviceW", 2), {"There was an error renaming the COM port."}, 3},
        {"a FIFO write that fails stops the rename", "com20", Fail("RegSetValueExW", 1),
         {"Set COM3 fifo settings failure. [serr:102]"}, 3, "1 128 112"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = BoardOn({3, 4});
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            Do(page, "tx50");
            Do(page, one.user);
            one.fault(machine);
        };
        // Whatever fails, the sheet closes as if all went well.
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(Boxes(), one.boxes);
        EXPECT_EQ(PlacesOf(machine, 1), PlacesAt(machine, 1, one.number));
        EXPECT_EQ(PlacesOf(machine, 2), PlacesAt(machine, 2, 4));
        EXPECT_EQ(StoredFifo(1), one.fifo);
        EXPECT_EQ(Count(machine, "SetupDiCallClassInstaller") != 0, one.number != 3);
    }
}
// clang-format on

TEST(BoardPage, TheComboMarksEveryClaimedNumberButItsOwn) {
    const Fault no_combo = [](auto& machine) { machine.missing_controls = {IDC_PORT_NUMBER}; };
    const struct {
        const char16_t* name;
        Fault fault;
        std::size_t count; // 0: the combo stays empty and disabled, without a box
        const char *selected, *third;
    } cases[] = {
        {u"COM3", no_fault, 256, "COM3", "COM3"},
        {u"COM2", no_fault, 256, "COM2", "COM3 (in use)"},
        {u"COM0", no_fault, 256, "COM1", "COM3 (in use)"},
        {u"COMX", no_fault, 256, "COM1", "COM3 (in use)"},
        {u"C", no_fault, 256, "COM1", "COM3 (in use)"},
        {u"COM300", no_fault, 256, "COM256", "COM3 (in use)"},
        {u"COM4294967295", no_fault, 256, "COM1", "COM3 (in use)"},
        {u"", no_fault, 0, "", ""},
        {u"COM3", no_combo, 0, "", ""},
        {u"COM3", Fail("ComDBOpen", 1), 0, "", ""},
        {u"COM3", Fail("ComDBGetCurrentPortUsage", 1), 0, "", ""},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(sim::ToUtf8(one.name));
        sim::Machine machine = BoardOn({3, 4});
        machine.devices[1].key.SetText(u"PortName", one.name);
        const AtWork at_work(machine);
        one.fault(machine);
        const auto at_page = [&](HWND page) {
            Lines items = Items(page, IDC_PORT_NUMBER);
            EXPECT_EQ(items.size(), one.count);
            items.resize(256);
            EXPECT_EQ(items[2], one.third);
            EXPECT_EQ(Shown(page, IDC_PORT_NUMBER), one.selected);
            EXPECT_EQ(IsEnabled(page, IDC_PORT_NUMBER), one.count != 0);
            EXPECT_EQ(IsEnabled(page, IDC_PORT_NUMBER_CAPTION), one.count != 0);
            EXPECT_TRUE(IsEnabled(page, IDC_APPLY));
        };
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page}), "left");
        EXPECT_EQ(Boxes(), Lines{});
    }
}

TEST(BoardPage, ASortShowsInTheListAndTheComboOnceTheDialogHasClosed) {
    sim::Machine machine = BoardOn({7, 5});
    const AtWork at_work(machine);
    const auto at_dialog = [](HWND dialog) { Do(dialog, "sort"); };
    const auto at_page = [](HWND page) {
        Do(page, "select1 advanced");
        EXPECT_EQ(Items(page, IDC_PORT_LIST), (Lines{"COM5 (port1)", "COM7 (port2)"}));
        EXPECT_EQ(Selection(page, IDC_PORT_LIST), 1);
        EXPECT_EQ(Shown(page, IDC_PORT_NUMBER), "COM7");
        Do(page, "tx50 advanced"); // nothing to sort: the page keeps the user's changes
        EXPECT_EQ(Fifo(page), "on tx 50/128 High (50) rx 4 High (112) live");
    };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .at_dialog = at_dialog}), "left");
    EXPECT_EQ(PlacesOf(machine, 1), PlacesAt(machine, 1, 5));
    EXPECT_EQ(PlacesOf(machine, 2), PlacesAt(machine, 2, 7));
    EXPECT_EQ(Boxes(), Lines{});
}

} // namespace
