// Device information sets: the interfaces of a class, and the one device of a provider's request.
#include <algorithm>
#include <cstddef>
#include <utility>

#include "simulated/stage.h"

namespace {

struct Set {
    std::optional<GUID> interface_class;
    std::vector<std::size_t> interfaces;
    std::optional<std::size_t> device; // the device of a provider's request
};
sim::Handles<HDEVINFO, Set> sets("set");

// A member carries its set's handle, so that it is valid for this set only.
ULONG_PTR TagOf(HDEVINFO set) {
    return reinterpret_cast<ULONG_PTR>(set);
}

void FillDevice(HDEVINFO set, std::size_t device, SP_DEVINFO_DATA& data) {
    data = {sizeof data, sim::Current().devices[device].class_guid.value_or(GUID{}),
            static_cast<DWORD>(device + 1), TagOf(set)};
}

// An interface also carries its place in the set, counted from 1.
void FillInterface(HDEVINFO set, std::size_t place, const GUID& interface_class,
                   SP_DEVICE_INTERFACE_DATA& data) {
    data = {sizeof data, interface_class, SPINT_ACTIVE, TagOf(set) << 32 | (place + 1)};
}

const sim::Interface* InterfaceOf(HDEVINFO handle, const Set& set, const SP_DEVICE_INTERFACE_DATA* data,
                                  std::string_view operation) {
    if (!sim::HasItsSize(data, operation)) {
        return nullptr;
    }
    const std::size_t place = (data->Reserved & 0xFFFFFFFF) - 1;
    if (data->Reserved >> 32 != TagOf(handle) || place >= set.interfaces.size()) {
        sim::Misuse(std::string(operation) + ": an interface that is not of this set");
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    return &sim::Current().interfaces[set.interfaces[place]];
}

} // namespace

HDEVINFO sim::OpenDeviceSet(std::size_t device, SP_DEVINFO_DATA& data) {
    const HDEVINFO set = sets.Open({std::nullopt, {}, device});
    FillDevice(set, device, data);
    return set;
}

sim::Device* sim::DeviceOf(HDEVINFO set, const SP_DEVINFO_DATA* data, std::string_view operation) {
    if (sets.Find(set, operation) == nullptr) {
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    if (!HasItsSize(data, operation)) {
        return nullptr;
    }
    auto& devices = Current().devices;
    if (data->Reserved != TagOf(set) || data->DevInst - 1 >= devices.size()) {
        Misuse(std::string(operation) + ": a device that is not of this set");
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    return &devices[data->DevInst - 1];
}

HDEVINFO SetupDiGetClassDevsW(const GUID* interfaceClass, LPCWSTR enumerator, HWND, DWORD flags) {
    if (sim::Operation(sim::Reach::Read, __func__)) {
        SetLastError(ERROR_GEN_FAILURE);
        return INVALID_HANDLE_VALUE;
    }
    if (interfaceClass == nullptr || enumerator != nullptr ||
        flags != (DIGCF_PRESENT | DIGCF_DEVICEINTERFACE)) {
        sim::Misuse("SetupDiGetClassDevsW: only the present interfaces of a class are simulated");
        SetLastError(ERROR_INVALID_PARAMETER);
        return INVALID_HANDLE_VALUE;
    }
    Set set{*interfaceClass, {}, std::nullopt};
    const auto& interfaces = sim::Current().interfaces;
    for (std::size_t i = 0; i < interfaces.size(); ++i) {
        if (interfaces[i].linked && interfaces[i].class_guid == *interfaceClass) {
            set.interfaces.push_back(i);
        }
    }
    return sets.Open(std::move(set));
}

BOOL SetupDiDestroyDeviceInfoList(HDEVINFO set) {
    const bool fails = sim::Operation(sim::Reach::Read, __func__);
    if (set == INVALID_HANDLE_VALUE || !sets.Close(set, __func__)) {
        return sim::Fail(ERROR_INVALID_HANDLE);
    }
    return fails ? sim::Fail(ERROR_GEN_FAILURE) : TRUE;
}

BOOL SetupDiEnumDeviceInterfaces(HDEVINFO handle, SP_DEVINFO_DATA* device, const GUID* interfaceClass,
                                 DWORD index, SP_DEVICE_INTERFACE_DATA* interfaceData) {
    const Set* set = sets.Find(handle, __func__);
    if (sim::Operation(sim::Reach::Read, __func__, [&] { return std::to_string(index); })) {
        return sim::Fail(ERROR_GEN_FAILURE);
    }
    if (set == nullptr) {
        return sim::Fail(ERROR_INVALID_HANDLE);
    }
    if (device != nullptr) {
        sim::Misuse("SetupDiEnumDeviceInterfaces: only the interfaces of all devices are simulated");
        return sim::Fail(ERROR_INVALID_PARAMETER);
    }
    if (!sim::HasItsSize(interfaceData, __func__)) {
        return FALSE;
    }
    if (set->interface_class != *interfaceClass || index >= set->interfaces.size()) {
        return sim::Fail(ERROR_NO_MORE_ITEMS);
    }
    FillInterface(handle, index, *interfaceClass, *interfaceData);
    return TRUE;
}

BOOL SetupDiGetDeviceInterfaceDetailW(HDEVINFO handle, SP_DEVICE_INTERFACE_DATA* interfaceData,
                                      SP_DEVICE_INTERFACE_DETAIL_DATA_W* detail, DWORD bytes, LPDWORD needed,
                                      SP_DEVINFO_DATA* device) {
    const Set* set = sets.Find(handle, __func__);
    const sim::Interface* found =
        set != nullptr ? InterfaceOf(handle, *set, interfaceData, __func__) : nullptr;
    if (sim::Operation(sim::Reach::Read, __func__,
                       [&] { return found != nullptr ? sim::ToUtf8(found->path) : "?"; })) {
        return sim::Fail(ERROR_GEN_FAILURE);
    }
    if (set == nullptr) {
        return sim::Fail(ERROR_INVALID_HANDLE);
    }
    if (found == nullptr || (detail != nullptr && !sim::HasItsSize(detail, __func__)) ||
        (device != nullptr && !sim::HasItsSize(device, __func__))) {
        return FALSE;
    }
    if (detail == nullptr && bytes != 0) {
        sim::Misuse("SetupDiGetDeviceInterfaceDetailW: a size without a buffer");
        return sim::Fail(ERROR_INVALID_USER_BUFFER);
    }
    const std::vector<BYTE> path = sim::BytesOf(found->path);
    const auto size =
        static_cast<DWORD>(offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_W, DevicePath) + path.size());
    if (needed != nullptr) {
        *needed = size;
    }
    if (detail == nullptr || bytes < size) {
        return sim::Fail(ERROR_INSUFFICIENT_BUFFER);
    }
    std::ranges::copy(path, reinterpret_cast<BYTE*>(detail) +
                                offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_W, DevicePath));
    if (device != nullptr) {
        FillDevice(handle, found->device, *device);
    }
    return TRUE;
}

BOOL SetupDiGetDeviceInfoListDetailW(HDEVINFO handle, SP_DEVINFO_LIST_DETAIL_DATA_W* detail) {
    const Set* set = sets.Find(handle, __func__);
    if (sim::Operation(sim::Reach::Read, __func__)) {
        return sim::Fail(ERROR_GEN_FAILURE);
    }
    if (set == nullptr) {
        return sim::Fail(ERROR_INVALID_HANDLE);
    }
    if (!sim::HasItsSize(detail, __func__)) {
        return FALSE;
    }
    *detail = {};
    detail->cbSize = sizeof *detail;
    if (set->device) {
        const sim::Device& device = sim::Current().devices[*set->device];
        detail->ClassGuid = device.class_guid.value_or(GUID{});
        if (device.remote) {
            // Any value but null means that the set is remote.
            detail->RemoteMachineHandle = handle;
            sim::Text(u"\\\\REMOTE").copy(detail->RemoteMachineName, SP_MAX_MACHINENAME_LENGTH - 1);
        }
    }
    return TRUE;
}
