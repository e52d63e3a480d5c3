// What stands around a rename: the question whether the port is open, the notice to the device, and the move
// of the port's line settings from the old name to the new one.
#pragma once

#include "platform/platform.h"

// 0 if the port isn't open; StatusPortOpened (3), StatusNoKey or StatusReadFailed.
u32 Kavro_COMPortCheckOpened(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData);

// Makes the device take notice of the change through its class installer. Reports nothing.
void Kavro_COMPortBroadcastRemap(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData);

// Moves the line of a port in the [Ports] section of the profile; a port without a line gets the default one.
// Both names are such as "COM5", without the colon, and differ. Reports nothing.
void Kavro_COMPortMigratePortSettings(const WCHAR* oldName, const WCHAR* newName);
