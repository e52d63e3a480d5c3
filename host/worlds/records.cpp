#include "host/worlds/records.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "host/text.h"
#include "platform/port_usage.h"

namespace host {
namespace {

constexpr MissingPlace places[] = {
    {DevicesPlace, "the devices", "devices", "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum"},
    {InterfacesPlace, "the interfaces", "interfaces",
     "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\DeviceClasses"},
    {DatabasePlace, "the COM port database", "database",
     "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\COM Name Arbiter"},
    {SerialMapPlace, "the serial map", "serialMap", "HKEY_LOCAL_MACHINE\\HARDWARE\\DEVICEMAP\\SERIALCOMM"},
    {SettingsPlace, "the settings lines", "settingsLines",
     "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Ports"},
};

} // namespace

void ListDevices(Records& records) {
    std::vector<std::pair<std::string, DeviceRecord>> devices; // by what orders them
    for (DeviceRecord& device : records.devices) {
        const char role = static_cast<char>('0' + static_cast<int>(device.role));
        devices.emplace_back(role + Folded(device.id), std::move(device));
    }
    std::ranges::stable_sort(devices, {}, &std::pair<std::string, DeviceRecord>::first);
    records.devices.clear();
    for (auto& [order, device] : devices) {
        device.listed = device.role == Role::Channel ? 0 : records.devices.size() + 1;
        records.devices.push_back(std::move(device));
    }
}

void JoinNumbers(Records& records) {
    auto& numbers = records.numbers;
    numbers.clear();
    for (u32 number = 1; number <= 8 * records.usage.size(); ++number) {
        if (IsPortClaimed(records.usage.data(), number)) {
            numbers[number].claimed = true;
        }
    }
    const auto add = [&](unsigned long number, auto NumberRecord::*place, const auto& what) {
        if (number != 0) {
            (numbers[number].*place).push_back(what);
        }
    };
    for (std::size_t index = 0; index < records.devices.size(); ++index) {
        if (records.devices[index].role == Role::Port) {
            add(PortNumber(StoredText(records.devices[index].store, "PortName")), &NumberRecord::holders,
                index);
        }
    }
    for (const StoreValue& value : records.serial_map) {
        add(PortNumber(TextOf(value)), &NumberRecord::mapped, ToUtf8(value.name));
    }
    for (const StoreValue& value : records.settings_lines) {
        add(LineNumber(ToUtf8(value.name)), &NumberRecord::lines, TextOf(value));
    }
    for (const auto& [name, target] : records.dos_names) {
        add(PortNumber(name), &NumberRecord::targets, target);
    }
}

std::vector<MissingPlace> MissingPlaces(unsigned known) {
    std::vector<MissingPlace> missing;
    std::ranges::copy_if(places, std::back_inserter(missing),
                         [&](const MissingPlace& each) { return (known & each.place) == 0; });
    return missing;
}

const NumberRecord& NumberIn(const Records& records, unsigned long number) {
    static const NumberRecord nothing;
    const auto found = records.numbers.find(number);
    return found == records.numbers.end() ? nothing : found->second;
}

std::size_t CountListed(const Records& records) {
    return static_cast<std::size_t>(std::ranges::count_if(
        records.devices, [](const DeviceRecord& device) { return device.listed != 0; }));
}

unsigned long PortNumber(std::string_view name) {
    unsigned long number = 0;
    if (name.size() < 4 || Folded(name.substr(0, 3)) != "com") {
        return 0;
    }
    const char* const end = name.data() + name.size();
    const auto [stopped, error] = std::from_chars(name.data() + 3, end, number);
    return error == std::errc{} && stopped == end ? number : 0;
}

unsigned long FriendlyNumber(std::string_view name) {
    const std::size_t open = name.rfind('('), close = name.rfind(')');
    return open == std::string_view::npos || close == std::string_view::npos || close < open
               ? 0
               : PortNumber(name.substr(open + 1, close - open - 1));
}

unsigned long LineNumber(std::string_view key) {
    return key.ends_with(':') ? PortNumber(key.substr(0, key.size() - 1)) : 0;
}

std::string ComName(unsigned long number) {
    return "COM" + std::to_string(number);
}

std::string NameOf(const DeviceRecord& device) {
    return Escaped(!device.friendly_name.empty() ? device.friendly_name
                   : !device.description.empty() ? device.description
                                                 : device.id);
}

std::string LabelOf(const Records& records, const DeviceRecord& device) {
    const std::string name = !device.description.empty() ? device.description : device.friendly_name;
    std::string label = device.listed ? "device " + std::to_string(device.listed) : Escaped(device.id);
    const bool absent = (records.known & InterfacesPlace) != 0 && !device.present;
    if (!name.empty() || absent) {
        label += " (" + Escaped(name) + (!name.empty() && absent ? ", " : "") + (absent ? "absent)" : ")");
    }
    return label;
}

} // namespace host
