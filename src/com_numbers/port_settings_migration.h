// The last step of a rename: a port's line settings move from the old name to the new one.
#pragma once

#include "platform/platform.h"

// Moves the line of a port in the [Ports] section of the profile; a port without a line gets the default one.
// Both names are such as "COM5", without the colon, and differ. Reports nothing.
void Kavro_COMPortMigratePortSettings(const WCHAR* oldName, const WCHAR* newName);
