#include "com_numbers/port_settings_migration.h"

#include "device_model/device_store.h"
#include "reporting/error_reporter.h"
#include "reporting/text_operations.h"
#include "reporting/trace.h"

namespace {

// Units of a settings line, terminator included.
constexpr u32 SettingsLineCapacity = 81;

// The key of a port's line: its name and a colon. The caller frees it; null without memory.
WCHAR* MakeSettingsKey(const WCHAR* portName) {
    const u32 capacity = static_cast<u32>(lstrlenW(portName)) + 2;
    WCHAR* key = static_cast<WCHAR*>(LocalAlloc(LPTR, capacity * sizeof(WCHAR)));
    if (key != nullptr) {
        CopyText(key, capacity, portName);
        AppendText(key, capacity, TEXT(":"));
    }
    return key;
}

// Applications are told while both keys are there.
void MoveSettingsLine(const WCHAR* oldKey, const WCHAR* newKey) {
    WCHAR value[SettingsLineCapacity];
    value[0] = 0;
    GetProfileStringW(TEXT("Ports"), oldKey, TEXT(""), value, ARRAYSIZE(value));
    WriteProfileStringW(TEXT("Ports"), newKey, value[0] != 0 ? value : TEXT("9600,n,8,1"));
    SendNotifyMessageW(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(TEXT("Ports")));
    WriteProfileStringW(TEXT("Ports"), oldKey, nullptr);
}

} // namespace

u32 Kavro_COMPortCheckOpened(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData) {
    TraceOut("----> %s( )\n", __func__);
    const HKEY key = OpenDeviceKey(__func__, DeviceInfoSet, DeviceInfoData);
    if (key == INVALID_HANDLE_VALUE) {
        return StatusNoKey;
    }
    u32 nChlOpened = 0;
    u32 sStatus = 0;
    DWORD bytes = sizeof(nChlOpened);
    const LSTATUS lStatus = RegQueryValueExW(key, TEXT("ChlOpened"), nullptr, nullptr,
                                             reinterpret_cast<BYTE*>(&nChlOpened), &bytes);
    TraceOut("%s - lStatus:%d, nChlOpened:%d\n", __func__, lStatus, nChlOpened);
    if (lStatus != ERROR_SUCCESS) {
        TraceOut("%s - RegQueryValueEx() fail, lStatus:%d, GetLastError:%d\n", __func__, lStatus,
                 GetLastError());
        sStatus = StatusReadFailed;
    } else if (nChlOpened != 0) {
        TraceOut("%s - Chl opened\n", __func__);
        sStatus = StatusPortOpened;
    }
    RegCloseKey(key);
    TraceOut("<---- %s, sStatus:%d\n", __func__, sStatus);
    return sStatus;
}

void Kavro_COMPortBroadcastRemap(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData) {
    TraceOut("----> %s( )\n", __func__);
    SP_DEVINSTALL_PARAMS_W install = {};
    install.cbSize = sizeof(install);
    if (SetupDiGetDeviceInstallParamsW(DeviceInfoSet, DeviceInfoData, &install) == 1) {
        install.Flags |= DI_PROPERTIES_CHANGE;
        SetupDiSetDeviceInstallParamsW(DeviceInfoSet, DeviceInfoData, &install);
    }
    SP_PROPCHANGE_PARAMS change = {};
    change.ClassInstallHeader.cbSize = sizeof(change.ClassInstallHeader);
    change.ClassInstallHeader.InstallFunction = DIF_PROPERTYCHANGE;
    change.StateChange = DICS_PROPCHANGE;
    change.Scope = DICS_FLAG_GLOBAL;
    if (!SetupDiSetClassInstallParamsW(DeviceInfoSet, DeviceInfoData, &change.ClassInstallHeader,
                                       sizeof(change))) {
        TraceOut("%s - SetupDiSetClassInstallParams fail, GetLastError:%d\n", __func__, GetLastError());
    }
    if (!SetupDiCallClassInstaller(DIF_PROPERTYCHANGE, DeviceInfoSet, DeviceInfoData)) {
        TraceOut("%s - SetupDiCallClassInstaller fail, GetLastError:%d, ERROR_IN_WOW64:%d\n", __func__,
                 GetLastError(), ERROR_IN_WOW64);
    }
    TraceOut("<---- %s\n", __func__);
}

void Kavro_COMPortMigratePortSettings(const WCHAR* oldName, const WCHAR* newName) {
    TraceOut("----> %s( )\n", __func__);
    WCHAR* oldKey = MakeSettingsKey(oldName);
    if (oldKey != nullptr) {
        WCHAR* newKey = MakeSettingsKey(newName);
        if (newKey != nullptr) {
            MoveSettingsLine(oldKey, newKey);
        }
        LocalFree(oldKey);
        if (newKey != nullptr) {
            LocalFree(newKey);
        }
    }
    TraceOut("<---- %s\n", __func__);
}
