#include "host/worlds/world.h"

#include "platform/port_usage.h"

namespace host {

std::string NameOf(const Device& device) {
    return Escaped(!device.friendly_name.empty() ? ToUtf8(device.friendly_name)
                   : !device.description.empty() ? ToUtf8(device.description)
                                                 : device.id);
}

bool IsClaimed(const PortRecords& records, unsigned long number) {
    return records.usage && number >= 1 && number <= 8 * records.usage->size() &&
           IsPortClaimed(records.usage->data(), static_cast<u32>(number));
}

} // namespace host
