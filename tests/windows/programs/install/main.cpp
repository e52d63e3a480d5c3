// Installs a driver package for the devices that have a hardware id, as an installer or `devcon update` does.
//
//     kvrinstall INF HARDWARE-ID
#include <windows.h>

#include <newdev.h>

#include <cstdio>

int wmain(int argc, WCHAR** argv) {
    if (argc != 3) {
        return 2;
    }
    BOOL restart = FALSE;
    if (!UpdateDriverForPlugAndPlayDevicesW(nullptr, argv[2], argv[1], INSTALLFLAG_FORCE, &restart)) {
        std::printf("error %lu\n", GetLastError());
        return 1;
    }
    return 0;
}
