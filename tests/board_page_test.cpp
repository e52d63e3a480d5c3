// The Port Control page: the channels and their resources, the FIFO settings from the controls to the store,
// and the rename at OK.
#include "device_model/board_params.h"
#include "tests/sheets.h"

namespace {

using machines::AddBoard;
using machines::AddChannel;
using machines::AddUart;
using machines::AtWork;
using sheets::Do;
using sheets::Fail;
using sheets::Lines;
using sheets::no_fault;
using sheets::Open;
using sheets::Page;

constexpr WPARAM ok = PSBTN_OK;
constexpr WPARAM cancel = PSBTN_CANCEL;

// Channels 1 and 2 are UARTs on COM3 and COM4, the devices 1 and 2; channel 3 is a digital one. The receive
// stages are 1, 32, 64 and 112.
sim::Machine TwoUartsAndADio() {
    sim::Machine machine;
    AddBoard(machine, {}, 4);
    AddUart(machine, {}, 1, 3);
    AddUart(machine, {}, 2, 4);
    AddChannel(machine, {}, ClassDio, 3);
    return machine;
}

void SetFifo(sim::Machine& machine, std::size_t device, const u32 (&stored)[3]) {
    sim::Values& key = machine.devices[device].key;
    key.SetDword(u"UartFifoEnable", stored[0]);
    key.SetDword(u"UartTxFifoLowHigh", stored[1]);
    key.SetDword(u"UartRxFifoLowHigh", stored[2]);
}

TEST(BoardPage, ChannelsStandByTheirNumberWithTheirResources) {
    sim::Machine machine;
    AddBoard(machine, {}, 9);
    AddChannel(machine, {}, ClassCan, 7);
    const std::size_t uart = AddUart(machine, {}, 4, 12);
    AddChannel(machine, {}, ClassMcp251xFd, 3);
    AddChannel(machine, {}, ClassMcp251x, 2);
    const std::size_t dio = AddChannel(machine, {}, ClassDio, 1);
    AddUart(machine, {}, 9, 13);                    // beyond what the board states
    AddUart(machine, {}, 0, 14);                    // no number of a channel
    AddUart(machine, {.bus = 3, .irq = 18}, 5, 15); // another board's
    AddUart(machine, {}, 4, 16);                    // a number that another one has first
    sim::Values& key = machine.devices[uart].key;
    key.SetQword(u"ChlEventAddr", 0xFEDCBA9876543210);
    key.SetDword(u"ChlEventLength", 0xFFFFFFFF);
    key.SetDword(u"ChlMemLength", 0);
    key.SetQword(u"ChlPortAddr", 0xD000);
    machine.devices[dio].key.SetQword(u"ChlPortAddr", 0);
    machine.devices[dio].key.SetDword(u"ChlEventLength", 0);
    const AtWork at_work(machine);
    const auto at_page = [](HWND page) {
        EXPECT_EQ(sheets::Items(page, IDC_PORT_LIST),
                  (Lines{"DIO (port1)", "Mcp251x 2 (port2)", "Mcp251xFd 3 (port3)", "COM12 (port4)",
                         "CAN (port7)"}));
        EXPECT_EQ(sheets::Shown(page, IDC_PORT_LIST), "DIO (port1)");
        EXPECT_EQ(sheets::Rows(page), (Lines{"I/O Range: 0x1FEC01000 - 0x1FEC02000", "IRQ: 17"}));
        for (int index = 0; index < 5; ++index) {
            sheets::Choose(page, IDC_PORT_LIST, index);
            const bool is_uart = index == 3;
            EXPECT_EQ(sheets::Shown(page, IDC_PORT_NUMBER), is_uart ? "COM12" : "NONE");
            EXPECT_EQ(sheets::Items(page, IDC_PORT_NUMBER).size(), is_uart ? 256u : 1u);
            EXPECT_EQ(sheets::Items(page, IDC_POLLING_CYCLE), Lines{"5"});
            EXPECT_EQ(sheets::Shown(page, IDC_POLLING_CYCLE), "5");
            for (const int of_uart : {IDC_PORT_NUMBER, IDC_PORT_NUMBER_CAPTION, IDC_LARGEFIFO, IDC_ADVANCED,
                                      IDC_APPLY, IDC_SET_TO_ALL, IDC_RESTORE}) {
                EXPECT_EQ(sheets::IsEnabled(page, of_uart), is_uart) << of_uart << " at " << index;
            }
            for (const int never : {IDC_POLLING_CYCLE, IDC_POLLING_CYCLE_CAPTION}) {
                EXPECT_FALSE(sheets::IsEnabled(page, never));
            }
            if (is_uart) {
                EXPECT_EQ(sheets::Rows(page), (Lines{"I/O Range: 0xFEDCBA9876543210 - 0xFEDCBA997654320F",
                                                     "I/O Range: 0xD000 - 0xD008", "IRQ: 17"}));
                EXPECT_EQ(sheets::Shown(page, IDC_TRANSMIT_LOW) + sheets::Shown(page, IDC_RECEIVE_LOW),
                          "Low (1)Low (1)");
            }
            EXPECT_EQ(GetFocus(), GetDlgItem(page, IDC_PORT_LIST));
        }
        EXPECT_EQ(sheets::Fifo(page), "off tx 128/128 High (1) rx 4 High (1) dead");
    };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
    EXPECT_EQ(sheets::Changes(), Lines{});
    EXPECT_EQ(sheets::Boxes(), Lines{});
}

TEST(BoardPage, ABoardWithoutListedChannelsIsEmptyAndWorks) {
    for (const u32 nrController : {0u, 1u}) {
        sim::Machine machine = TwoUartsAndADio();
        machine.devices[0].key.SetDword(u"BoardNrController", nrController);
        machine.devices[0].key.SetDword(u"BoardIrq", 17);
        const AtWork at_work(machine);
        const auto at_page = [](HWND page) {
            EXPECT_EQ(sheets::Items(page, IDC_PORT_LIST), Lines{});
            EXPECT_EQ(sheets::Rows(page), Lines{});
            EXPECT_EQ(sheets::Shown(page, IDC_PORT_NUMBER), "NONE");
            EXPECT_EQ(sheets::Fifo(page), "off tx 0/100 High (1) rx 0 High (1) dead");
            for (const int id : {IDC_APPLY, IDC_SET_TO_ALL, IDC_RESTORE, IDC_ADVANCED, IDC_LARGEFIFO}) {
                SendMessageW(page, WM_COMMAND, static_cast<WPARAM>(id), 0); // as if it could be clicked
            }
        };
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(sheets::Changes(), Lines{});
    }
}

TEST(BoardPage, MissingStringsCostTheirColumnOrRow) {
    sim::Machine machine = TwoUartsAndADio();
    machine.missing_strings = {IDS_HIGH, IDS_LOW, IDS_IN_USE_SUFFIX, IDS_IO_RANGE};
    const AtWork at_work(machine);
    const auto at_page = [](HWND page) {
        EXPECT_EQ(sheets::Fifo(page), "on tx 128/128 (128) rx 4 (112) live");
        EXPECT_EQ(sheets::Shown(page, IDC_RECEIVE_LOW), "(1)");
        EXPECT_EQ(sheets::Items(page, IDC_PORT_NUMBER)[3], "COM4 (in use)");
        EXPECT_EQ(sheets::Rows(page).front().substr(0, 4), "IRQ:"); // whatever the row of the ranges became
    };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page}), "left");
    EXPECT_EQ(sheets::Boxes(), Lines{});
}

