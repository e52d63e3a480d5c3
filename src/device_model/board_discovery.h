// How a board finds its channels. After the board's own values, the device interfaces of five classes are
// enumerated across the machine, and a channel is kept if its bus number and IRQ equal the board's.
#pragma once

#include "device_model/board_params.h"

// Bytes of the buffer for the path of an interface. An interface that needs more is skipped.
constexpr u32 DetailBufferBytes = 1024;

// Fills the record of a board. On entry DeviceInfoSet and DeviceInfoData hold the board's device, all of
// InterfaceSet is INVALID_HANDLE_VALUE, and the rest is zero. Returns true if and only if the status is 0; a
// board without channels succeeds. In either case the caller releases the contents with BoardDeinitiate. The
// status is 0, StatusNoMemory, StatusNoInterfaceSet, or that of the first failed read of the board's own
// values.
bool BoardInitiate(BoardParams* board, u32* status);

// Enumerates one class into the board's list. `buffer` has `bufferSize` bytes, at least DetailBufferBytes. An
// interface is skipped if it can't be read, belongs to another board, or there is no memory for it. Returns
// the number of channels found, which may be none.
u32 BoardEnumClass(BoardParams* board, BYTE* buffer, u32 bufferSize, HDEVINFO set, const GUID* interfaceClass,
                   u32 channelClass);

// Releases the records and the interface sets, but not the BoardParams itself, whose list and walk are empty
// afterwards.
void BoardDeinitiate(BoardParams* board);
