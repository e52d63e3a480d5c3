// Installs a driver's INF for a device by its hardware id, as the device manager does when a person points it
// to the driver's folder.
//
//     kvrinstall INF DEVICE
#include <cstdio>

#include "platform/platform.h"

namespace {

bool Install(LPCWSTR inf, HDEVINFO set, SP_DEVINFO_DATA& data) {
    SP_DEVINSTALL_PARAMS_W parameters{};
    parameters.cbSize = sizeof parameters;
    if (!SetupDiGetDeviceInstallParamsW(set, &data, &parameters)) {
        return false;
    }
    // Only this file, for a device that no bus has to start.
    parameters.Flags |= DI_ENUMSINGLEINF | DI_QUIETINSTALL | DI_DONOTCALLCONFIGMG;
    lstrcpynW(parameters.DriverPath, inf, ARRAYSIZE(parameters.DriverPath));
    return SetupDiSetDeviceInstallParamsW(set, &data, &parameters) &&
           SetupDiBuildDriverInfoList(set, &data, SPDIT_COMPATDRIVER) &&
           SetupDiSelectBestCompatDrv(set, &data) && SetupDiInstallDevice(set, &data);
}

} // namespace

int wmain(int argc, WCHAR** argv) {
    if (argc != 3) {
        return 2;
    }
    const HDEVINFO set = SetupDiCreateDeviceInfoList(nullptr, nullptr);
    SP_DEVINFO_DATA data{};
    data.cbSize = sizeof data;
    const bool installed =
        SetupDiOpenDeviceInfoW(set, argv[2], nullptr, 0, &data) && Install(argv[1], set, data);
    if (!installed) {
        std::printf("error %lu\n", GetLastError());
    }
    SetupDiDestroyDeviceInfoList(set);
    return installed ? 0 : 1;
}