// clang-format off
TEST(BoardPage, FifoSettingsGoFromTheStoreToTheControlsAndBack) {
    // The second UART stays at 1, 128, 112 unless told.
    const char* second = "1 128 112";
    const struct {
        const char* name;
        u32 stored[3];
        const char* user;
        const char* shown; // after the user
        WPARAM leaves_by;
        const char* now[2]; // in the store, of both UARTs
    } cases[] = {
        {"as stored", {1, 128, 112}, "", "on tx 128/128 High (128) rx 4 High (112) live", ok, {"1 128 112", second}},
        {"a stage's lowest level", {1, 9, 32}, "", "on tx 9/128 High (9) rx 2 High (32) live", ok, {"1 9 32", second}},
        {"between stages", {1, 9, 111}, "", "on tx 9/128 High (9) rx 3 High (64) live", ok, {"1 9 64", second}},
        {"above the last", {1, 9, ~0u}, "", "on tx 9/128 High (9) rx 4 High (112) live", ok, {"1 9 112", second}},
        {"a receive level of 0", {1, 9, 0}, "", "on tx 9/128 High (9) rx 1 High (1) live", ok, {"1 9 1", second}},
        {"a transmit level above the FIFO, shown as stored", {1, 200, 112}, "",
         "on tx 128/128 High (200) rx 4 High (112) live", ok, {"1 128 112", second}},
        {"a transmit level of 0", {1, 0, 112}, "", "on tx 1/128 High (0) rx 4 High (112) live", ok, {"1 1 112", second}},
        {"any number but 0 is on, and stored as 1", {7, 128, 112}, "",
         "on tx 128/128 High (128) rx 4 High (112) live", ok, {"1 128 112", second}},
        {"off", {0, 1, 1}, "", "off tx 1/128 High (1) rx 1 High (1) dead", ok, {"0 1 1", second}},
        {"off with other levels", {0, 50, 64}, "", "off tx 1/128 High (1) rx 1 High (1) dead", ok, {"0 1 1", second}},
        {"Cancel stores nothing", {1, 9, 111}, "tx77 rx2", "on tx 77/128 High (77) rx 2 High (32) live", cancel,
         {"1 9 111", second}},
        {"OK takes the sliders", {1, 9, 111}, "tx77 rx2", "on tx 77/128 High (77) rx 2 High (32) live", ok,
         {"1 77 32", second}},
        {"another selection drops them", {1, 9, 32}, "tx77 rx3 select1 select0",
         "on tx 9/128 High (9) rx 2 High (32) live", ok, {"1 9 32", second}},
        {"unchecked, they rest at 1", {1, 9, 32}, "tx77 rx3 fifo", "off tx 1/128 High (1) rx 1 High (1) dead", ok,
         {"0 1 1", second}},
        {"checked again, they are where the user left them", {1, 9, 32}, "tx77 rx3 fifo fifo",
         "on tx 77/128 High (77) rx 3 High (64) live", ok, {"1 77 64", second}},
        {"Apply stores at once and forgets what an unchecked box kept", {1, 9, 32}, "fifo apply fifo",
         "on tx 1/128 High (1) rx 1 High (1) live", cancel, {"0 1 1", second}},
        {"Apply, then OK of the same, stores once", {1, 9, 32}, "tx10 rx1 apply",
         "on tx 10/128 High (10) rx 1 High (1) live", ok, {"1 10 1", second}},
        {"defaults move the controls alone", {0, 1, 1}, "defaults",
         "on tx 128/128 High (128) rx 4 High (112) live", cancel, {"0 1 1", second}},
        {"defaults, then OK", {0, 1, 1}, "defaults", "on tx 128/128 High (128) rx 4 High (112) live", ok,
         {"1 128 112", second}},
        {"the box does not remember defaults", {1, 9, 32}, "defaults fifo fifo",
         "on tx 9/128 High (9) rx 2 High (32) live", ok, {"1 9 32", second}},
        {"another selection forgets defaults", {1, 9, 32}, "defaults select1",
         "on tx 128/128 High (128) rx 4 High (112) live", ok, {"1 9 32", second}},
        {"Set to All is pending only", {1, 9, 32}, "tx50 rx3 all select1",
         "on tx 50/128 High (50) rx 3 High (64) live", cancel, {"1 9 32", second}},
        {"Set to All, then OK", {1, 9, 32}, "tx50 rx3 all", "on tx 50/128 High (50) rx 3 High (64) live", ok,
         {"1 50 64", "1 50 64"}},
        {"Set to All, then Apply at the other one with its own", {1, 9, 32}, "tx50 rx3 all select1 tx60 rx1 apply",
         "on tx 60/128 High (60) rx 1 High (1) live", cancel, {"1 50 64", "1 60 1"}},
        {"what is pending is stored from a digital channel too", {1, 9, 32}, "tx50 rx3 all select2",
         "off tx 50/128 High (1) rx 3 High (1) dead", ok, {"1 50 64", "1 50 64"}},
        {"nothing selected stores nothing at all", {1, 9, 32}, "tx50 rx3 all select-1",
         "off tx 50/128 High (1) rx 3 High (1) dead", ok, {"1 9 32", second}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = TwoUartsAndADio();
        SetFifo(machine, 1, one.stored);
        const AtWork at_work(machine);
        const std::string before = sheets::StoredFifo(1);
        const auto at_page = [&](HWND page) {
            Do(page, one.user);
            EXPECT_EQ(sheets::Fifo(page), one.shown);
        };
        Open(Page::Board, 0, {.at_page = at_page, .leaves_by = one.leaves_by});
        EXPECT_EQ(sheets::StoredFifo(1), one.now[0]);
        EXPECT_EQ(sheets::StoredFifo(2), one.now[1]);
        // Each UART that changes is written once, three values, and nothing else is.
        EXPECT_EQ(sheets::Changes().size(), 3u * (before != one.now[0]) + 3u * (second != std::string(one.now[1])));
        EXPECT_EQ(sheets::Boxes(), Lines{});
    }
}

TEST(BoardPage, FifosOfOtherDepthsBoundWhatIsRead) {
    const struct {
        const char* name;
        u32 tx_size, rx_size, stored[3];
        const char *shown, *after_ok, *after_defaults;
    } cases[] = {
        {"16 bytes", 16, 16, {1, 16, 9}, "on tx 16/16 High (16) rx 3 High (8) live", "1 16 8", "1 16 14"},
        {"under 16 bytes", 8, 15, {1, 8, 1}, "on tx 8/8 High (8) rx 4 High (0) live", "1 8 0", "1 8 0"},
        {"no FIFO at all", 0, 0, {1, 5, 5}, "on tx 0/0 High (5) rx 4 High (0) live", "1 0 0", "1 0 0"},
        {"no multiple of 16", 300, 40, {1, 299, 28}, "on tx 299/300 High (299) rx 4 High (28) live", "1 299 28",
         "1 300 28"},
        {"more than a slider holds", 0x12345, 128, {1, 5, 1}, "on tx 5/9029 High (5) rx 1 High (1) live", "1 5 1",
         "1 9029 112"},
    };
    for (const auto& one : cases) {
        for (const char* user : {"", "defaults"}) {
            SCOPED_TRACE(one.name);
            sim::Machine machine = TwoUartsAndADio();
            machine.devices[1].key.SetDword(u"UartTxFifoSize", one.tx_size);
            machine.devices[1].key.SetDword(u"UartRxFifoSize", one.rx_size);
            SetFifo(machine, 1, one.stored);
            const AtWork at_work(machine);
            const auto at_page = [&](HWND page) {
                EXPECT_EQ(sheets::Fifo(page), one.shown);
                Do(page, user);
            };
            Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok});
            EXPECT_EQ(sheets::StoredFifo(1), *user ? one.after_defaults : one.after_ok);
        }
    }
}

