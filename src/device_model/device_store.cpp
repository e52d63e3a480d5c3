#include "device_model/device_store.h"

#include <cstddef>

#include "reporting/statuses.h"

namespace {

// One value to be read: its name, and the field of the record that takes it.
struct StoreField {
    const WCHAR* name;
    u32 offset;
    u32 bytes;
    bool text;
};

#define NUMBER(record, field)                                                                                \
    { TEXT(#field), offsetof(record, field), sizeof(record::field), false }
#define TEXT_FIELD(record, field)                                                                            \
    { TEXT(#field), offsetof(record, field), sizeof(record::field), true }

constexpr StoreField BoardBasicFields[] = {
    NUMBER(BoardBasicInfo, BoardPciBusNumber),
    NUMBER(BoardBasicInfo, BoardIrq),
};
constexpr StoreField BoardOtherFields[] = {
    NUMBER(BoardOtherInfo, BoardMajorVersion),
    NUMBER(BoardOtherInfo, BoardMinorVersion),
    NUMBER(BoardOtherInfo, BoardNrController),
    TEXT_FIELD(BoardOtherInfo, BoardModelName),
};
constexpr StoreField ChlBasicFields[] = {
    NUMBER(ChlBasicInfo, ChlNumber),      NUMBER(ChlBasicInfo, ChlType),
    NUMBER(ChlBasicInfo, ChlVersion),     NUMBER(ChlBasicInfo, ChlEventAddr),
    NUMBER(ChlBasicInfo, ChlEventLength), NUMBER(ChlBasicInfo, ChlMemAddr),
    NUMBER(ChlBasicInfo, ChlMemLength),   NUMBER(ChlBasicInfo, ChlPortAddr),
    NUMBER(ChlBasicInfo, ChlPortLength),  NUMBER(ChlBasicInfo, ChlOpened),
};
constexpr StoreField ConfigBasicFields[] = {
    NUMBER(ConfigBasicInfo, ConfigModel),
    NUMBER(ConfigBasicInfo, ConfigBrand),
};
constexpr StoreField DioBasicFields[] = {
    NUMBER(DioBasicInfo, DioNrBank),
    NUMBER(DioBasicInfo, DioCapability),
    NUMBER(DioBasicInfo, DioDiSamplingFreq),
    NUMBER(DioBasicInfo, DioDiFilterLowerBound),
};
constexpr StoreField Mcp251xBasicFields[] = {
    NUMBER(Mcp251xBasicInfo, Mcp251xSpiNrDevice),
    NUMBER(Mcp251xBasicInfo, Mcp251xSpiClkRate),
    TEXT_FIELD(Mcp251xBasicInfo, Mcp251xName),
    NUMBER(Mcp251xBasicInfo, Mcp251xNumber),
    NUMBER(Mcp251xBasicInfo, Mcp251xCS),
    NUMBER(Mcp251xBasicInfo, Mcp251xGpioInputBits),
    NUMBER(Mcp251xBasicInfo, Mcp251xGpioOutputBits),
};
constexpr StoreField Mcp251xFdBasicFields[] = {
    NUMBER(Mcp251xFdBasicInfo, Mcp251xFdSpiNrDevice),
    NUMBER(Mcp251xFdBasicInfo, Mcp251xFdSpiClkRate),
    TEXT_FIELD(Mcp251xFdBasicInfo, Mcp251xFdName),
    NUMBER(Mcp251xFdBasicInfo, Mcp251xFdNumber),
    NUMBER(Mcp251xFdBasicInfo, Mcp251xFdCS),
    NUMBER(Mcp251xFdBasicInfo, Mcp251xFdGpioInputBits),
    NUMBER(Mcp251xFdBasicInfo, Mcp251xFdGpioOutputBits),
};
constexpr StoreField CanBasicFields[] = {
    NUMBER(CanBasicInfo, KvrCanCapability),       NUMBER(CanBasicInfo, KvrCanTxMsgQueueSize),
    NUMBER(CanBasicInfo, KvrCanTxEventQueueSize), NUMBER(CanBasicInfo, KvrCanRxMsgQueueSize),
    NUMBER(CanBasicInfo, KvrCanNrRxFilterGroup),  NUMBER(CanBasicInfo, KvrCanSystemClkRate),
    NUMBER(CanBasicInfo, KvrCanReferenceClkRate), NUMBER(CanBasicInfo, KvrCanFifoTXMMax),
    NUMBER(CanBasicInfo, KvrCanFifoTXEMax),       NUMBER(CanBasicInfo, KvrCanFifoRXMMax),
};
constexpr StoreField UartBasicFields[] = {
    NUMBER(UartBasicInfo, UartTxFifoSize),
    NUMBER(UartBasicInfo, UartRxFifoSize),
    NUMBER(UartBasicInfo, UartClkRate),
    NUMBER(UartBasicInfo, UartCapability),
    NUMBER(UartBasicInfo, UartDefCntFifoSettings),
    NUMBER(UartBasicInfo, UartDefCntAdvanceSettings),
    NUMBER(UartBasicInfo, UartFifoEnable),
    NUMBER(UartBasicInfo, UartTxFifoLowHigh),
    NUMBER(UartBasicInfo, UartRxFifoLowHigh),
    NUMBER(UartBasicInfo, UartMode),
    NUMBER(UartBasicInfo, UartAHDC),
    NUMBER(UartBasicInfo, UartCS),
    NUMBER(UartBasicInfo, UartAutoRS422485),
    NUMBER(UartBasicInfo, UartRS422Termination),
    NUMBER(UartBasicInfo, UartRS485Termination),
};

// Terminates a text that was stored without its terminator: after its last whole unit, or in the last unit of
// a full field. A text that has one is left alone, and so is a field that is too small for a terminator.
void EndText(BYTE* field, u32 fieldBytes, u32 storedBytes) {
    if (fieldBytes < sizeof(WCHAR)) {
        return;
    }
    auto* text = reinterpret_cast<WCHAR*>(field);
    const u32 last = fieldBytes / sizeof(WCHAR) - 1;
    const u32 stored = storedBytes / sizeof(WCHAR);
    u32 length = 0;
    while (length < stored && text[length] != 0) {
        ++length;
    }
    if (length == stored) {
        text[length < last ? length : last] = 0;
    }
}

// Reads the fields up to `end`, which is behind the last.
u32 ReadFrom(HKEY key, const StoreField* field, const StoreField* end, void* record) {
    for (; field != end; ++field) {
        auto* destination = static_cast<BYTE*>(record) + field->offset;
        DWORD length = field->bytes;
        const LSTATUS lStatus = RegQueryValueExW(key, field->name, nullptr, nullptr, destination, &length);
        if (lStatus != ERROR_SUCCESS) {
            TraceOut("%s - RegQueryValueEx() fail, %ws, lStatus:%d\n", TraceOperation(), field->name,
                     lStatus);
            return StatusReadFailed;
        }
        if (field->text) {
            EndText(destination, field->bytes, length);
        }
    }
    return 0;
}

// One value to be written, as a REG_DWORD.
struct StoreNumber {
    const WCHAR* name;
    u32 value;
};

u32 WriteTo(HKEY key, const StoreNumber* number, const StoreNumber* end) {
    for (; number != end; ++number) {
        const LSTATUS lStatus =
            RegSetValueExW(key, number->name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number->value),
                           sizeof(number->value));
        if (lStatus != ERROR_SUCCESS) {
            TraceOut("%s - RegSetValueEx() fail, %ws, lStatus:%d\n", TraceOperation(), number->name, lStatus);
            return StatusWriteFailed;
        }
    }
    return 0;
}

// A complete reading operation; `operation` is its name.
template <SIZE_T Count>
u32 ReadValues(HDEVINFO set, SP_DEVINFO_DATA* data, const StoreField (&fields)[Count], void* record,
               TraceName operation = __builtin_FUNCTION()) {
    TraceScope trace(operation);
    const HKEY key = OpenDeviceKey(set, data);
    if (key == INVALID_HANDLE_VALUE) {
        return trace.Status(StatusNoKey);
    }
    const u32 sStatus = ReadFrom(key, fields, fields + Count, record);
    RegCloseKey(key);
    return trace.Status(sStatus);
}

// The same for a writing operation.
template <SIZE_T Count>
u32 WriteValues(HDEVINFO set, SP_DEVINFO_DATA* data, const StoreNumber (&numbers)[Count],
                TraceName operation = __builtin_FUNCTION()) {
    TraceScope trace(operation);
    const HKEY key = OpenDeviceKey(set, data);
    if (key == INVALID_HANDLE_VALUE) {
        return trace.Status(StatusNoKey);
    }
    const u32 sStatus = WriteTo(key, numbers, numbers + Count);
    RegCloseKey(key);
    return trace.Status(sStatus);
}

} // namespace

HKEY OpenDeviceKey(HDEVINFO set, SP_DEVINFO_DATA* data) {
    const HKEY key = SetupDiOpenDevRegKey(set, data, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_ALL_ACCESS);
    if (key == INVALID_HANDLE_VALUE) {
        TraceOut("%s - SetupDiOpenDevRegKey() fail, GetLastError:%d\n", TraceOperation(), GetLastError());
    }
    return key;
}

u32 Kavro_RegBoardGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, BoardBasicInfo* info) {
    return ReadValues(set, data, BoardBasicFields, info);
}

u32 Kavro_RegBoardGetOther(HDEVINFO set, SP_DEVINFO_DATA* data, BoardOtherInfo* info) {
    return ReadValues(set, data, BoardOtherFields, info);
}

u32 Kavro_RegChlGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, ChlBasicInfo* info) {
    return ReadValues(set, data, ChlBasicFields, info);
}

u32 Kavro_RegConfigGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, ConfigBasicInfo* info) {
    return ReadValues(set, data, ConfigBasicFields, info);
}

