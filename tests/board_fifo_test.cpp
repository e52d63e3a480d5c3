// The FIFO settings on the Port Control page, from the store to the controls and back.
#include "board_page/fifo_settings.h"
#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

// Channels 1 and 3 are UARTs on COM3 and COM4, the devices 1 and 2; between them is a digital one. The
// receive stages are 1, 32, 64 and 112.
sim::Machine TwoUartsAndADio() {
    sim::Machine machine = BoardOn({3, 4});
    machine.devices[2].key.SetDword(u"ChlNumber", 3);
    AddChannel(machine, {}, ClassDio, 2);
    return machine;
}

// clang-format off
TEST(BoardFifo, FifoSettingsGoFromTheStoreToTheControlsAndBack) {
    // The second UART stays at 1, 128, 112 unless stated.
    const char* second = "1 128 112";
    const struct {
        const char* name;
        u32 stored[3];
        const char* user;
        const char* shown; // after the user
        WPARAM leaves_by;
        const char* now[2]; // in the store, of both UARTs
    } cases[] = {
        {"between stages", {1, 9, 111}, "", "on tx 9/128 High (9) rx 3 High (64) live", ok, {"1 9 64", second}},
        {"above the last", {1, 9, ~0u}, "", "on tx 9/128 High (9) rx 4 High (112) live", ok, {"1 9 112", second}},
        {"a receive level of 0", {1, 9, 0}, "", "on tx 9/128 High (9) rx 1 High (1) live", ok, {"1 9 1", second}},
        {"a transmit level above the FIFO, shown as stored", {1, 200, 112}, "",
         "on tx 128/128 High (200) rx 4 High (112) live", ok, {"1 128 112", second}},
        {"a transmit level of 0", {1, 0, 112}, "", "on tx 1/128 High (0) rx 4 High (112) live", ok, {"1 1 112", second}},
        {"any number but 0 is on, and stored as 1", {7, 128, 112}, "",
         "on tx 128/128 High (128) rx 4 High (112) live", ok, {"1 128 112", second}},
        {"off with other levels", {0, 50, 64}, "", "off tx 1/128 High (1) rx 1 High (1) dead", ok, {"0 1 1", second}},
        {"Cancel stores nothing", {1, 9, 111}, "tx77 rx2", "on tx 77/128 High (77) rx 2 High (32) live", cancel,
         {"1 9 111", second}},
        {"OK takes the sliders", {1, 9, 111}, "tx77 rx2", "on tx 77/128 High (77) rx 2 High (32) live", ok,
         {"1 77 32", second}},
        {"another selection drops them", {1, 9, 32}, "tx77 rx3 select2 select0",
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
        {"another selection forgets defaults", {1, 9, 32}, "defaults select2",
         "on tx 128/128 High (128) rx 4 High (112) live", ok, {"1 9 32", second}},
        {"Set to All is pending only", {1, 9, 32}, "tx50 rx3 all select2",
         "on tx 50/128 High (50) rx 3 High (64) live", cancel, {"1 9 32", second}},
        {"Set to All, then OK", {1, 9, 32}, "tx50 rx3 all", "on tx 50/128 High (50) rx 3 High (64) live", ok,
         {"1 50 64", "1 50 64"}},
        {"Set to All, then Apply at the other one with its own", {1, 9, 32}, "tx50 rx3 all select2 tx60 rx1 apply",
         "on tx 60/128 High (60) rx 1 High (1) live", cancel, {"1 50 64", "1 60 1"}},
        {"what is pending is stored from a digital channel too", {1, 9, 32}, "tx50 rx3 all select1",
         "off tx 50/128 High (1) rx 3 High (1) dead", ok, {"1 50 64", "1 50 64"}},
        {"nothing selected stores nothing at all", {1, 9, 32}, "tx50 rx3 all select-1",
         "off tx 50/128 High (1) rx 3 High (1) dead", ok, {"1 9 32", second}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = TwoUartsAndADio();
        const AtWork at_work(machine);
        StoreFifo(1, one.stored);
        const std::string before = StoredFifo(1);
        const auto at_page = [&](HWND page) {
            Do(page, one.user);
            EXPECT_EQ(Fifo(page), one.shown);
        };
        Open(Page::Board, 0, {.at_page = at_page, .leaves_by = one.leaves_by});
        EXPECT_EQ(StoredFifo(1), one.now[0]);
        EXPECT_EQ(StoredFifo(2), one.now[1]);
        // Each UART that changes is written once, with three values, and no other is written.
        EXPECT_EQ(Changes().size(), 3u * (before != one.now[0]) + 3u * (second != std::string(one.now[1])));
        EXPECT_EQ(Boxes(), Lines{});
    }
}

TEST(BoardFifo, FifosOfOtherDepthsBoundWhatIsRead) {
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
        {"more than 31 bits", 16, ~0u, {1, 5, 0x7FFFFFF7}, "on tx 5/16 High (5) rx 2 High (1073741820) live",
         "1 5 1073741820", "1 16 3758096370"},
    };
    for (const auto& one : cases) {
        for (const char* user : {"", "defaults"}) {
            SCOPED_TRACE(one.name);
            sim::Machine machine = TwoUartsAndADio();
            machine.devices[1].key.SetDword(u"UartTxFifoSize", one.tx_size);
            machine.devices[1].key.SetDword(u"UartRxFifoSize", one.rx_size);
            const AtWork at_work(machine);
            StoreFifo(1, one.stored);
            const auto at_page = [&](HWND page) {
                EXPECT_EQ(Fifo(page), one.shown);
                Do(page, user);
            };
            Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok});
            EXPECT_EQ(StoredFifo(1), *user ? one.after_defaults : one.after_ok);
        }
    }
}

