// The one door to the operating system. The logic includes no other header of the system. On Windows this one
// includes the system's own headers, elsewhere those of the simulated system, which has the same names,
// signatures and sizes. Only this file knows which of the two it is.
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