u32 Kavro_RegDioGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, DioBasicInfo* info) {
    return ReadValues(set, data, DioBasicFields, info);
}

u32 Kavro_RegMcp251xGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, Mcp251xBasicInfo* info) {
    return ReadValues(set, data, Mcp251xBasicFields, info);
}

u32 Kavro_RegMcp251xFdGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, Mcp251xFdBasicInfo* info) {
    return ReadValues(set, data, Mcp251xFdBasicFields, info);
}

u32 Kavro_RegCanGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, CanBasicInfo* info) {
    return ReadValues(set, data, CanBasicFields, info);
}

u32 Kavro_RegUartGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, UartBasicInfo* info) {
    return ReadValues(set, data, UartBasicFields, info);
}

u32 Kavro_RegUartGetCOMName(HDEVINFO set, SP_DEVINFO_DATA* data, WCHAR* text, u32 bytes) {
    const StoreField portName[] = {{TEXT("PortName"), 0, bytes, true}};
    return ReadValues(set, data, portName, text);
}

u32 Kavro_RegUartSetFifoSettings(HDEVINFO set, SP_DEVINFO_DATA* data, u32 UartFifoEnable,
                                 u32 UartTxFifoLowHigh, u32 UartRxFifoLowHigh) {
    const StoreNumber numbers[] = {
        {TEXT("UartFifoEnable"), UartFifoEnable},
        {TEXT("UartTxFifoLowHigh"), UartTxFifoLowHigh},
        {TEXT("UartRxFifoLowHigh"), UartRxFifoLowHigh},
    };
    return WriteValues(set, data, numbers);
}

u32 Kavro_RegUartSetAdvanceSettings(HDEVINFO set, SP_DEVINFO_DATA* data, u32 UartMode, u32 UartAHDC,
                                    u32 UartCS, u32 UartAutoRS422485, u32 UartRS422Termination,
                                    u32 UartRS485Termination) {
    const StoreNumber numbers[] = {
        {TEXT("UartMode"), UartMode},
        {TEXT("UartAHDC"), UartAHDC},
        {TEXT("UartCS"), UartCS},
        {TEXT("UartAutoRS422485"), UartAutoRS422485},
        {TEXT("UartRS422Termination"), UartRS422Termination},
        {TEXT("UartRS485Termination"), UartRS485Termination},
    };
    return WriteValues(set, data, numbers);
}
