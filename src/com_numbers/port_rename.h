// The steps of a rename that more than one caller takes. Every rename goes in this order:
//
//     1. the number is free, or may be taken, and the port is closed
//     2. Kavro_COMPortDoRemap moves the number in its five places
//     3. Kavro_COMPortBroadcastRemap makes the device adopt it
//     4. the caller's records get the new name
//     5. Kavro_COMPortMigratePortSettings moves the settings line from the old name to the new one
//
// The rename can fail up to step 2; then the port has its old number and nothing of the caller may change.
// From step 3 on there is no way back, so a failure there is not reported: the port has its new number in any
// case.
#pragma once

#include "device_model/board_params.h"
#include "reporting/trace.h"

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

// Whether there is anything to rename, which the trace tells.
bool IsNumberChanged(u32 oldNumber, u32 newNumber);

// Steps 1 and 2 for a user who has chosen a number in `dialog`. Both numbers are 1 to 256, and they differ.
// If false, a box over the dialog has said why.
bool RemapForUser(HWND dialog, const RenameTerms& terms, HDEVINFO set, SP_DEVINFO_DATA* data, u32 oldNumber,
                  u32 newNumber);

// Step 4 for a UART of a board: `CurrentInfo` gets the name of the number.
void NameChannel(BPPCHL* channel, u32 number);

// Step 5 for it: the settings move from the name in `SavedInfo`, which then follows.
void MoveChannelSettings(BPPCHL* channel);
