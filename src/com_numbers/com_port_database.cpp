#include "com_numbers/com_port_database.h"

#include "platform/port_usage.h"
#include "reporting/module_entry.h"
#include "reporting/statuses.h"
#include "reporting/text_operations.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

// One bit for each COM number.
using PortUsageBitmap = BYTE[ComNumberMax / 8];

// Units of an entry of the combo, terminator included. The suffix alone has the same limit.
constexpr u32 EntryCapacity = 40;

// Returns 0, StatusNoDatabase or StatusNoUsage. The handle goes to CloseDatabase in each case.
u32 ReadPortUsage(HCOMDB* database, PortUsageBitmap& usage) {
    DWORD portCount = 0; // which the bits tell too
    if (ComDBOpen(database) != ERROR_SUCCESS) {
        TraceOut("%s - ComDBOpen fail, GetLastError():%d\n", TraceOperation(), GetLastError());
        return StatusNoDatabase;
    }
    if (ComDBGetCurrentPortUsage(*database, usage, sizeof(usage), CDB_REPORT_BITS, &portCount) !=
        ERROR_SUCCESS) {
        TraceOut("%s - ComDBGetCurrentPortUsage fail, GetLastError():%d\n", TraceOperation(), GetLastError());
        return StatusNoUsage;
    }
    return 0;
}

void CloseDatabase(HCOMDB database) {
    if (database != nullptr) {
        ComDBClose(database);
    }
}

u32 ClampComNumber(u32 number) {
    const INT value = static_cast<INT>(number);
    return value < 1 ? 1 : value > static_cast<INT>(ComNumberMax) ? ComNumberMax : number;
}

void LoadInUseSuffix(WCHAR (&suffix)[EntryCapacity]) {
    if (LoadStringW(ModuleInstance, IDS_IN_USE_SUFFIX, suffix, EntryCapacity) == 0) {
        CopyText(suffix, EntryCapacity, TEXT(" (in use)"));
    }
}

void AddAllNumbers(HWND combo, const PortUsageBitmap& usage, u32 currentNumber, const WCHAR* suffix) {
    WCHAR entry[EntryCapacity];
    for (u32 number = 1; number <= ComNumberMax; ++number) {
        FormatText(entry, ARRAYSIZE(entry), TEXT("COM%d"), number);
        if (IsPortClaimed(usage, number)) {
            if (number == currentNumber) {
                TraceOut("%s COM%d -> used, is current port number, don't in use\n", TraceOperation(),
                         number);
            } else {
                TraceOut("%s COM%d -> used\n", TraceOperation(), number);
                AppendText(entry, ARRAYSIZE(entry), suffix);
            }
        }
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
    }
    SendMessageW(combo, CB_SETCURSEL, currentNumber - 1, 0);
}

} // namespace

u32 Kavro_COMPortCheckNumberInUse(u32 number) {
    TraceScope trace;
    HCOMDB database = nullptr;
    PortUsageBitmap usage = {};
    u32 sStatus = ReadPortUsage(&database, usage);
    if (sStatus == 0 && IsPortClaimed(usage, number)) {
        TraceOut("%s - port has been previously claimed\n", __func__);
        sStatus = StatusNumberClaimed;
    }
    CloseDatabase(database);
    return trace.Status(sStatus);
}

u32 Kavro_COMPortGetMaxNumberAvailable(u32* MaxAvlComNumber) {
    TraceScope trace;
    *MaxAvlComNumber = 0;
    HCOMDB database = nullptr;
    PortUsageBitmap usage = {};
    u32 sStatus = ReadPortUsage(&database, usage);
    if (sStatus == 0) {
        u32 number = ComNumberMax;
        while (number != 0 && IsPortClaimed(usage, number)) {
            --number;
        }
        if (number != 0) {
            TraceOut("%s - maxAvl:%d\n", __func__, number);
            *MaxAvlComNumber = number;
        } else {
            TraceOut("%s - Can't find any available COM number\n", __func__);
            sStatus = StatusNoneFree;
        }
    }
    CloseDatabase(database);
    return trace.Exit("<---- %s, sStatus:%d, *MaxAvlComNumber:%d\n", sStatus, *MaxAvlComNumber);
}

u32 Kavro_COMPortFillPortNameCombox(HWND dialog, const WCHAR* portName) {
    TraceScope trace;
    const HWND combo = GetDlgItem(dialog, IDC_PORT_NUMBER);
    HCOMDB database = nullptr;
    u32 sStatus = StatusNoCombo;
    if (combo != nullptr && portName[0] != 0) {
        WCHAR suffix[EntryCapacity];
        LoadInUseSuffix(suffix);
        PortUsageBitmap usage = {};
        sStatus = ReadPortUsage(&database, usage);
        if (sStatus == 0) {
            AddAllNumbers(combo, usage, ClampComNumber(ComNumberFromName(portName)), suffix);
        }
    }
    CloseDatabase(database);
    EnableWindow(combo, sStatus == 0);
    EnableWindow(GetDlgItem(dialog, IDC_PORT_NUMBER_CAPTION), sStatus == 0);
    return trace.Status(sStatus);
}
