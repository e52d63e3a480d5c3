// Where a registry keeps what makes a machine: the keys that loading and saving share.
#pragma once

#include <string>
#include <string_view>

namespace host {

inline constexpr std::u16string_view LocalMachine = u"HKEY_LOCAL_MACHINE\\";

// Below HKEY_LOCAL_MACHINE.
inline constexpr std::u16string_view CurrentSet = u"SYSTEM\\CurrentControlSet";
inline constexpr std::u16string_view SerialMapKey = u"HARDWARE\\DEVICEMAP\\SERIALCOMM";
inline constexpr std::u16string_view PortsKey = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Ports";

// Below a control set.
inline constexpr std::u16string_view DevicesKey = u"Enum";
inline constexpr std::u16string_view InterfacesKey = u"Control\\DeviceClasses";
inline constexpr std::u16string_view ArbiterKey = u"Control\\COM Name Arbiter";

inline constexpr std::u16string_view ComDb = u"ComDB"; // the value of the arbiter's key

// Below a device: its hardware key.
inline constexpr std::u16string_view HardwareKey = u"Device Parameters";

// The section of the profile that PortsKey holds.
inline constexpr std::u16string_view PortsSection = u"Ports";

// The path of a key below another one.
inline std::u16string Below(std::u16string_view key, std::u16string_view subkey) {
    return std::u16string(key).append(u"\\").append(subkey);
}

} // namespace host
