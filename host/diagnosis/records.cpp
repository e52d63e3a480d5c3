#include "host/diagnosis/records.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>

#include "host/text.h"

namespace host {

NumberRecords NumbersOf(const Records& records) {
    NumberRecords numbers;
    for (std::size_t index = 0; index < records.claimed.size(); ++index) {
        if (records.claimed[index]) {
            numbers[index + 1].claimed = true;
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
    for (const auto& [object, name] : records.serial_map) {
        add(PortNumber(name), &NumberRecord::mapped, object);
    }
    for (const auto& [key, line] : records.settings_lines) {
        add(LineNumber(key), &NumberRecord::lines, line);
    }
    for (const auto& [name, target] : records.dos_names) {
        add(PortNumber(name), &NumberRecord::targets, target);
    }
    return numbers;
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

std::string StoredText(const std::vector<StoreValue>& store, std::string_view name) {
    const StoreValue* const value = FindValue(store, name);
    return value != nullptr ? TextOf(*value) : std::string();
}

unsigned long StoredNumber(const std::vector<StoreValue>& store, std::string_view name) {
    const StoreValue* const value = FindValue(store, name);
    std::uint32_t number = 0;
    if (value != nullptr && value->data.size() <= sizeof number) {
        std::copy(value->data.begin(), value->data.end(), reinterpret_cast<BYTE*>(&number));
    }
    return number;
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
