#include "device_model/board_discovery.h"

#include <cstddef>

#include "device_model/channel_list.h"
#include "device_model/device_store.h"
#include "reporting/statuses.h"
#include "reporting/trace.h"

namespace {

// The system's own class of serial ports and the four of the board.
constexpr GUID GUID_DEVINTERFACE_COMPORT = {
    0x86E0D1E0, 0x8089, 0x11D0, {0x9C, 0xE4, 0x08, 0x00, 0x3E, 0x30, 0x1F, 0x73}};
constexpr GUID GUID_DEVINTERFACE_BOARD_DIO = {
    0xD169C409, 0xDB38, 0x43F5, {0x87, 0xA2, 0x5C, 0xB9, 0x5E, 0xF2, 0xCA, 0xC3}};
constexpr GUID GUID_DEVINTERFACE_BOARD_MCP251X = {
    0xC64BD006, 0x0A75, 0x4A56, {0x9B, 0x99, 0x17, 0x61, 0x61, 0x33, 0x82, 0x30}};
constexpr GUID GUID_DEVINTERFACE_BOARD_MCP251XFD = {
    0x219EE0B6, 0x8597, 0x4826, {0xB1, 0x0F, 0xDA, 0xAE, 0x1E, 0x13, 0x2C, 0x02}};
constexpr GUID GUID_DEVINTERFACE_BOARD_CAN = {
    0xBD052268, 0xEA5E, 0x4FD3, {0xB7, 0xE4, 0x39, 0x97, 0x8E, 0xA8, 0x5C, 0xC9}};

// Indexed by ChannelClass less one.
constexpr GUID InterfaceClasses[ChannelClassCount] = {
    GUID_DEVINTERFACE_COMPORT,         GUID_DEVINTERFACE_BOARD_DIO, GUID_DEVINTERFACE_BOARD_MCP251X,
    GUID_DEVINTERFACE_BOARD_MCP251XFD, GUID_DEVINTERFACE_BOARD_CAN,
};

u32 ReadBoard(BoardParams* board) {
    const HDEVINFO set = board->DeviceInfoSet;
    SP_DEVINFO_DATA* data = board->DeviceInfoData;
    u32 sStatus = Kavro_RegBoardGetBasic(set, data, &board->BoardBasic);
    TraceOut("BOARD, sStatus:%d, PciBusNumber:%d, Irq:%d\n", sStatus, board->BoardBasic.BoardPciBusNumber,
             board->BoardBasic.BoardIrq);
    if (sStatus == 0) {
        sStatus = Kavro_RegBoardGetOther(set, data, &board->BoardOther);
    }
    if (sStatus == 0) {
        sStatus = Kavro_RegChlGetBasic(set, data, &board->BoardChl);
    }
    if (sStatus == 0) {
        sStatus = Kavro_RegConfigGetBasic(set, data, &board->BoardConfig);
    }
    return sStatus;
}

u32 ReadClassValues(HDEVINFO set, SP_DEVINFO_DATA* data, u32 channelClass, ChannelInfo* info) {
    switch (channelClass) {
    case ClassUart: {
        const u32 sStatus = Kavro_RegUartGetBasic(set, data, &info->Uart);
        return sStatus != 0
                   ? sStatus
                   : Kavro_RegUartGetCOMName(set, data, info->Uart.PortName, sizeof(info->Uart.PortName));
    }
    case ClassDio:
        return Kavro_RegDioGetBasic(set, data, &info->Dio);
    case ClassMcp251x:
        return Kavro_RegMcp251xGetBasic(set, data, &info->Mcp251x);
    case ClassMcp251xFd:
        return Kavro_RegMcp251xFdGetBasic(set, data, &info->Mcp251xFd);
    case ClassCan:
        return Kavro_RegCanGetBasic(set, data, &info->Can);
    default: // no class of a channel, so nothing tells what to read
        return StatusReadFailed;
    }
}

bool ReadChannel(HDEVINFO set, SP_DEVINFO_DATA* data, u32 channelClass, ChannelInfo* info) {
    *info = {};
    return Kavro_RegBoardGetBasic(set, data, &info->BoardBasic) == 0 &&
           Kavro_RegChlGetBasic(set, data, &info->ChlBasic) == 0 &&
           ReadClassValues(set, data, channelClass, info) == 0;
}

bool BelongsToBoard(const BoardParams* board, const ChannelInfo& info) {
    const BoardBasicInfo& mine = board->BoardBasic;
    const BoardBasicInfo& its = info.BoardBasic;
    if (mine.BoardPciBusNumber == its.BoardPciBusNumber && mine.BoardIrq == its.BoardIrq) {
        return true;
    }
    TraceOut("BPPCHL_ENUM, not belong this board, BOARD[pci:%d,irq:%d], CHL[pci:%d,irq:%d,n:%d,t:%d]\n",
             mine.BoardPciBusNumber, mine.BoardIrq, its.BoardPciBusNumber, its.BoardIrq,
             info.ChlBasic.ChlNumber, info.ChlBasic.ChlType);
    return false;
}

// Returns a copy of the path for the caller to free, or null if there is no memory. The path ends within
// `capacity` units.
WCHAR* CopyDevicePath(const WCHAR* path, u32 capacity) {
    u32 length = 0;
    // The system ends every path; without that, the copy ends with the buffer.
    while (length < capacity && path[length] != 0) { // GCOV_EXCL_BR_LINE
        ++length;
    }
    auto* copy = static_cast<WCHAR*>(LocalAlloc(LPTR, (length + 1) * sizeof(WCHAR)));
    if (copy != nullptr) {
        CopyText(copy, length + 1, path);
    }
    return copy;
}

void AddChannel(BoardParams* board, HDEVINFO set, const SP_DEVINFO_DATA& data, u32 channelClass,
                const ChannelInfo& info, const WCHAR* path, u32 pathCapacity) {
    auto* chl = static_cast<BPPCHL*>(LocalAlloc(LPTR, sizeof(BPPCHL)));
    if (chl == nullptr) {
        return; // the page shows the other channels
    }
    ChlListInit(chl);
    chl->Board = board;
    chl->Class = channelClass;
    chl->SavedInfo = info;
    chl->CurrentInfo = info;
    chl->ListIndex = NotListed;
    if (channelClass == ClassUart) {
        RxFifoStages(info.Uart.UartRxFifoSize, chl->Fifo.RxFifo4Stage);
    }
    chl->DeviceInfoSet = set;
    chl->DeviceInfoData = data;
    chl->DevicePath = CopyDevicePath(path, pathCapacity); // without memory null: only the trace shows it
    ChlListInsertTail(&board->ChlList, chl);
    BoardChlWalkInsert(board, chl);
    ++board->ChlCount;
    TraceOut("BPPCHL (%d, x%p, x%p, T:%d), CREATE\n", info.ChlBasic.ChlNumber, chl, chl->DevicePath,
             channelClass);
}

// Keeps each set at once, so that BoardDeinitiate releases what was opened. Returns 0 or
// StatusNoInterfaceSet.
u32 OpenInterfaceSets(BoardParams* board) {
    for (u32 i = 0; i < ChannelClassCount; ++i) {
        board->InterfaceSet[i] = SetupDiGetClassDevsW(&InterfaceClasses[i], nullptr, nullptr,
                                                      DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
        if (board->InterfaceSet[i] == INVALID_HANDLE_VALUE) {
            return StatusNoInterfaceSet;
        }
    }
    return 0;
}

// Reads the board's own values and then its channels, from the sets that are open.
u32 ReadBoardAndChannels(BoardParams* board) {
    auto* buffer = static_cast<BYTE*>(LocalAlloc(LPTR, DetailBufferBytes));
    if (buffer == nullptr) {
        return StatusNoMemory;
    }
    const u32 sStatus = ReadBoard(board);
    if (sStatus == 0) {
        for (u32 i = 0; i < ChannelClassCount; ++i) {
            BoardEnumClass(board, buffer, DetailBufferBytes, board->InterfaceSet[i], &InterfaceClasses[i],
                           ClassUart + i);
        }
    }
    LocalFree(buffer);
    return sStatus;
}

} // namespace

bool BoardInitiate(BoardParams* board, u32* status) {
    TraceScope trace;
    board->ChlCount = 0;
    ChlListInit(&board->ChlList);
    board->WalkFirst = nullptr;
    *status = OpenInterfaceSets(board);
    if (*status == 0) {
        *status = ReadBoardAndChannels(board);
    }
    return trace.Status(*status) == 0;
}

u32 BoardEnumClass(BoardParams* board, BYTE* buffer, u32 bufferSize, HDEVINFO set, const GUID* interfaceClass,
                   u32 channelClass) {
    TraceScope trace;
    const u32 before = board->ChlCount;
    auto* detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_W*>(buffer);
    const u32 pathCapacity =
        (bufferSize - offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_W, DevicePath)) / sizeof(WCHAR);
    SP_DEVICE_INTERFACE_DATA interfaceData = {};
    interfaceData.cbSize = sizeof(interfaceData);
    ChannelInfo info;
    for (DWORD index = 0; SetupDiEnumDeviceInterfaces(set, nullptr, interfaceClass, index, &interfaceData);
         ++index) {
        // Asked without a buffer, the operation always fails and says how much it needs.
        DWORD needed = 0;
        SetupDiGetDeviceInterfaceDetailW(set, &interfaceData, nullptr, 0, &needed, nullptr);
        if (needed > DetailBufferBytes) {
            continue;
        }
        for (u32 i = 0; i < bufferSize; ++i) {
            buffer[i] = 0;
        }
        detail->cbSize = sizeof(*detail);
        SP_DEVINFO_DATA data = {};
        data.cbSize = sizeof(data);
        // An interface that can't be read is passed over: the first class lists every COM port of the
        // machine, and those of other makers have none of these values.
        if (SetupDiGetDeviceInterfaceDetailW(set, &interfaceData, detail, needed, &needed, &data) &&
            ReadChannel(set, &data, channelClass, &info) && BelongsToBoard(board, info)) {
            AddChannel(board, set, data, channelClass, info, detail->DevicePath, pathCapacity);
        }
    }
    return board->ChlCount - before;
}

void BoardDeinitiate(BoardParams* board) {
    TraceScope trace;
    while (!ChlListIsEmpty(&board->ChlList)) {
        auto* chl = static_cast<BPPCHL*>(ChlListFirst(&board->ChlList));
        TraceOut("BPPCHL (%d, x%p, x%p, T:%d), TERMINATE\n", chl->CurrentInfo.ChlBasic.ChlNumber, chl,
                 chl->DevicePath, chl->Class);
        ChlListRemove(chl);
        if (chl->DevicePath != nullptr) {
            LocalFree(chl->DevicePath);
        }
        LocalFree(chl);
        --board->ChlCount;
    }
    board->WalkFirst = nullptr;
    // A set that was never opened is refused, which does no harm.
    for (const HDEVINFO set : board->InterfaceSet) {
        SetupDiDestroyDeviceInfoList(set);
    }
}
