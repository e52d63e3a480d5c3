// Every rename of a port takes the same road: checks, remap, notice to the device, the caller's records, move
// of the settings. Where callers differ, the record says how.
#pragma once

#include "device_model/board_params.h"
#include "reporting/trace.h"

// A port and its new number. The names belong to the caller.
struct PortRename {
    HDEVINFO DeviceInfoSet;
    SP_DEVINFO_DATA* DeviceInfoData;
    u32 oldNumber; // 1 to 256 like the new one, and another
    u32 newNumber;
    const WCHAR* settingsName; // the name under which the port's settings stand
    WCHAR* newName;            // becomes "COM%d" of the new number when the device has been told
    WCHAR* savedName;          // follows when the settings have moved; null if the caller keeps no such name
    u32 nameCapacity;
    void (*named)(const PortRename& rename); // called between the two; null if there is nothing to do
};

// The rename of a UART of a board, whose `SavedInfo` and `CurrentInfo` hold the names.
PortRename RenameOfChannel(BPPCHL* channel, u32 oldNumber, u32 newNumber);

// Takes the road from the remap on. Returns the status of Kavro_COMPortDoRemap. Unless that is 0, the
// caller's records have not changed.
u32 RenamePort(const PortRename& rename);

// What a dialog reports when a step of a user's rename fails, and whether the user may take a number that is
// claimed. If so, the box of the first code asks.
struct RenameTerms {
    u32 numberInUse; // failure codes
    u32 portOpened;
    u32 remap;
    bool mayTakeClaimed;
};

// The number that is selected in the combo IDC_PORT_NUMBER of a dialog, or `oldNumber` if none is.
u32 ChosenComNumber(HWND dialog, u32 oldNumber);

// Takes the whole road for a user who has chosen a number in `dialog`. True if the port now has that number,
// or had it before. False if it hasn't; a box over the dialog has said why, and nothing has changed.
bool RenamePortForUser(HWND dialog, const RenameTerms& terms, const PortRename& rename);
