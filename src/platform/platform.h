// The one door to the operating system. The logic includes this header and nothing else of the system:
// on Windows it opens on the system's own headers, elsewhere on the simulated system that answers under
// the same names, signatures and sizes. Only this file knows which of the two it is.
#pragma once

#ifdef _WIN32
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>
#include <setupapi.h>

#include <ddk/msports.h>
#else
#include "platform/simulated/windows_api.h"
#endif

#include "platform/layouts.h"