TEST(BoardPage, AFailedWriteKeepsTheRestPendingForTheNextApply) {
    const struct {
        const char* name;
        std::size_t failing; // of the six values of two UARTs
        const char* box;
        const char* half_way[2];
        std::size_t retried; // values of the second Apply
    } cases[] = {
        {"the first value", 1, "Set COM3 fifo settings failure. [serr:102]", {"1 128 112", "1 128 112"}, 6},
        {"the third value", 3, "Set COM3 fifo settings failure. [serr:102]", {"0 1 112", "1 128 112"}, 6},
        {"the second UART", 5, "Set COM4 fifo settings failure. [serr:102]", {"0 1 1", "0 128 112"}, 3},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = TwoUartsAndADio();
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            machine.faults.at_call = {{"RegSetValueExW", one.failing}};
            Do(page, "fifo all apply");
            EXPECT_EQ(sheets::Boxes(), Lines{one.box});
            EXPECT_EQ(sheets::StoredFifo(1), one.half_way[0]);
            EXPECT_EQ(sheets::StoredFifo(2), one.half_way[1]);
            EXPECT_EQ(sheets::Fifo(page), "off tx 1/128 High (1) rx 1 High (1) dead"); // pending, not stored
            sheets::Changes();
            Do(page, "apply");
            EXPECT_EQ(sheets::Changes().size(), one.retried);
            Do(page, "apply");
        };
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(sheets::Changes(), Lines{});
        EXPECT_EQ(sheets::StoredFifo(1) + ", " + sheets::StoredFifo(2), "0 1 1, 0 1 1");
        EXPECT_EQ(sheets::Boxes(), Lines{});
    }
}

