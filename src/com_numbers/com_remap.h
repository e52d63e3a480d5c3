// The rename of one port in the five places that hold its number: the DOS device name, the serial device map,
// the COM port database, the friendly name and `PortName`, in this order.
//
// It is a transaction only up to the DOS device name: a failure there puts the old definition back and stops.
// From then on every step is carried out whatever the one before it reported.
#pragma once

#include "platform/platform.h"

// Gives a port another COM number. Both numbers are 1 to 256 and differ. 0 if it went through, also if the
// old DOS name didn't exist. Otherwise nothing has changed: StatusNoMemory, StatusNoKey, StatusNoDatabase or
// StatusNoDosName.
u32 Kavro_COMPortDoRemap(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData, u32 oldNumber,
                         u32 newNumber);
