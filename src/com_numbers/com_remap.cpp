#include "com_numbers/com_remap.h"

#include "device_model/device_store.h"
#include "reporting/statuses.h"
#include "reporting/text_operations.h"
#include "reporting/trace.h"

namespace {

constexpr u32 RemapTextCapacity = 81;
constexpr u32 DescriptionCapacity = 256;

// The record of one rename. It exists only while the rename runs.
struct Remap {
    HDEVINFO DeviceInfoSet;
    SP_DEVINFO_DATA* DeviceInfoData;
    u32 OldComNumber;
    u32 NewComNumber;
    HCOMDB ComDbHandle; // null until opened
    HKEY DeviceKey;     // open for the whole rename
    HKEY SerialCommKey; // open during the scan only
    WCHAR OldComName[RemapTextCapacity];
    WCHAR NewComName[RemapTextCapacity];
    WCHAR Buffer1[RemapTextCapacity]; // first the DOS device's target path, later the friendly name
    WCHAR Buffer2[RemapTextCapacity]; // spare
};

DWORD TextBytes(const WCHAR* text) {
    return static_cast<DWORD>((lstrlenW(text) + 1) * sizeof(WCHAR));
}

bool QueryOldTarget(Remap* remap) {
    return QueryDosDeviceW(remap->OldComName, remap->Buffer1, RemapTextCapacity - 1) != 0;
}

// Moves the DOS name, which exists, to the new name. Returns 0 or StatusNoDosName.
u32 MoveDosName(Remap* remap) {
    if (!QueryOldTarget(remap)) {
        TraceOut("%s - this shouldn't happen, QueryDosDevice fail, GetLastError():%d\n", TraceOperation(),
                 GetLastError());
        return StatusNoDosName;
    }
    TraceOut("%s - Remap->OldComName:%ws, Remap->Buffer1:%ws\n", TraceOperation(), remap->OldComName,
             remap->Buffer1);
    // Where the removal fails the rename goes on: the port then answers to both names until the next start.
    const BOOL bRemoved = DefineDosDeviceW(DDD_REMOVE_DEFINITION, remap->OldComName, nullptr);
    TraceOut("%s - DefineDosDevice, bRemoved:%d, OldComName:%ws, Buffer1:%ws, GetLastError():%d\n",
             TraceOperation(), bRemoved, remap->OldComName, remap->Buffer1, GetLastError());
    if (!DefineDosDeviceW(DDD_RAW_TARGET_PATH, remap->NewComName, remap->Buffer1)) {
        TraceOut("%s - DefineDosDevice fail, Remap->NewComName:%ws, Remap->Buffer1:%ws, GetLastError():%d\n",
                 TraceOperation(), remap->NewComName, remap->Buffer1, GetLastError());
        // A name whose removal failed is still there, and defining it again would put a second definition
        // over it. Where the old name can't be defined either, the port has no DOS name until its driver
        // makes one at the next start.
        if (bRemoved) {
            DefineDosDeviceW(DDD_RAW_TARGET_PATH, remap->OldComName, remap->Buffer1);
        }
        return StatusNoDosName;
    }
    return 0;
}

// Writes the new name into the first value of the serial device map that holds the old one. A value that
// doesn't fit the buffers ends the scan. If the map stays as it was, it lists the old name until the driver
// makes it anew at the next start, with the name in the device key.
void RenameInSerialMap(Remap* remap, DWORD dwNewComNameLen) {
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, TEXT("Hardware\\DeviceMap\\SerialComm"), 0, KEY_READ | KEY_WRITE,
                      &remap->SerialCommKey) != ERROR_SUCCESS) {
        return;
    }
    WCHAR name[RemapTextCapacity];
    WCHAR data[RemapTextCapacity + 1]; // one more for the terminator that a stored text may lack
    for (DWORD index = 0;; ++index) {
        DWORD nameCapacity = RemapTextCapacity;
        DWORD bytes = RemapTextCapacity * sizeof(WCHAR);
        DWORD type = REG_NONE;
        if (RegEnumValueW(remap->SerialCommKey, index, name, &nameCapacity, nullptr, &type,
                          reinterpret_cast<BYTE*>(data), &bytes) != ERROR_SUCCESS) {
            break;
        }
        data[bytes / sizeof(WCHAR)] = 0;
        if (type == REG_SZ && SameText(data, remap->OldComName)) { // com5 is not COM5
            RegSetValueExW(remap->SerialCommKey, name, 0, REG_SZ,
                           reinterpret_cast<const BYTE*>(remap->NewComName), dwNewComNameLen);
            break;
        }
    }
    RegCloseKey(remap->SerialCommKey);
}

// The old number is free before the new one is claimed. The claim is forced: the caller has asked whether the
// number may be taken. A refused claim leaves the number free in the database although the port has it; a
// refused release leaves the old one claimed by no port, until someone frees it.
void RenameInDatabase(Remap* remap) {
    if (remap->ComDbHandle != nullptr && remap->ComDbHandle != INVALID_HANDLE_VALUE) {
        ComDBReleasePort(remap->ComDbHandle, remap->OldComNumber);
        ComDBClaimPort(remap->ComDbHandle, remap->NewComNumber, TRUE, nullptr);
    }
}

