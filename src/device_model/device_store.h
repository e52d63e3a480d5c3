// The device store: the values that the driver publishes under a device's hardware key, and the nine that the
// pages write back for it to act on.
//
// A device is the pair of a set and its SP_DEVINFO_DATA. Every operation opens the device's key, with full
// access even for reading, and closes it before it returns. Values are read in a fixed order, and reading
// stops at the first that is missing or too long for its field. Those read before it stay in the destination.
// Nothing is cleared, so a caller that wants a clean record clears it first. The type of a value is not
// checked. A shorter value fills only its own bytes, except that a text without a terminator gets one: after
// its last whole unit, or in the last unit of a full field. So a text always ends within its field, unless
// that is smaller than a terminator.
#pragma once

#include "device_model/board_params.h"
#include "reporting/trace.h"

// The readers return 0, StatusNoKey or StatusReadFailed.
u32 Kavro_RegBoardGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, BoardBasicInfo* info);
u32 Kavro_RegBoardGetOther(HDEVINFO set, SP_DEVINFO_DATA* data, BoardOtherInfo* info);
u32 Kavro_RegChlGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, ChlBasicInfo* info);
u32 Kavro_RegConfigGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, ConfigBasicInfo* info);
u32 Kavro_RegDioGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, DioBasicInfo* info);
u32 Kavro_RegMcp251xGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, Mcp251xBasicInfo* info);
u32 Kavro_RegMcp251xFdGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, Mcp251xFdBasicInfo* info);
u32 Kavro_RegCanGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, CanBasicInfo* info);
// Reads all fields but `PortName`, which keeps its content.
u32 Kavro_RegUartGetBasic(HDEVINFO set, SP_DEVINFO_DATA* data, UartBasicInfo* info);
// Reads the value `PortName` into a text of `bytes` bytes.
u32 Kavro_RegUartGetCOMName(HDEVINFO set, SP_DEVINFO_DATA* data, WCHAR* text, u32 bytes);

// The writers write their values in the order of the parameters and return 0, StatusNoKey or
// StatusWriteFailed.
u32 Kavro_RegUartSetFifoSettings(HDEVINFO set, SP_DEVINFO_DATA* data, u32 UartFifoEnable,
                                 u32 UartTxFifoLowHigh, u32 UartRxFifoLowHigh);
u32 Kavro_RegUartSetAdvanceSettings(HDEVINFO set, SP_DEVINFO_DATA* data, u32 UartMode, u32 UartAHDC,
                                    u32 UartCS, u32 UartAutoRS422485, u32 UartRS422Termination,
                                    u32 UartRS485Termination);

// Opens a device's hardware key with full access. INVALID_HANDLE_VALUE on failure; the caller closes the key.
HKEY OpenDeviceKey(HDEVINFO set, SP_DEVINFO_DATA* data);
