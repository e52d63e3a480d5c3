// The only access to the operating system. The logic includes no other system header. This header includes
// Windows' own headers or, where the build defines KVR_SIMULATED, those of the simulated system, which has
// the same names, signatures and sizes. Only this file knows which of the two it is.
#pragma once

#ifndef KVR_SIMULATED
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>
#include <setupapi.h>

#include <ddk/msports.h>
#else
#include "simulated/windows_api.h"
#endif

#include "platform/layouts.h"
