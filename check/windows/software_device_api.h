// The software devices of Windows 8 and later, under Windows' names. The headers of this build lack them.
#pragma once

#include <windows.h>

DECLARE_HANDLE(HSWDEVICE);

struct SW_DEVICE_CREATE_INFO {
    ULONG cbSize;
    PCWSTR pszInstanceId;
    PCWSTR pszzHardwareIds;
    PCWSTR pszzCompatibleIds;
    const GUID* pContainerId;
    ULONG CapabilityFlags;
    PCWSTR pszDeviceDescription;
    PCWSTR pszDeviceLocation;
    const SECURITY_DESCRIPTOR* pSecurityDescriptor;
};
static_assert(sizeof(SW_DEVICE_CREATE_INFO) == 72);

inline constexpr ULONG SWDeviceCapabilitiesSilentInstall = 2, SWDeviceCapabilitiesNoDisplayInUI = 4;

// Called once, from a thread of the system, when the device has been taken up or refused.
using SW_DEVICE_CREATE_CALLBACK = void(WINAPI*)(HSWDEVICE device, HRESULT result, void* context,
                                                PCWSTR instance_id);

extern "C" {
HRESULT WINAPI SwDeviceCreate(PCWSTR enumerator, PCWSTR parent, const SW_DEVICE_CREATE_INFO* info,
                              ULONG property_count, const void* properties,
                              SW_DEVICE_CREATE_CALLBACK callback, void* context, HSWDEVICE* device);
HRESULT WINAPI SwDeviceInterfaceRegister(HSWDEVICE device, const GUID* interface_class, PCWSTR reference,
                                         ULONG property_count, const void* properties, BOOL enabled,
                                         PWSTR* interface_id);
void WINAPI SwDeviceClose(HSWDEVICE device);
}
