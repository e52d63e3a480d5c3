#include "tests/windows/programs/first_device.h"

#include "host/worlds/store_values.h"

namespace host {

std::optional<Device> FirstDevice(World& world, DeviceKind kind) {
    for (const Device& device : world.Devices()) {
        if (device.kind == kind && FindValue(world.Store(device.id), "BoardPciBusNumber") != nullptr) {
            return device;
        }
    }
    return {};
}

} // namespace host
