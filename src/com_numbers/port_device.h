// What a rename asks of the port's device and tells it: whether the port is open, and that its number has
// changed.
#pragma once

#include "platform/platform.h"

// Returns 0 if the port isn't open, or StatusPortOpened, StatusNoKey or StatusReadFailed.
u32 Kavro_COMPortCheckOpened(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData);

// Makes the device adopt the change, through its class installer. Failures are not reported.
void Kavro_COMPortBroadcastRemap(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData);
