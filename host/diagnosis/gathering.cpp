#include "host/diagnosis/gathering.h"

#include <algorithm>

namespace host {
namespace {

TextPairs TextsOf(const NamedTexts& texts) {
    TextPairs result;
    for (const auto& [name, text] : texts) {
        result.emplace_back(ToUtf8(name), ToUtf8(text));
    }
    return result;
}

// An interface may belong to a device without a sheet: a channel that is not a port.
DeviceRecord& Owner(std::vector<DeviceRecord>& devices, const Interface& one) {
    const auto found = std::ranges::find(devices, one.device, &DeviceRecord::id);
    if (found != devices.end()) {
        return *found;
    }
    DeviceRecord& channel = devices.emplace_back();
    channel.id = one.device;
    channel.role = Role::Channel;
    channel.description = ToUtf8(one.description);
    channel.present = false;
    return channel;
}

} // namespace

Records RecordsOf(World& world) {
    Records records;
    if (world.KnowsDevices()) {
        records.known |= DevicesPlace;
    }
    for (const Device& device : world.Devices()) {
        records.devices.push_back({device.id,
                                   device.kind == DeviceKind::Board ? Role::Board : Role::Port,
                                   records.devices.size() + 1,
                                   ToUtf8(device.description),
                                   ToUtf8(device.friendly_name),
                                   device.present.value_or(true),
                                   {},
                                   {}});
    }
    if (const auto interfaces = world.Interfaces()) {
        records.known |= InterfacesPlace;
        for (const Interface& one : *interfaces) {
            DeviceRecord& owner = Owner(records.devices, one);
            owner.interfaces.push_back({one.channel_class, one.present});
            owner.present = owner.present || (owner.role == Role::Channel && one.present);
        }
    }
    for (DeviceRecord& device : records.devices) {
        device.store = world.Store(device.id);
    }
    const PortRecords ports = world.Ports();
    const auto take = [&](const std::optional<NamedTexts>& known, Place place, TextPairs& texts) {
        if (known) {
            records.known |= place;
            texts = TextsOf(*known);
        }
    };
    take(ports.serial_map, SerialMapPlace, records.serial_map);
    take(ports.settings_lines, SettingsPlace, records.settings_lines);
    if (ports.usage) {
        records.known |= DatabasePlace;
        for (unsigned long number = 1; number <= 8 * ports.usage->size(); ++number) {
            records.claimed.push_back(IsClaimed(ports, number));
        }
    }
    records.dos_names = TextsOf(ports.dos_names);
    records.dos_names_derived = ports.dos_names_are_derived;
    return records;
}

} // namespace host
