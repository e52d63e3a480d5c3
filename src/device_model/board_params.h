// The device model: what is known about one board and its channels.
//
// Each Port Control page works on one `BoardParams` and owns it. The `BoardParams` owns its `BPPCHL` records
// and five interface sets, and each record owns its device path. The device of the provider's request is
// borrowed. The records live from `BoardInitiate` to `BoardDeinitiate`. The sets stay open just as long,
// because the device of a record means something only in its set. In between, the store is read once and not
// again.
//
// Each value of a channel is held twice. `SavedInfo` mirrors the store and changes only after a successful
// write. `CurrentInfo` holds what the page means to store. Only two things read `SavedInfo`: the comparison
// before a write, and the move of a port's settings, which takes the old name from it.
//
// All records are plain and zero-filled at creation. Every text ends within its field.
#pragma once

#include "device_model/fifo_stages.h"
#include "platform/platform.h"
#include "reporting/text_operations.h"

// The interface class through which a channel was found. This is its type, regardless of what the driver
// publishes as `ChlType`.
enum ChannelClass : u32 {
    ClassUart = 1,
    ClassDio = 2,
    ClassMcp251x = 3,
    ClassMcp251xFd = 4,
    ClassCan = 5,
};
constexpr u32 ChannelClassCount = 5;

// Units of a text field. A stored text has at most twice as many bytes, terminator included.
constexpr u32 StoreTextCapacity = 64;

// The identity of a board. A channel belongs to the board whose two values equal its own.
struct BoardBasicInfo {
    u32 BoardPciBusNumber;
    u32 BoardIrq;
};

struct BoardOtherInfo {
    u32 BoardMajorVersion;
    u32 BoardMinorVersion;
    u32 BoardNrController; // one more than the highest channel number that the walk visits
    WCHAR BoardModelName[StoreTextCapacity];
};

struct ConfigBasicInfo {
    u32 ConfigModel;
    u32 ConfigBrand;
};

struct ChlBasicInfo {
    u32 ChlNumber; // the channel's number on the board, from 1
    u32 ChlType;   // as the driver publishes it: 1 is a UART
    u32 ChlVersion;
    u64 ChlEventAddr; // three address ranges: start and length in bytes
    u32 ChlEventLength;
    u64 ChlMemAddr;
    u32 ChlMemLength;
    u64 ChlPortAddr;
    u32 ChlPortLength;
    u32 ChlOpened; // non-zero while an application holds the port open; the open check reads the store afresh
};

struct UartBasicInfo {
    WCHAR PortName[StoreTextCapacity]; // "COM" and the decimal number
    u32 UartTxFifoSize;                // bytes
    u32 UartRxFifoSize;                // bytes
    u32 UartClkRate;
    u32 UartCapability; // bit mask, see uart_modes.h
    u32 UartDefCntFifoSettings;
    u32 UartDefCntAdvanceSettings;
    u32 UartFifoEnable;    // 0 or 1
    u32 UartTxFifoLowHigh; // transmit trigger level, bytes
    u32 UartRxFifoLowHigh; // receive trigger level, bytes
    u32 UartMode;          // 1 RS-232, 2 RS-422, 4 RS-485, 6 Auto RS-422/485
    u32 UartAHDC;          // this and the four that follow: 0 or 1
    u32 UartCS;
    u32 UartAutoRS422485;
    u32 UartRS422Termination;
    u32 UartRS485Termination;
};

struct DioBasicInfo {
    u32 DioNrBank;
    u32 DioCapability;
    u32 DioDiSamplingFreq;
    u32 DioDiFilterLowerBound;
};

struct Mcp251xBasicInfo {
    u32 Mcp251xSpiNrDevice;
    u32 Mcp251xSpiClkRate;
    WCHAR Mcp251xName[StoreTextCapacity];
    u32 Mcp251xNumber;
    u32 Mcp251xCS;
    u32 Mcp251xGpioInputBits;
    u32 Mcp251xGpioOutputBits;
};

