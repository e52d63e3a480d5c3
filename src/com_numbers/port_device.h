// What a rename asks of the port's device, and what it tells it: whether the port is open, and that its
// number has changed.
#pragma once

#include "platform/platform.h"

// 0 if the port isn't open; StatusPortOpened, StatusNoKey or StatusReadFailed.
u32 Kavro_COMPortCheckOpened(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData);

// Makes the device take notice of the change through its class installer. Reports nothing.
void Kavro_COMPortBroadcastRemap(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData);
