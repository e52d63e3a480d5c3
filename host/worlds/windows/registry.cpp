#include "host/worlds/windows/registry.h"

#include "host/worlds/store_values.h"

namespace host {

RegistryKey::RegistryKey(HKEY root, const WCHAR* path, REGSAM access) {
    if (RegOpenKeyExW(root, path, 0, access, &key_) != ERROR_SUCCESS) {
        key_ = nullptr;
    }
}

RegistryKey::RegistryKey(HKEY opened) : key_(opened == INVALID_HANDLE_VALUE ? nullptr : opened) {}

RegistryKey::~RegistryKey() {
    if (key_ != nullptr) {
        RegCloseKey(key_);
    }
}

StoreValues RegistryKey::Values() const {
    StoreValues values;
    DWORD longest_name = 0, longest_data = 0;
    if (key_ == nullptr ||
        RegQueryInfoKeyW(key_, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &longest_name,
                         &longest_data, nullptr, nullptr) != ERROR_SUCCESS) {
        return values;
    }
    for (DWORD index = 0;; ++index) {
        StoreValue value{Text(longest_name + 1, 0), 0, std::vector<BYTE>(longest_data + 1)};
        DWORD name_length = longest_name + 1, bytes = longest_data + 1;
        if (RegEnumValueW(key_, index, value.name.data(), &name_length, nullptr, &value.type,
                          value.data.data(), &bytes) != ERROR_SUCCESS) {
            return values;
        }
        value.name.resize(name_length);
        value.data.resize(bytes);
        values.push_back(std::move(value));
    }
}

StoreValues RegistryKey::Texts() const {
    StoreValues texts = Values();
    std::erase_if(texts, [](const StoreValue& value) { return value.type != REG_SZ; });
    return texts;
}

} // namespace host