TEST(BoardFifo, AFailedWriteKeepsTheRestPendingForTheNextApply) {
    const struct {
        const char* name;
        Fault fault;
        const char* box;
        const char* half_way[2];
        std::size_t retried; // values that the second Apply writes
    } cases[] = {
        {"no access", Lock(1), "Set COM3 fifo settings failure. [serr:100]", {"1 128 112", "1 128 112"}, 6},
        {"the first value", Fail("RegSetValueExW", 1), "Set COM3 fifo settings failure. [serr:102]", {"1 128 112", "1 128 112"}, 6},
        {"the third value", Fail("RegSetValueExW", 3), "Set COM3 fifo settings failure. [serr:102]", {"0 1 112", "1 128 112"}, 6},
        {"the second UART", Fail("RegSetValueExW", 5), "Set COM4 fifo settings failure. [serr:102]", {"0 1 1", "0 128 112"}, 3},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        sim::Machine machine = TwoUartsAndADio();
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            one.fault(machine);
            Do(page, "fifo all apply");
            machine.devices[1].access_denied = false;
            EXPECT_EQ(Boxes(), Lines{one.box});
            EXPECT_EQ(StoredFifo(1), one.half_way[0]);
            EXPECT_EQ(StoredFifo(2), one.half_way[1]);
            EXPECT_EQ(Fifo(page), "off tx 1/128 High (1) rx 1 High (1) dead"); // pending, not stored
            Changes();
            Do(page, "apply");
            EXPECT_EQ(Changes().size(), one.retried);
            Do(page, "apply");
        };
        EXPECT_EQ(Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok}), "ok");
        EXPECT_EQ(Changes(), Lines{});
        EXPECT_EQ(StoredFifo(1) + ", " + StoredFifo(2), "0 1 1, 0 1 1");
        EXPECT_EQ(Boxes(), Lines{});
    }
}

TEST(BoardFifo, SetToAllCopiesToSmallerFifosAsItIs) {
    for (const bool small_one_is_selected : {false, true}) {
        sim::Machine machine = TwoUartsAndADio();
        machine.devices[2].key.SetDword(u"UartTxFifoSize", 16);
        machine.devices[2].key.SetDword(u"UartRxFifoSize", 16);
        const AtWork at_work(machine);
        const auto at_page = [&](HWND page) {
            Do(page, "rx3 all select2");
            EXPECT_EQ(Fifo(page), "on tx 16/16 High (128) rx 4 High (14) live");
            Do(page, small_one_is_selected ? "" : "select0");
        };
        Open(Page::Board, 0, {.at_page = at_page, .leaves_by = ok});
        EXPECT_EQ(StoredFifo(1), "1 128 64");
        EXPECT_EQ(StoredFifo(2), small_one_is_selected ? "1 16 14" : "1 128 64");
    }
}
// clang-format on

TEST(BoardFifo, ASliderThatIsNotThereStandsAtOne) {
    sim::Machine machine = TwoUartsAndADio();
    machine.missing_controls = {IDC_TRANSMIT_SLIDER, IDC_RECEIVE_SLIDER};
    const AtWork at_work(machine);
    Open(Page::Board, 0, {.leaves_by = ok});
    EXPECT_EQ(StoredFifo(1), "1 1 1");
}

// A board that promises no channel has nothing to store.
TEST(BoardFifo, StoringStartsFromNoStatusAndNoNumber) {
    for (const u32 promised : {3u, 1u}) {
        sim::Machine machine = TwoUartsAndADio();
        const AtWork at_work(machine);
        OpenBoard board;
        board.params.BoardOther.BoardNrController = promised;
        board.params.WalkFirst->CurrentInfo.Uart.UartTxFifoLowHigh ^= 1;
        u32 status = 77;
        u32 number = 77;
        EXPECT_TRUE(_SetEachUartUiFifoSettingsIfChange(&board.params, &status, &number));
        EXPECT_EQ(std::pair(status, number), std::pair(0u, 0u));
        EXPECT_EQ(Count(machine, "RegSetValueExW"), promised == 3 ? 3u : 0u);
    }
}

} // namespace