TEST(BoardPage, SetToAllCopiesToSmallerFifosAsItIs) {
    for (const bool small_one_is_selected : {false, true}) {
        sim::Machine machine = TwoUartsAndADio();
        machine.devices[2].key.SetDword(u"UartTxFifoSize", 16);
        machine.devices[2].key.SetDword(u"UartRxFifoSize", 16);
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            Do(page, "rx3 all select1");
            EXPECT_EQ(sheets::Fifo(page), "on tx 16/16 High (128) rx 4 High (14) live");
            Do(page, small_one_is_selected ? "" : "select0");
        };
        Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok});
        EXPECT_EQ(sheets::StoredFifo(1), "1 128 64");
        EXPECT_EQ(sheets::StoredFifo(2), small_one_is_selected ? "1 16 14" : "1 128 64");
    }
}

TEST(BoardPage, OkRenamesTheSelectedPortOrSaysWhyNot) {
    const struct {
        const char* name;
        const char* user;
        sheets::Fault fault;
        Lines boxes;
        u32 number;              // of the first UART afterwards
        const char* fifo = "1 50 112"; // stored before the number is looked at
    } cases[] = {
        {"a free number", "com20", no_fault, {}, 20},
        {"the last number", "com256", no_fault, {}, 256},
        {"the present number is no change", "com3", no_fault, {}, 3},
        {"no selection is no change", "com0", no_fault, {}, 3},
        {"Apply drops the choice", "com20 apply", no_fault, {}, 3},
        {"Set to All drops the choice", "com20 all", no_fault, {}, 3},
        {"another selection drops the choice", "com20 apply select1 select0", no_fault, {}, 3},
        {"a taken number is refused without a question", "com4", no_fault,
         {"This COM name is being used by another device. Try another."}, 3},
        {"an open port", "com20",
         [](sim::Machine& machine) { machine.devices[1].key.SetDword(u"ChlOpened", 2); },
         {"The port has been opened by another application. Close and try again."}, 3},
        {"whether it is open can't be read", "com20",
         sheets::Erase(1, u"ChlOpened"),
         {"Check COM port opened failure. [serr:101]"}, 3},
        {"no database", "com20", Fail("ComDBOpen", 0), {"Check COM port in use failure. [serr:200]"}, 3},
        {"no usage", "com20", Fail("ComDBGetCurrentPortUsage", 0), {"Check COM port in use failure. [serr:201]"}, 3},
        {"no DOS name", "com20", Fail("DefineDosDeviceW", 2), {"There was an error renaming the COM port."}, 3},
        {"a FIFO write that fails stops the rename", "com20", Fail("RegSetValueExW", 1),
         {"Set COM3 fifo settings failure. [serr:102]"}, 3, "1 128 112"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = TwoUartsAndADio();
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            Do(page, "tx50");
            Do(page, one.user);
            one.fault(machine);
        };
        // Whatever fails, the sheet closes as if all went well.
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(sheets::Boxes(), one.boxes);
        EXPECT_EQ(machines::PlacesOf(machine, 1), machines::PlacesAt(machine, 1, one.number));
        EXPECT_EQ(machines::PlacesOf(machine, 2), machines::PlacesAt(machine, 2, 4));
        EXPECT_EQ(sheets::StoredFifo(1), one.fifo);
        EXPECT_EQ(machines::Count(machine, "SetupDiCallClassInstaller"), one.number == 3 ? 0u : 1u);
    }
}
// clang-format on

