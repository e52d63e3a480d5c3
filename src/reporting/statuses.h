// The statuses of the library's operations: what a failed operation returns, and the number that a box shows
// after "serr:". 0 is success everywhere.
#pragma once

#include "platform/platform.h"

constexpr u32 StatusNoMemory = 1;       // no memory for a record or a buffer
constexpr u32 StatusNoInterfaceSet = 2; // a set of device interfaces can't be opened
constexpr u32 StatusPortOpened = 3;     // an application holds the port open

// The device store.
constexpr u32 StatusNoKey = 100;       // the device's key can't be opened; nothing was read or written
constexpr u32 StatusReadFailed = 101;  // a value is missing or too long for its field
constexpr u32 StatusWriteFailed = 102; // a value can't be written; those before it are written

// The COM port database.
constexpr u32 StatusNoDatabase = 200;    // it can't be opened
constexpr u32 StatusNoUsage = 201;       // it doesn't say which numbers are claimed
constexpr u32 StatusNumberClaimed = 202; // the number is claimed
constexpr u32 StatusNoneFree = 203;      // no number is free

constexpr u32 StatusNoDosName = 300; // the DOS device name can't be moved
constexpr u32 StatusNoCombo = 301;   // the combo doesn't exist, or the port name is empty
