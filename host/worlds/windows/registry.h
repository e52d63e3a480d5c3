// Registry keys as this folder reads them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/worlds/store_values.h"

namespace host {

inline constexpr const WCHAR* arbiter_key = TEXT("SYSTEM\\CurrentControlSet\\Control\\COM Name Arbiter");
inline constexpr const WCHAR* ports_key = TEXT("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Ports");
inline constexpr const WCHAR* serial_map_key = TEXT("HARDWARE\\DEVICEMAP\\SERIALCOMM");

// An open key, closed by the destructor. A key that can't be opened has no values.
class RegistryKey {
public:
    RegistryKey(HKEY root, const WCHAR* path, REGSAM access);
    // Takes over a key that SetupAPI opened; INVALID_HANDLE_VALUE is no key.
    explicit RegistryKey(HKEY opened);
    ~RegistryKey();
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    HKEY Handle() const { return key_; }

    // In the order in which the system enumerates them.
    StoreValues Values() const;
    // The REG_SZ values.
    StoreValues Texts() const;

private:
    HKEY key_ = nullptr;
};

} // namespace host
