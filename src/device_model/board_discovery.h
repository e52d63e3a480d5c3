// How a board finds its channels: the board's own values are read, then the device interfaces of five classes
// are enumerated across the machine, and those channels are kept whose bus number and IRQ equal the board's.
#pragma once

#include "device_model/board_params.h"

// Bytes of the buffer for an interface's path; an interface that needs more is passed over.
constexpr u32 DetailBufferBytes = 1024;

// Fills a board's record. On entry DeviceInfoSet and DeviceInfoData hold the board's device, all of
// InterfaceSet INVALID_HANDLE_VALUE, and the rest is zero. True exactly when the status is 0; a board without
// channels succeeds. Whatever the result, the caller releases the record's contents with BoardDeinitiate.
// status: 0, StatusNoMemory, StatusNoInterfaceSet, or that of the first failing read of the board's own
// values.
bool BoardInitiate(BoardParams* board, u32* status);

// Enumerates one class into the board's list. `buffer` has `bufferSize` bytes, DetailBufferBytes at least. An
// interface that can't be read, belongs to another board or finds no memory is passed over.
void BoardEnumClass(BoardParams* board, BYTE* buffer, u32 bufferSize, HDEVINFO set,
                    const GUID* interfaceClass, u32 channelClass);

// Releases the records and the interface sets, not the BoardParams itself.
void BoardDeinitiate(BoardParams* board);