// The name is only shown, so one that can't be read or written costs nothing but its text.
void WriteFriendlyName(Remap* remap) {
    // One unit more than is asked for, so that a description without its terminator gets one.
    WCHAR description[DescriptionCapacity + 1] = {};
    if (SetupDiGetDeviceRegistryPropertyW(remap->DeviceInfoSet, remap->DeviceInfoData, SPDRP_DEVICEDESC,
                                          nullptr, reinterpret_cast<BYTE*>(description),
                                          DescriptionCapacity * sizeof(WCHAR), nullptr) == 1) {
        FormatText(remap->Buffer1, RemapTextCapacity, TEXT("%ws (%ws)"), description, remap->NewComName);
    } else {
        CopyText(remap->Buffer1, RemapTextCapacity, remap->NewComName);
    }
    TraceOut("%s - friendly name:%ws\n", TraceOperation(), remap->Buffer1);
    SetupDiSetDeviceRegistryPropertyW(remap->DeviceInfoSet, remap->DeviceInfoData, SPDRP_FRIENDLYNAME,
                                      reinterpret_cast<const BYTE*>(remap->Buffer1),
                                      TextBytes(remap->Buffer1));
}

// Runs the steps that need the device key and the database open. Returns 0 or StatusNoDosName.
u32 RenameEverywhere(Remap* remap) {
    TraceOut("%s - ARRAYSIZE(Remap->OldComName):%I64d\n", TraceOperation(), ARRAYSIZE(remap->OldComName));
    FormatText(remap->OldComName, RemapTextCapacity, TEXT("COM%d"), remap->OldComNumber);
    // A port that isn't started has no DOS name. Its driver makes one from `PortName` at the next start, so
    // the rename goes on in the other places.
    const bool dosNameExists = QueryOldTarget(remap);
    if (!dosNameExists) {
        TraceOut("%s - QueryDosDevice 1 fail, GetLastError():%d\n", TraceOperation(), GetLastError());
    }
    TraceOut("%s - Remap->OldComName:%ws, Remap->Buffer1:%ws\n", TraceOperation(), remap->OldComName,
             remap->Buffer1);
    FormatText(remap->NewComName, RemapTextCapacity, TEXT("COM%d"), remap->NewComNumber);
    const DWORD dwNewComNameLen = TextBytes(remap->NewComName);
    TraceOut("%s - Remap->NewComName:%ws, dwNewComNameLen:%d\n", TraceOperation(), remap->NewComName,
             dwNewComNameLen);

    const u32 sStatus = dosNameExists ? MoveDosName(remap) : 0;
    if (sStatus != 0) {
        return sStatus;
    }
    // A port with a DOS name answers to the new one from here on, so each step runs whatever the one before
    // it reported: a place that can't be changed keeps the old number, and going back would leave more places
    // wrong.
    RenameInSerialMap(remap, dwNewComNameLen);
    RenameInDatabase(remap);
    WriteFriendlyName(remap);
    RegSetValueExW(remap->DeviceKey, TEXT("PortName"), 0, REG_SZ,
                   reinterpret_cast<const BYTE*>(remap->NewComName), dwNewComNameLen);
    return 0;
}

u32 _EnactComNameChanges(Remap* remap) {
    TraceScope trace;
    remap->DeviceKey = OpenDeviceKey(remap->DeviceInfoSet, remap->DeviceInfoData);
    if (remap->DeviceKey == INVALID_HANDLE_VALUE) {
        return trace.Status(StatusNoKey);
    }
    u32 sStatus = StatusNoDatabase;
    if (ComDBOpen(&remap->ComDbHandle) == ERROR_SUCCESS) {
        sStatus = RenameEverywhere(remap);
    } else {
        TraceOut("%s - ComDBOpen fail, GetLastError():%d\n", __func__, GetLastError());
    }
    // An opening that failed may have left a handle all the same.
    if (remap->ComDbHandle != nullptr) {
        ComDBClose(remap->ComDbHandle);
    }
    RegCloseKey(remap->DeviceKey);
    return trace.Status(sStatus);
}

} // namespace

u32 Kavro_COMPortDoRemap(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData, u32 oldNumber,
                         u32 newNumber) {
    TraceScope trace;
    auto* remap = static_cast<Remap*>(LocalAlloc(LPTR, sizeof(Remap)));
    if (remap == nullptr) {
        return trace.Status(StatusNoMemory);
    }
    remap->DeviceInfoSet = DeviceInfoSet;
    remap->DeviceInfoData = DeviceInfoData;
    remap->OldComNumber = oldNumber;
    remap->NewComNumber = newNumber;
    const u32 sStatus = _EnactComNameChanges(remap);
    LocalFree(remap);
    return trace.Status(sStatus);
}