struct Mcp251xFdBasicInfo {
    u32 Mcp251xFdSpiNrDevice;
    u32 Mcp251xFdSpiClkRate;
    WCHAR Mcp251xFdName[StoreTextCapacity];
    u32 Mcp251xFdNumber;
    u32 Mcp251xFdCS;
    u32 Mcp251xFdGpioInputBits;
    u32 Mcp251xFdGpioOutputBits;
};

struct CanBasicInfo {
    u32 KvrCanCapability;
    u32 KvrCanTxMsgQueueSize;
    u32 KvrCanTxEventQueueSize;
    u32 KvrCanRxMsgQueueSize;
    u32 KvrCanNrRxFilterGroup;
    u32 KvrCanSystemClkRate;
    u32 KvrCanReferenceClkRate;
    u32 KvrCanFifoTXMMax;
    u32 KvrCanFifoTXEMax;
    u32 KvrCanFifoRXMMax;
};

// All values of one channel. `Class` of its BPPCHL says which of the last five is valid.
struct ChannelInfo {
    BoardBasicInfo BoardBasic;
    ChlBasicInfo ChlBasic;
    union {
        UartBasicInfo Uart;
        DioBasicInfo Dio;
        Mcp251xBasicInfo Mcp251x;
        Mcp251xFdBasicInfo Mcp251xFd;
        CanBasicInfo Can;
    };
};

// `{}` clears only the first member of the union, so no other may be larger.
static_assert(sizeof(UartBasicInfo) >= sizeof(DioBasicInfo) &&
              sizeof(UartBasicInfo) >= sizeof(Mcp251xBasicInfo) &&
              sizeof(UartBasicInfo) >= sizeof(Mcp251xFdBasicInfo) &&
              sizeof(UartBasicInfo) >= sizeof(CanBasicInfo));

struct ChlListEntry {
    ChlListEntry* Next;
    ChlListEntry* Prev;
};

struct BoardParams;

// `ListIndex` of a channel that has no line in the channel list box.
constexpr u32 NotListed = 299;

// One channel.
struct BPPCHL : ChlListEntry {
    BoardParams* Board; // the owner
    u32 Class;          // a ChannelClass, never changed
    ChannelInfo SavedInfo;
    ChannelInfo CurrentInfo;
    HDEVINFO DeviceInfoSet;         // the set that enumerated the channel; the board's
    SP_DEVINFO_DATA DeviceInfoData; // the channel's device in that set
    WCHAR* DevicePath;              // for the trace; null if there was no memory for it
    u32 ListIndex;                  // position in the channel list box, NotListed if it has none
    FifoSliders Fifo;               // of a UART; all zero for other classes
    // Position of each mode in the UART type combo, all bits set for a mode that is not offered.
    u32 RS232ComboxPos;
    u32 RS422ComboxPos;
    u32 RS485ComboxPos;
    u32 AutoRS422485ComboxPos;
    // Working values of a click on Sort UART: the channel's number, the COM number that it has, and the one
    // that it is to get.
    u32 SortChlNumber;
    u32 SortCurrentCom;
    u32 SortNewCom;
    BPPCHL* WalkNext; // see channel_list.h
};

struct BoardParams {
    HDEVINFO DeviceInfoSet; // borrowed from the request
    HDEVINFO InterfaceSet[ChannelClassCount];
    SP_DEVINFO_DATA* DeviceInfoData; // the board's own device, borrowed from the request
    bool BasicSettingsDlgInitiateOK; // the page has been initialised, so that its OK may store
    BoardBasicInfo BoardBasic;
    BoardOtherInfo BoardOther; // only BoardNrController is used
    ChlBasicInfo BoardChl;     // must be readable, like BoardConfig; nothing uses either
    ConfigBasicInfo BoardConfig;
    u32 ChlCount; // records in ChlList
    ChlListEntry ChlList;
    bool ChlListChanged; // Sort UART found ports to change: the channel list box must be refilled
    BPPCHL* WalkFirst;   // see channel_list.h
};