TEST(BoardPage, TheSheetsApplyRenamesFromTheNewNumberOn) {
    sim::Machine machine = TwoUartsAndADio();
    const AtWork at_work(machine);
    const auto at_page = [&](HWND page) {
        Do(page, "com20 sheet-apply com21 sheet-apply select0");
        EXPECT_EQ(sheets::Shown(page, IDC_PORT_NUMBER), "COM21");
        EXPECT_FALSE(sheets::IsEnabled(GetParent(page), ID_APPLY_NOW)); // the page never asks for it
    };
    Open(Page::Board, 0, {.at_page = at_page});
    EXPECT_EQ(machines::PlacesOf(machine, 1), machines::PlacesAt(machine, 1, 21));
    EXPECT_EQ(sheets::Boxes(), Lines{});
}

TEST(BoardPage, AComboOfNumbersThatCantBeFilledIsDisabledWithoutABox) {
    for (const char* operation : {"ComDBOpen", "ComDBGetCurrentPortUsage"}) {
        sim::Machine machine = TwoUartsAndADio();
        const AtWork at_work(machine);
        machine.faults.at_call = {{operation, 1}};
        const auto at_page = [&](HWND page) {
            EXPECT_EQ(sheets::Items(page, IDC_PORT_NUMBER), Lines{});
            EXPECT_FALSE(sheets::IsEnabled(page, IDC_PORT_NUMBER));
            EXPECT_FALSE(sheets::IsEnabled(page, IDC_PORT_NUMBER_CAPTION));
            EXPECT_TRUE(sheets::IsEnabled(page, IDC_APPLY));
        };
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(sheets::Boxes(), Lines{});
        EXPECT_EQ(sheets::Changes(), Lines{});
    }
}

