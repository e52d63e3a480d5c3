// The one road of every rename of a port: checks, remap, notice to the device, the caller's records, move of
// the settings. What the callers differ in is data of the record, or its one call.
#pragma once

#include "device_model/board_params.h"
#include "reporting/trace.h"

// A port and the number that it is to get. The names belong to the caller, `nameCapacity` units each.
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

// The rename of a board's UART, whose two copies hold its names.
PortRename RenameOfChannel(BPPCHL* channel, u32 oldNumber, u32 newNumber);

// Walks the road from the remap on. 0, or the status of Kavro_COMPortDoRemap: then the caller's records are
// as they were.
u32 RenamePort(const PortRename& rename);

// What a dialog says when a user's rename fails, by step, and whether the user may take a number that is
// claimed: then the first box asks.
struct RenameTerms {
    u32 numberInUse; // failure codes
    u32 portOpened;
    u32 remap;
    bool mayTakeClaimed;
};

// The number that is selected in the combo IDC_PORT_NUMBER of a dialog; `oldNumber` without a selection.
u32 ChosenComNumber(HWND dialog, u32 oldNumber);

// Walks the whole road for a user who has chosen a number in `dialog`. True if the port has it, which is so
// at once if the number is the old one; otherwise a box over the dialog has said why, and nothing has
// changed.
bool RenamePortForUser(HWND dialog, const RenameTerms& terms, const PortRename& rename,
                       TraceName function = __builtin_FUNCTION());
