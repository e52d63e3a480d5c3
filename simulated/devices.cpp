// Operations on one device of a set: its hardware key, install parameters, class installer and
// properties.
#include <algorithm>
#include <cstdio>
#include <iterator>

#include "simulated/stage.h"

namespace {

// The common start of every call on a device: null, with the last error set, if the call must fail. In the
// journal the detail follows the instance id.
template <class Detail>
sim::Device* Enter(sim::Reach reach, std::string_view operation, HDEVINFO set, const SP_DEVINFO_DATA* data,
                   const Detail& detail) {
    sim::Device* device = sim::DeviceOf(set, data, operation);
    if (sim::Operation(reach, operation,
                       [&] { return (device ? sim::ToUtf8(device->instance_id) : "?") + detail(); })) {
        SetLastError(ERROR_GEN_FAILURE);
        return nullptr;
    }
    return device;
}

std::string FunctionName(DI_FUNCTION function) {
    return function == DIF_PROPERTYCHANGE ? " DIF_PROPERTYCHANGE" : " function " + std::to_string(function);
}

struct Property {
    DWORD number;
    const char* name;
    std::optional<sim::Text> sim::Device::*text;
};
constexpr Property properties[] = {
    {SPDRP_DEVICEDESC, "description", &sim::Device::description},
    {SPDRP_FRIENDLYNAME, "friendly name", &sim::Device::friendly_name},
};

const Property* FindProperty(DWORD number) {
    const auto* property = std::ranges::find(properties, number, &Property::number);
    return property == std::end(properties) ? nullptr : property;
}

std::string PropertyName(const Property* property) {
    return property != nullptr ? property->name : "unknown property";
}

} // namespace

HKEY SetupDiOpenDevRegKey(HDEVINFO set, SP_DEVINFO_DATA* data, DWORD scope, DWORD profile, DWORD keyType,
                          REGSAM access) {
    const auto fail = [](DWORD error) {
        SetLastError(error);
        return static_cast<HKEY>(INVALID_HANDLE_VALUE);
    };
    const sim::Device* device = Enter(sim::Reach::Read, __func__, set, data, [] { return ""; });
    if (device == nullptr) {
        return fail(GetLastError());
    }
    if (scope != DICS_FLAG_GLOBAL || profile != 0 || keyType != DIREG_DEV) {
        sim::Misuse("SetupDiOpenDevRegKey: only the global hardware key is simulated");
        return fail(ERROR_INVALID_PARAMETER);
    }
    if (!device->has_key) {
        return fail(ERROR_KEY_DOES_NOT_EXIST);
    }
    if (device->access_denied && access == KEY_ALL_ACCESS) {
        return fail(ERROR_ACCESS_DENIED);
    }
    return sim::OpenDeviceKey(data->DevInst - 1, access);
}

BOOL SetupDiGetDeviceInstallParamsW(HDEVINFO set, SP_DEVINFO_DATA* data, SP_DEVINSTALL_PARAMS_W* params) {
    const sim::Device* device = Enter(sim::Reach::Read, __func__, set, data, [] { return ""; });
    if (device == nullptr || !sim::HasItsSize(params, __func__)) {
        return FALSE;
    }
    *params = {};
    params->cbSize = sizeof *params;
    params->Flags = device->install_flags;
    return TRUE;
}

BOOL SetupDiSetDeviceInstallParamsW(HDEVINFO set, SP_DEVINFO_DATA* data, SP_DEVINSTALL_PARAMS_W* params) {
    sim::Device* device = Enter(sim::Reach::Write, __func__, set, data, [&] {
        char flags[20];
        std::snprintf(flags, sizeof flags, " flags 0x%08X", params->Flags);
        return std::string(flags);
    });
    if (device == nullptr || !sim::HasItsSize(params, __func__)) {
        return FALSE;
    }
    device->install_flags = params->Flags;
    return TRUE;
}

BOOL SetupDiSetClassInstallParamsW(HDEVINFO set, SP_DEVINFO_DATA* data, SP_CLASSINSTALL_HEADER* params,
                                   DWORD bytes) {
    const sim::Device* device =
        Enter(sim::Reach::Write, __func__, set, data, [&] { return FunctionName(params->InstallFunction); });
    if (device == nullptr || !sim::HasItsSize(params, __func__)) {
        return FALSE;
    }
    // The only change that the logic asks for: the device's properties have changed, in all hardware
    // profiles.
    const auto* const change = reinterpret_cast<const SP_PROPCHANGE_PARAMS*>(params);
    if (params->InstallFunction != DIF_PROPERTYCHANGE || bytes != sizeof *change ||
        change->StateChange != DICS_PROPCHANGE || change->Scope != DICS_FLAG_GLOBAL ||
        change->HwProfile != 0) {
        sim::Misuse("SetupDiSetClassInstallParamsW: not the parameters of a property change");
        return sim::Fail(ERROR_INVALID_PARAMETER);
    }
    return TRUE;
}

BOOL SetupDiCallClassInstaller(DI_FUNCTION function, HDEVINFO set, SP_DEVINFO_DATA* data) {
    const sim::Device* device =
        Enter(sim::Reach::Write, __func__, set, data, [&] { return FunctionName(function); });
    if (device == nullptr) {
        return FALSE;
    }
    if (function != DIF_PROPERTYCHANGE) {
        sim::Misuse("SetupDiCallClassInstaller: not a property change");
        return sim::Fail(ERROR_INVALID_PARAMETER);
    }
    return TRUE;
}

BOOL SetupDiGetDeviceRegistryPropertyW(HDEVINFO set, SP_DEVINFO_DATA* data, DWORD number, LPDWORD type,
                                       BYTE* buffer, DWORD bytes, LPDWORD needed) {
    const Property* property = FindProperty(number);
    const sim::Device* device =
        Enter(sim::Reach::Read, __func__, set, data, [&] { return " " + PropertyName(property); });
    if (device == nullptr) {
        return FALSE;
    }
    if (property == nullptr) {
        return sim::Fail(ERROR_INVALID_REG_PROPERTY);
    }
    const std::optional<sim::Text>& text = device->*property->text;
    if (!text) {
        return sim::Fail(ERROR_INVALID_DATA);
    }
    const std::vector<BYTE> stored = sim::BytesOf(*text);
    if (type != nullptr) {
        *type = REG_SZ;
    }
    if (needed != nullptr) {
        *needed = static_cast<DWORD>(stored.size());
    }
    if (buffer == nullptr || bytes < stored.size()) {
        return sim::Fail(ERROR_INSUFFICIENT_BUFFER);
    }
    std::ranges::copy(stored, buffer);
    return TRUE;
}

BOOL SetupDiSetDeviceRegistryPropertyW(HDEVINFO set, SP_DEVINFO_DATA* data, DWORD number, const BYTE* buffer,
                                       DWORD bytes) {
    const Property* property = FindProperty(number);
    const sim::Text text = TextIn({buffer, bytes});
    sim::Device* device = Enter(sim::Reach::Write, __func__, set, data,
                                [&] { return " " + PropertyName(property) + " = " + sim::Quoted(text); });
    if (device == nullptr) {
        return FALSE;
    }
    if (property == nullptr) {
        return sim::Fail(ERROR_INVALID_REG_PROPERTY);
    }
    sim::ExpectItsTerminator({buffer, bytes}, __func__);
    device->*property->text = text;
    return TRUE;
}
