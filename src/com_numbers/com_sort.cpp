#include "com_numbers/com_sort.h"

#include "com_numbers/com_port_database.h"
#include "com_numbers/com_remap.h"
#include "com_numbers/port_device.h"
#include "com_numbers/port_rename.h"
#include "device_model/channel_list.h"
#include "reporting/error_reporter.h"
#include "reporting/text_operations.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

// The channel number of a UART and a COM number.
struct SortPair {
    u32 channel;
    u32 com;
};

// The pairs of one click, in channel order; sorting exchanges the COM column only.
struct SortPairTable {
    SortPair pairs[ComNumberMax];
};
static_assert(sizeof(SortPairTable) == 2048);

constexpr int SortButtons[] = {IDOK, IDCANCEL, IDC_RESTORE, IDC_SORT_COM};

// The port's channel, and its names in the two copies of its record.
using PortNamesTrace = TraceFormatFor<TraceName, u32, const WCHAR*, const WCHAR*>;

// One of the three moves of an exchange: the code for its failure, and its lines in the trace.
struct SortMove {
    u32 failureCode;
    [[no_unique_address]] PortNamesTrace settingsTrace;
    [[no_unique_address]] PortNamesTrace namesTrace;
};
constexpr SortMove PartnerToTemporary = {FailureSortToTemporary,
                                         "%s - S1_2, CHL%d, move port settings, %ws -> %ws\n",
                                         "%s - S1_3, CHL%d, ComName [old:%ws, new:%ws]\n"};
constexpr SortMove ChannelToFinal = {FailureSortToFinal, "%s - S2_2, CHL%d, move port settings, %ws -> %ws\n",
                                     "%s - S2_3, CHL%d, ComName [old:%ws, new:%ws]\n"};
constexpr SortMove PartnerFromTemporary = {FailureSortFromTemporary,
                                           "%s - S3_2, CHL%d, move port settings, %ws -> %ws\n",
                                           "%s - S3_3, CHL%d, ComName [old:%ws, new:%ws]\n"};

bool IsUart(const BPPCHL* chl) {
    return chl->Class == ClassUart;
}

bool NeedsMove(const BPPCHL* chl) {
    return IsUart(chl) && chl->SortCurrentCom != chl->SortNewCom;
}

// Reads the number of every UART from its name and fills the table. Returns the number of pairs.
u32 GatherPairs(BoardParams* board, SortPairTable* table) {
    u32 count = 0;
    for (BPPCHL* chl = board->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (!IsUart(chl)) {
            continue;
        }
        chl->SortChlNumber = chl->CurrentInfo.ChlBasic.ChlNumber;
        chl->SortCurrentCom = ComNumberFromName(chl->CurrentInfo.Uart.PortName);
        chl->SortNewCom = chl->SortCurrentCom;
        if (chl->SortCurrentCom >= 1 && chl->SortCurrentCom <= ComNumberMax && count < ComNumberMax) {
            table->pairs[count++] = {chl->SortChlNumber, chl->SortCurrentCom};
        }
    }
    return count;
}

void SortComColumn(SortPairTable* table, u32 count) {
    SortPair* pairs = table->pairs;
    for (u32 i = 0; i + 1 < count; ++i) {
        u32 smallest = i;
        for (u32 j = i + 1; j < count; ++j) {
            if (pairs[j].com < pairs[smallest].com) {
                smallest = j;
            }
        }
        const u32 com = pairs[i].com;
        pairs[i].com = pairs[smallest].com;
        pairs[smallest].com = com;
    }
}

void AssignNewNumbers(BoardParams* board, const SortPairTable* table, u32 count) {
    for (u32 i = 0; i < count; ++i) {
        BPPCHL* chl = BoardChlByNumber(board, table->pairs[i].channel);
        // The pairs are of UARTs that the walk has just visited.
        if (chl != nullptr && IsUart(chl)) { // GCOV_EXCL_BR_LINE
            chl->SortNewCom = table->pairs[i].com;
        }
    }
}

void TraceNumbers(const BoardParams* board, TraceFormatFor<> heading) {
    TraceOut(heading);
    for (const BPPCHL* chl = board->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (IsUart(chl)) {
            TraceOut("UART # ChlNumber:%d - CURRENT:%03d, NEW:%03d\n", chl->SortChlNumber,
                     chl->SortCurrentCom, chl->SortNewCom);
        }
    }
    TraceOut("----------------------------------------\n");
}

bool AnyNeedsMove(const BoardParams* board) {
    bool any = false;
    for (const BPPCHL* chl = board->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (NeedsMove(chl)) {
            TraceOut("%s - ChlNumber:%d - COM%d -> COM%d\n", TraceOperation(), chl->SortChlNumber,
                     chl->SortCurrentCom, chl->SortNewCom);
            any = true;
        }
    }
    if (!any) {
        TraceOut("%s - Don't need to swap COM number\n", TraceOperation());
    }
    return any;
}

// True if every port that will move is closed. The first that isn't is reported in a box.
bool AllMovingPortsClosed(HWND dialog, BoardParams* board) {
    for (BPPCHL* chl = board->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (!NeedsMove(chl)) {
            continue;
        }
        const u32 sStatus = Kavro_COMPortCheckOpened(chl->DeviceInfoSet, &chl->DeviceInfoData);
        if (sStatus != 0) {
            ErrorBoxShow(FailureSortPortOpened, sStatus, dialog, chl->SortChlNumber, chl->SortCurrentCom,
                         chl->SortNewCom);
            return false;
        }
    }
    return true;
}

void EnableSortButtons(HWND dialog, BOOL enable) {
    for (const int button : SortButtons) {
        EnableWindow(GetDlgItem(dialog, button), enable);
    }
}

