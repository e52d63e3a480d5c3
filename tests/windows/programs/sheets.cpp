#include "tests/windows/programs/sheets.h"

#include <algorithm>

namespace host {

std::optional<DeviceRecord> FirstDevice(World& world, Role role) {
    const Records records = world.Describe();
    const auto found = std::ranges::find_if(records.devices, [&](const DeviceRecord& device) {
        return device.role == role && FindValue(device.store, "BoardPciBusNumber") != nullptr;
    });
    return found == records.devices.end() ? std::nullopt : std::optional(*found);
}

} // namespace host
