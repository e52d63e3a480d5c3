// Devices that exist as long as this process holds them, below an enumerator of the check's own.
#pragma once

#include <string>
#include <vector>

#include "check/windows/software_device_api.h"

namespace check {

// What the instance ids of all of them begin with.
inline constexpr const char* own_devices = "SWD\\KVRCHECK\\";

// False if the system has no software devices. Called before anything else here.
bool HasSoftwareDevices();

// Makes a device with its interfaces and waits until the system has taken it up. Returns what has failed, or
// nothing. What was made before a failure remains.
std::string MakeSoftwareDevice(const std::string& id, const std::wstring& description,
                               const std::vector<GUID>& interfaces);

// Takes a device away with its keys, whether this process made it, an earlier one did, or it is not there.
void RemoveSoftwareDevice(const std::string& id);

} // namespace check
