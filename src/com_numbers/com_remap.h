// The rename of one port in the five places that hold its number: the DOS device name, the serial device map,
// the COM port database, the friendly name and `PortName`, in this order.
//
// A failure at the DOS device name puts the old definition back and stops. After that every step is carried
// out, whatever the step before it reported.
#pragma once

#include "platform/platform.h"

// Gives a port another COM number. Both numbers are 1 to 256, and they differ. Returns 0 if the rename went
// through, even if the old DOS name didn't exist. On StatusNoMemory, StatusNoKey, StatusNoDatabase or
// StatusNoDosName nothing has changed; only where the old definition can't be put back has the port no DOS
// name until the driver makes it anew at the next start.
u32 Kavro_COMPortDoRemap(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData, u32 oldNumber,
                         u32 newNumber);