// The port that holds the number which the channel wants, or null. If several hold it, the last in the order
// of the walk.
BPPCHL* FindPartner(BoardParams* board, const BPPCHL* chl) {
    BPPCHL* partner = nullptr;
    for (BPPCHL* other = board->WalkFirst; other != nullptr; other = other->WalkNext) {
        if (IsUart(other) && other->SortCurrentCom == chl->SortNewCom) {
            partner = other;
        }
    }
    return partner;
}

// Moves one port to another number, together with its records. False if the remap failed; a box has said so.
bool MovePort(HWND dialog, BPPCHL* port, u32 to, const SortMove& move) {
    const u32 from = port->SortCurrentCom;
    const u32 sStatus = Kavro_COMPortDoRemap(port->DeviceInfoSet, &port->DeviceInfoData, from, to);
    if (sStatus != 0) {
        ErrorBoxShow(move.failureCode, sStatus, dialog, port->SortChlNumber, from, to);
        return false;
    }
    Kavro_COMPortBroadcastRemap(port->DeviceInfoSet, &port->DeviceInfoData);
    port->SortCurrentCom = to;
    NameChannel(port, to);
    const WCHAR* saved = port->SavedInfo.Uart.PortName;
    const WCHAR* current = port->CurrentInfo.Uart.PortName;
    TraceOut(move.settingsTrace, TraceOperation(), port->SortChlNumber, saved, current);
    MoveChannelSettings(port);
    TraceOut(move.namesTrace, TraceOperation(), port->SortChlNumber, saved, current);
    return true;
}

// Exchanges the numbers of a channel and of its partner, which holds the number that the channel wants.
bool ExchangePorts(HWND dialog, BPPCHL* chl, BPPCHL* partner, u32 temporary) {
    TraceOut("%s - ----------------------------------------\n", TraceOperation());
    TraceOut("%s - S1_1, CHL%d to AVL, COM%d -> COM%d\n", TraceOperation(), partner->SortChlNumber,
             partner->SortCurrentCom, temporary);
    if (!MovePort(dialog, partner, temporary, PartnerToTemporary)) {
        return false;
    }
    const u32 old = chl->SortCurrentCom;
    TraceOut("%s - S2_1, CHL%d to CHL%d, COM%d -> COM%d\n", TraceOperation(), chl->SortChlNumber,
             partner->SortChlNumber, old, chl->SortNewCom);
    if (!MovePort(dialog, chl, chl->SortNewCom, ChannelToFinal)) {
        return false;
    }
    TraceOut("%s - S3_1, AVL to CHL%d, COM%d -> COM%d\n", TraceOperation(), partner->SortChlNumber,
             partner->SortCurrentCom, old);
    if (!MovePort(dialog, partner, old, PartnerFromTemporary)) {
        return false;
    }
    TraceOut("%s - ----------------------------------------\n", TraceOperation());
    return true;
}

// One pass is enough for cycles of any length, because a channel that has its number is never a partner
// again.
void ExchangeAll(HWND dialog, BoardParams* board, u32 temporary) {
    for (BPPCHL* chl = board->WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        if (!NeedsMove(chl)) {
            continue;
        }
        BPPCHL* partner = FindPartner(board, chl);
        // The numbers are only exchanged, so one of the ports has the wanted one.
        if (partner == nullptr) { // GCOV_EXCL_BR_LINE
            continue;
        }
        if (!ExchangePorts(dialog, chl, partner, temporary)) {
            return;
        }
    }
    TraceNumbers(board, "----------------------------------------, DONE\n");
}

// Moves the ports that need it. Nothing moves unless a temporary number is free and every port that moves is
// closed. Returns true if the buttons have been disabled.
bool MovePorts(HWND dialog, BoardParams* board) {
    u32 avlMaxTempComNumber = 0;
    const u32 sStatus = Kavro_COMPortGetMaxNumberAvailable(&avlMaxTempComNumber);
    TraceOut("%s - avlMaxTempComNumber:%d\n", TraceOperation(), avlMaxTempComNumber);
    if (sStatus != 0) {
        ErrorBoxShow(FailureSortNoNumber, sStatus, dialog);
        return false;
    }
    if (!AllMovingPortsClosed(dialog, board)) {
        return false;
    }
    EnableSortButtons(dialog, FALSE);
    ExchangeAll(dialog, board, avlMaxTempComNumber);
    return true;
}

void SortBoard(HWND dialog, BoardParams* board) {
    auto* table = static_cast<SortPairTable*>(LocalAlloc(LPTR, sizeof(SortPairTable)));
    if (table == nullptr) {
        ErrorBoxShow(FailureNoMemory, 0, nullptr);
        return;
    }
    const HWND focus = GetFocus(); // a button loses it when it is disabled
    const u32 count = GatherPairs(board, table);
    TraceNumbers(board, "----------------------------------------, BEFORE\n");
    SortComColumn(table, count);
    AssignNewNumbers(board, table, count);
    TraceNumbers(board, "----------------------------------------, AFTER\n");
    bool buttonsDisabled = false;
    if (AnyNeedsMove(board)) {
        buttonsDisabled = MovePorts(dialog, board);
        board->ChlListChanged = true; // also after a failure, because the moves before it stay
    }
    LocalFree(table);
    // The buttons were not disabled if a check failed before the first move.
    if (buttonsDisabled) {
        EnableSortButtons(dialog, TRUE);
        SetFocus(focus);
    }
}

} // namespace

bool _SortCOMClicked(HWND dialog, BPPCHL* channel) {
    TraceScope trace;
    if (channel != nullptr && channel->Board != nullptr) {
        SortBoard(dialog, channel->Board);
    }
    return trace.Success(false);
}
