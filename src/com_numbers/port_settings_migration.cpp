#include "com_numbers/port_settings_migration.h"

#include "com_numbers/ports_section.h"
#include "device_model/device_store.h"
#include "reporting/error_reporter.h"
#include "reporting/trace.h"

namespace {

// The caller frees the key; null without memory.
WCHAR* AllocateSettingsKey(const WCHAR* portName) {
    const u32 capacity = static_cast<u32>(lstrlenW(portName)) + 2;
    WCHAR* key = static_cast<WCHAR*>(LocalAlloc(LPTR, capacity * sizeof(WCHAR)));
    if (key != nullptr) {
        MakeSettingsKey(key, capacity, portName);
    }
    return key;
}

// Applications are told while both keys are there.
void MoveSettingsLine(const WCHAR* oldKey, const WCHAR* newKey) {
    WCHAR value[SettingsLineCapacity];
    value[0] = 0;
    GetProfileStringW(PortsSection, oldKey, TEXT(""), value, ARRAYSIZE(value));
    WriteProfileStringW(PortsSection, newKey, value[0] != 0 ? value : DefaultSettingsLine);
    SendNotifyMessageW(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(PortsSection));
    WriteProfileStringW(PortsSection, oldKey, nullptr);
}

// 0, StatusPortOpened or StatusReadFailed.
u32 ReadOpened(const char* function, HKEY key) {
    u32 nChlOpened = 0;
    DWORD bytes = sizeof(nChlOpened);
    const LSTATUS lStatus = RegQueryValueExW(key, TEXT("ChlOpened"), nullptr, nullptr,
                                             reinterpret_cast<BYTE*>(&nChlOpened), &bytes);
    TraceOut("%s - lStatus:%d, nChlOpened:%d\n", function, lStatus, nChlOpened);
    if (lStatus != ERROR_SUCCESS) {
        TraceOut("%s - RegQueryValueEx() fail, lStatus:%d, GetLastError:%d\n", function, lStatus,
                 GetLastError());
        return StatusReadFailed;
    }
    if (nChlOpened != 0) {
        TraceOut("%s - Chl opened\n", function);
        return StatusPortOpened;
    }
    return 0;
}

} // namespace

u32 Kavro_COMPortCheckOpened(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData) {
    TraceOut("----> %s( )\n", __func__);
    u32 sStatus = StatusNoKey;
    const HKEY key = OpenDeviceKey(__func__, DeviceInfoSet, DeviceInfoData);
    if (key != INVALID_HANDLE_VALUE) {
        sStatus = ReadOpened(__func__, key);
        RegCloseKey(key);
    }
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
    WCHAR* oldKey = AllocateSettingsKey(oldName);
    if (oldKey != nullptr) {
        WCHAR* newKey = AllocateSettingsKey(newName);
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
