// The road that every rename of a port walks: checks, remap, broadcast, the caller's records, migration of
// the settings. The first three steps stand here; records are the caller's, and with them in place it ends
// the road itself with Kavro_COMPortMigratePortSettings.
#pragma once

#include "platform/platform.h"

// Gives a port another number and tells its device. `newName` becomes "COM%d" of the new number, unless the
// status of Kavro_COMPortDoRemap, which is returned, is not 0.
u32 RenamePort(HDEVINFO set, SP_DEVINFO_DATA* data, u32 oldNumber, u32 newNumber, WCHAR* newName,
               u32 newNameCapacity);

// The failure codes of a user's rename, one for each step.
struct RenameFailureCodes {
    u32 numberInUse;
    u32 portOpened;
    u32 remap;
};

// The same at a user's wish: first refuses an open port and a number that is claimed, unless the code's box
// asks and the user says yes. True if the port has its new number and `newName` its name; otherwise a box,
// owned by `owner`, has said why, and nothing has changed.
bool RenamePortForUser(HWND owner, const RenameFailureCodes& codes, HDEVINFO set, SP_DEVINFO_DATA* data,
                       u32 oldNumber, u32 newNumber, WCHAR* newName, u32 newNameCapacity);
