// Registry keys: the hardware keys of devices and the serial device map.
#include <algorithm>
#include <utility>

#include "simulated/stage.h"

namespace {

constexpr REGSAM right_to_query =
    0x0001; // both are part of KEY_ALL_ACCESS, one each of KEY_READ and KEY_WRITE
constexpr REGSAM right_to_set = 0x0002;

struct Key {
    std::optional<std::size_t> device; // none: the serial device map
    REGSAM access = 0;

    sim::Values& Values() const {
        return device ? sim::Current().devices[*device].key : sim::Current().serial_map;
    }
};
sim::Handles<HKEY, Key> keys("key");

// The name of a value, preceded by that of its key.
std::string Place(const Key* key, LPCWSTR name) {
    const std::string place = key == nullptr ? "?"
                              : key->device  ? sim::ToUtf8(sim::Current().devices[*key->device].instance_id)
                                             : "SERIALCOMM";
    return place + " " + (name != nullptr ? sim::ToUtf8(name) : "");
}

// The common start of every call on an open key.
template <class Detail>
LSTATUS Enter(sim::Reach reach, std::string_view operation, const Key* key, REGSAM right,
              const Detail& detail) {
    if (sim::Operation(reach, operation, detail)) {
        return ERROR_GEN_FAILURE;
    }
    if (key == nullptr) {
        return ERROR_INVALID_HANDLE;
    }
    return key->access & right ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

// What is reserved, or an option that is not simulated.
void ExpectZero(DWORD parameter, std::string_view operation) {
    if (parameter != 0) {
        sim::Misuse(std::string(operation) + ": a parameter that must be 0");
    }
}

// Returns type, size and data of a value as far as they are asked for.
LSTATUS Deliver(const sim::Value& value, LPDWORD type, LPBYTE data, LPDWORD bytes) {
    if (type != nullptr) {
        *type = value.type;
    }
    if (bytes == nullptr) {
        return data != nullptr ? ERROR_INVALID_PARAMETER : ERROR_SUCCESS;
    }
    const DWORD room = std::exchange(*bytes, static_cast<DWORD>(value.data.size()));
    if (data != nullptr && room < value.data.size()) {
        return ERROR_MORE_DATA;
    }
    if (data != nullptr) {
        std::ranges::copy(value.data, data);
    }
    return ERROR_SUCCESS;
}

} // namespace

HKEY sim::OpenDeviceKey(std::size_t device, REGSAM access) {
    return keys.Open({device, access});
}

LSTATUS RegOpenKeyExW(HKEY root, LPCWSTR path, DWORD options, REGSAM access, PHKEY key) {
    ExpectZero(options, __func__);
    *key = nullptr;
    if (sim::Operation(sim::Reach::Read, __func__, [&] { return sim::ToUtf8(path); })) {
        return ERROR_ACCESS_DENIED;
    }
    if (root != HKEY_LOCAL_MACHINE || !sim::EqualNoCase(path, u"Hardware\\DeviceMap\\SerialComm") ||
        !sim::Current().serial_map_exists) {
        return ERROR_FILE_NOT_FOUND;
    }
    *key = keys.Open({std::nullopt, access});
    return ERROR_SUCCESS;
}

LSTATUS RegCloseKey(HKEY key) {
    const bool fails = sim::Operation(sim::Reach::Read, __func__);
    if (!keys.Close(key, __func__)) {
        return ERROR_INVALID_HANDLE;
    }
    return fails ? ERROR_GEN_FAILURE : ERROR_SUCCESS;
}

LSTATUS RegQueryValueExW(HKEY handle, LPCWSTR name, LPDWORD, LPDWORD type, LPBYTE data, LPDWORD bytes) {
    const Key* key = keys.Find(handle, __func__);
    if (const LSTATUS status =
            Enter(sim::Reach::Read, __func__, key, right_to_query, [&] { return Place(key, name); })) {
        return status;
    }
    const sim::Value* value = key->Values().Find(name != nullptr ? name : u"");
    return value != nullptr ? Deliver(*value, type, data, bytes) : ERROR_FILE_NOT_FOUND;
}

LSTATUS RegSetValueExW(HKEY handle, LPCWSTR name, DWORD reserved, DWORD type, const BYTE* data, DWORD bytes) {
    ExpectZero(reserved, __func__);
    const Key* key = keys.Find(handle, __func__);
    if (const LSTATUS status = Enter(sim::Reach::Write, __func__, key, right_to_set, [&] {
            return Place(key, name) + " = " + ValueInJournal(type, {data, bytes});
        })) {
        return status;
    }
    if (type == REG_SZ) {
        sim::ExpectItsTerminator({data, bytes}, __func__);
    }
    key->Values().Set(name != nullptr ? name : u"", type, {data, data + bytes});
    return ERROR_SUCCESS;
}

LSTATUS RegEnumValueW(HKEY handle, DWORD index, LPWSTR name, LPDWORD nameCapacity, LPDWORD, LPDWORD type,
                      LPBYTE data, LPDWORD bytes) {
    const Key* key = keys.Find(handle, __func__);
    if (const LSTATUS status = Enter(sim::Reach::Read, __func__, key, right_to_query,
                                     [&] { return Place(key, nullptr) + std::to_string(index); })) {
        return status;
    }
    const std::vector<sim::Value>& list = key->Values().list;
    if (index >= list.size()) {
        return ERROR_NO_MORE_ITEMS;
    }
    const sim::Value& value = list[index];
    if (*nameCapacity <= value.name.size()) {
        return ERROR_MORE_DATA;
    }
    if (const LSTATUS status = Deliver(value, type, data, bytes)) {
        return status;
    }
    value.name.copy(name, value.name.size());
    name[value.name.size()] = u'\0';
    *nameCapacity = static_cast<DWORD>(value.name.size());
    return ERROR_SUCCESS;
}
