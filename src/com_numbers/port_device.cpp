#include "com_numbers/port_device.h"

#include "device_model/device_store.h"
#include "reporting/statuses.h"
#include "reporting/trace.h"

u32 Kavro_COMPortCheckOpened(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData) {
    TraceScope trace;
    const HKEY key = OpenDeviceKey(DeviceInfoSet, DeviceInfoData);
    if (key == INVALID_HANDLE_VALUE) {
        return trace.Status(StatusNoKey);
    }
    u32 nChlOpened = 0;
    DWORD bytes = sizeof(nChlOpened);
    const LSTATUS lStatus = RegQueryValueExW(key, TEXT("ChlOpened"), nullptr, nullptr,
                                             reinterpret_cast<BYTE*>(&nChlOpened), &bytes);
    TraceOut("%s - lStatus:%d, nChlOpened:%d\n", __func__, lStatus, nChlOpened);
    u32 sStatus = 0;
    if (lStatus != ERROR_SUCCESS) {
        TraceOut("%s - RegQueryValueEx() fail, lStatus:%d, GetLastError:%d\n", __func__, lStatus,
                 GetLastError());
        sStatus = StatusReadFailed;
    } else if (nChlOpened != 0) {
        TraceOut("%s - Chl opened\n", __func__);
        sStatus = StatusPortOpened;
    }
    RegCloseKey(key);
    return trace.Status(sStatus);
}

void Kavro_COMPortBroadcastRemap(HDEVINFO DeviceInfoSet, SP_DEVINFO_DATA* DeviceInfoData) {
    TraceScope trace;
    SP_DEVINSTALL_PARAMS_W install = {};
    install.cbSize = sizeof(install);
    // The flag tells the device manager that what it shows of the device has changed. Without it the old name
    // is shown until the devices are listed again.
    if (SetupDiGetDeviceInstallParamsW(DeviceInfoSet, DeviceInfoData, &install) == 1) {
        install.Flags |= DI_PROPERTIES_CHANGE;
        SetupDiSetDeviceInstallParamsW(DeviceInfoSet, DeviceInfoData, &install);
    }
    // If the parameters are refused, the class installer runs with those that it has; if it fails, the device
    // adopts its number when it next starts. The port has the number in either case.
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
}
