// The last step of a rename, which moves the port's line settings from the old name to the new one.
#pragma once

#include "platform/platform.h"

// Moves the line of a port in the [Ports] section of the profile. A port without a line gets the default one.
// The names have the form "COM5", without a colon, and differ. Failures are not reported.
void Kavro_COMPortMigratePortSettings(const WCHAR* oldName, const WCHAR* newName);
