// Where a registry keeps what makes up a machine: the keys that loading and saving share.
#pragma once

#include <string>
#include <string_view>

namespace host {

inline constexpr std::u16string_view local_machine = u"HKEY_LOCAL_MACHINE\\";

// Below HKEY_LOCAL_MACHINE.
inline constexpr std::u16string_view current_set = u"SYSTEM\\CurrentControlSet";
inline constexpr std::u16string_view serial_map_key = u"HARDWARE\\DEVICEMAP\\SERIALCOMM";
inline constexpr std::u16string_view ports_key = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Ports";

// Below a control set.
inline constexpr std::u16string_view devices_key = u"Enum";
inline constexpr std::u16string_view interfaces_key = u"Control\\DeviceClasses";
inline constexpr std::u16string_view arbiter_key = u"Control\\COM Name Arbiter";

inline constexpr std::u16string_view com_db_value = u"ComDB"; // the value of the arbiter's key

// Below a device: its hardware key.
inline constexpr std::u16string_view hardware_key = u"Device Parameters";

// The section of the profile that ports_key holds.
inline constexpr std::u16string_view ports_section = u"Ports";

// The path of a key below another one.
inline std::u16string Below(std::u16string_view key, std::u16string_view subkey) {
    return std::u16string(key).append(u"\\").append(subkey);
}

} // namespace host
