// Replaces the system's own library, which lacks software devices in Wine: a device has the keys that an
// installed one has, and its interfaces are present until it is closed. The process that loads this also gets
// what else Wine lacks: the stand-ins of system.cpp, in the program and in the library of the pages. A call
// that KVR_FAULT names fails or ends the process: "SwDeviceCreate 3", "SwDeviceCreate 3 ends",
// "SwDeviceCreate 3 ends after".
#include "platform/platform.h"

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "check/windows/software_device_api.h"
#include "host/worlds/windows/import_table.h"
#include "tests/windows/wine/faults.h"
#include "tests/windows/wine/standins.h"

namespace {

struct Device {
    std::wstring id;
    HDEVINFO set = SetupDiCreateDeviceInfoList(nullptr, nullptr);
    SP_DEVINFO_DATA data{};
    std::vector<std::wstring> links; // the keys that make its interfaces present
};

void SetLinked(const std::wstring& key, DWORD linked) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), L"Linked", REG_DWORD, &linked, sizeof linked);
}

// The library of the pages is attached to when there is a device for it.
void StandInForLibrary() {
    static HMODULE known = nullptr;
    const HMODULE library = GetModuleHandleW(L"kvrpagex64.dll");
    if (library != known) {
        known = library;
        host::StandIn(library);
    }
}

} // namespace

extern "C" {

HRESULT WINAPI SwDeviceCreate(PCWSTR enumerator, PCWSTR, const SW_DEVICE_CREATE_INFO* info, ULONG,
                              const void*, SW_DEVICE_CREATE_CALLBACK callback, void* context,
                              HSWDEVICE* handle) {
    StandInForLibrary();
    auto* const device = new Device;
    device->id = std::wstring(L"SWD\\") + enumerator + L'\\' + info->pszInstanceId;
    device->data.cbSize = sizeof device->data;
    const GUID no_class{};
    if (!SetupDiOpenDeviceInfoW(device->set, device->id.c_str(), nullptr, 0, &device->data) &&
        (!SetupDiCreateDeviceInfoW(device->set, device->id.c_str(), &no_class, info->pszDeviceDescription,
                                   nullptr, 0, &device->data) ||
         !SetupDiRegisterDeviceInfo(device->set, &device->data, 0, nullptr, nullptr, nullptr))) {
        return HRESULT_FROM_WIN32(GetLastError());
    }
    *handle = reinterpret_cast<HSWDEVICE>(device);
    // Windows answers from a thread of its own, at any time. On a busy machine Wine did not start one for a
    // minute.
    callback(*handle, S_OK, context, device->id.c_str());
    return S_OK;
}

HRESULT WINAPI SwDeviceInterfaceRegister(HSWDEVICE handle, const GUID* interface_class, PCWSTR reference,
                                         ULONG, const void*, BOOL enabled, PWSTR*) {
    auto* const device = reinterpret_cast<Device*>(handle);
    SP_DEVICE_INTERFACE_DATA one{};
    one.cbSize = sizeof one;
    if (!SetupDiCreateDeviceInterfaceW(device->set, &device->data, interface_class, reference, 0, &one)) {
        return HRESULT_FROM_WIN32(GetLastError());
    }
    WCHAR guid[64];
    StringFromGUID2(*interface_class, guid, ARRAYSIZE(guid));
    std::wstring path = device->id;
    for (WCHAR& letter : path) {
        letter = letter == L'\\' ? L'#' : letter;
    }
    device->links.push_back(L"SYSTEM\\CurrentControlSet\\Control\\DeviceClasses\\" + std::wstring(guid) +
                            L"\\##?#" + path + L'#' + guid + L"\\#\\Control");
    SetLinked(device->links.back(), enabled);
    return S_OK;
}

void WINAPI SwDeviceClose(HSWDEVICE handle) {
    auto* const device = reinterpret_cast<Device*>(handle);
    for (const std::wstring& link : device->links) {
        SetLinked(link, 0);
    }
    SetupDiDestroyDeviceInfoList(device->set);
    delete device;
}

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) {
        host::StandIn(GetModuleHandleW(nullptr));
        const char* const fault = std::getenv("KVR_FAULT");
        std::istringstream words(fault != nullptr ? fault : "");
        std::string operation, ends, after;
        int call = 0;
        if (words >> operation >> call) {
            words >> ends >> after;
            host::FailCall(operation, call,
                           ends.empty()    ? host::Fate::Fails
                           : after.empty() ? host::Fate::EndsBefore
                                           : host::Fate::EndsAfter);
        }
    }
    return TRUE;
}

} // extern "C"