TEST(BoardPage, ASortShowsInTheListAndTheComboOnceTheDialogHasClosed) {
    sim::Machine machine = machines::BoardOn({7, 5});
    const AtWork at_work(machine);
    const auto at_dialog = [](HWND dialog) { Do(dialog, "sort"); };
    const auto at_page = [](HWND page) {
        Do(page, "select1 advanced");
        EXPECT_EQ(sheets::Items(page, IDC_PORT_LIST), (Lines{"COM5 (port1)", "COM7 (port2)"}));
        EXPECT_EQ(sheets::Selection(page, IDC_PORT_LIST), 1);
        EXPECT_EQ(sheets::Shown(page, IDC_PORT_NUMBER), "COM7");
        Do(page, "tx50 advanced"); // nothing to sort: the page is left as the user has it
        EXPECT_EQ(sheets::Fifo(page), "on tx 50/128 High (50) rx 4 High (112) live");
    };
    EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .at_dialog = at_dialog}), "left");
    EXPECT_EQ(machines::PlacesOf(machine, 1), machines::PlacesAt(machine, 1, 5));
    EXPECT_EQ(machines::PlacesOf(machine, 2), machines::PlacesAt(machine, 2, 7));
    EXPECT_EQ(sheets::Boxes(), Lines{});
}

} // namespace
