// Every rename of a port takes the same steps: checks, remap, notice to the device, the caller's records,
// move of the settings. Where callers differ, the record says how.
#pragma once

#include "device_model/board_params.h"
#include "reporting/trace.h"

// A port and its new number. The names belong to the caller.
struct PortRename {
    HDEVINFO DeviceInfoSet;
    SP_DEVINFO_DATA* DeviceInfoData;
    u32 oldNumber; // both numbers are 1 to 256, and they differ
    u32 newNumber;
    const WCHAR* settingsName; // the name under which the port's settings are kept
    WCHAR* newName;            // set to "COM%d" of the new number once the device has been told
    WCHAR* savedName;          // set likewise once the settings have moved; may be null
    u32 nameCapacity;
    void (*named)(const PortRename& rename); // called between the two; null if there is nothing to do
};

// The rename of a UART of a board, whose `SavedInfo` and `CurrentInfo` hold the names.
PortRename RenameOfChannel(BPPCHL* channel, u32 oldNumber, u32 newNumber);

// Takes the steps from the remap on. Returns the status of Kavro_COMPortDoRemap. Unless that is 0, the
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

// The number that is selected in the combo IDC_PORT_NUMBER of a dialog, or `oldNumber` if none is selected.
u32 ChosenComNumber(HWND dialog, u32 oldNumber);

// Takes all the steps for a user who has chosen a number in `dialog`. True if the port now has that number or
// already had it. Otherwise false; a box over the dialog has said why, and nothing has changed.
bool RenamePortForUser(HWND dialog, const RenameTerms& terms, const PortRename& rename);
