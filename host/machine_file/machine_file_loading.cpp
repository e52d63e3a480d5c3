#include <algorithm>
#include <cstdio>
#include <cstring>
#include <optional>
#include <set>

#include "host/machine_file/guid_text.h"
#include "host/machine_file/machine_file.h"
#include "host/machine_file/machine_keeper.h"
#include "host/machine_file/machine_places.h"
#include "host/text.h"

namespace host {
namespace {

using TextView = std::u16string_view;

// The text of a value up to its terminator; nothing if the value is missing or not a text.
std::optional<Text> TextOf(const sim::Value* value) {
    if (value == nullptr || value->type != REG_SZ) {
        return std::nullopt;
    }
    return TextIn(value->data);
}

// Missing values and those that are not numbers are 0.
DWORD NumberOf(const TreeKey* key, TextView name) {
    const sim::Value* const value = key != nullptr ? key->values.Find(name) : nullptr;
    DWORD number = 0;
    if (value != nullptr && value->type == REG_DWORD && value->data.size() == sizeof number) {
        std::memcpy(&number, value->data.data(), sizeof number);
    }
    return number;
}

// The path of the control set that the file refers to.
Text ControlSetOf(const TreeKey& root) {
    if (root.Find(current_set) != nullptr) {
        return Text(current_set);
    }
    const DWORD number = NumberOf(root.Find(u"SYSTEM\\Select"), u"Current");
    char path[32];
    std::snprintf(path, sizeof path, "SYSTEM\\ControlSet%03u", number != 0 ? number : 1);
    return sim::FromUtf8(path);
}

// "@file.inf,%name%;Text" refers to a text of an INF file and carries the text itself in case that is
// missing.
std::optional<Text> Description(std::optional<Text> text) {
    if (text && text->starts_with(u'@')) {
        text->erase(0, text->rfind(u';') + 1);
    }
    return text;
}

sim::Device DeviceOf(const TreeKey& set, Text instance_id, const TreeKey& key) {
    sim::Device device;
    device.instance_id = std::move(instance_id);
    device.description = Description(TextOf(key.values.Find(u"DeviceDesc")));
    device.friendly_name = TextOf(key.values.Find(u"FriendlyName"));
    const Text class_guid = TextOf(key.values.Find(u"ClassGUID")).value_or(u"");
    device.class_guid = ParseGuid(class_guid);
    const TreeKey* const device_class = set.Find(u"Control\\Class\\" + class_guid);
    std::optional<Text> class_name = TextOf(key.values.Find(u"Class"));
    if (!class_name && device_class != nullptr) {
        class_name = TextOf(device_class->values.Find(u"Class"));
    }
    device.class_name = class_name.value_or(u"");
    const TreeKey* const parameters = key.Find(hardware_key);
    device.has_key = parameters != nullptr;
    if (parameters != nullptr) {
        device.key = parameters->values;
    }
    return device;
}

std::vector<sim::Device> DevicesOf(const TreeKey& set) {
    std::vector<std::pair<Text, const TreeKey*>> instances;
    if (const TreeKey* const enumeration = set.Find(devices_key)) {
        for (const auto& [enumerator, its_devices] : enumeration->keys) {
            for (const auto& [device, its_instances] : its_devices.keys) {
                for (const auto& [instance, key] : its_instances.keys) {
                    instances.emplace_back(enumerator + u'\\' + device + u'\\' + instance, &key);
                }
            }
        }
    }
    std::ranges::sort(instances, {}, [](const auto& each) { return each.second->place; });
    std::vector<sim::Device> devices;
    for (auto& [id, key] : instances) {
        devices.push_back(DeviceOf(set, std::move(id), *key));
    }
    return devices;
}

// The interfaces that one key of a class stands for: usually just the one without a reference string.
void AddInterfaces(const GUID& class_guid, TextView name, const TreeKey& key, std::size_t device,
                   std::vector<sim::Interface>& interfaces) {
    const bool linked = NumberOf(key.Find(u"Control"), u"Linked") != 0;
    Text path(name);
    if (path.starts_with(u"##?#")) {
        path.replace(0, 4, u"\\\\?\\");
    }
    const std::size_t before = interfaces.size();
    for (const auto& [reference, its_key] : key.keys) {
        if (!reference.starts_with(u'#')) {
            continue;
        }
        Text own_path = reference == u"#" ? path : path + u'\\' + reference.substr(1);
        interfaces.push_back({class_guid,
                              TextOf(its_key.values.Find(u"SymbolicLink")).value_or(std::move(own_path)),
                              device, linked || NumberOf(its_key.Find(u"Control"), u"Linked") != 0});
    }
    if (interfaces.size() == before) {
        interfaces.push_back({class_guid, std::move(path), device, linked});
    }
}

std::vector<sim::Interface> InterfacesOf(const TreeKey& set, const std::vector<sim::Device>& devices) {
    std::map<Text, std::size_t, NameOrder> places;
    for (std::size_t i = 0; i < devices.size(); ++i) {
        places.emplace(devices[i].instance_id, i);
    }
    std::vector<sim::Interface> interfaces;
    if (const TreeKey* const classes = set.Find(interfaces_key)) {
        for (const auto& [guid_text, its_keys] : classes->keys) {
            for (const auto& [name, key] : its_keys.keys) {
                const std::optional<GUID> guid = ParseGuid(guid_text);
                const auto place = places.find(TextOf(key.values.Find(u"DeviceInstance")).value_or(u""));
                if (guid && place != places.end()) {
                    AddInterfaces(*guid, name, key, place->second, interfaces);
                }
            }
        }
    }
    return interfaces;
}

sim::PortUsage PortUsageOf(const sim::Value* database) {
    sim::PortUsage usage{};
    if (database != nullptr) {
        std::copy_n(database->data.begin(), std::min(database->data.size(), usage.size()), usage.begin());
    }
    return usage;
}

// Each port in the serial map has a DOS name for its object.
std::vector<std::pair<Text, Text>> DosNamesOf(const sim::Values& serial_map) {
    std::vector<std::pair<Text, Text>> names;
    std::set<Text, NameOrder> seen;
    for (const sim::Value& value : serial_map.list) {
        const Text name = TextOf(&value).value_or(u"");
        if (!name.empty() && seen.insert(name).second) {
            names.emplace_back(name, value.name);
        }
    }
    return names;
}

} // namespace

const sim::Value* PortDatabase(const MachineFile& file) {
    const TreeKey* const arbiter = file.root.Find(Below(file.control_set, arbiter_key));
    const sim::Value* const value = arbiter != nullptr ? arbiter->values.Find(com_db_value) : nullptr;
    return value != nullptr && value->type == REG_BINARY && !value->data.empty() ? value : nullptr;
}

void GiveMachine(const MachineFile& file, sim::Machine& machine) {
    static const TreeKey nothing;
    const TreeKey* const found = file.root.Find(file.control_set);
    const TreeKey& set = found != nullptr ? *found : nothing;
    machine.devices = DevicesOf(set);
    machine.interfaces = InterfacesOf(set, machine.devices);
    machine.port_usage = PortUsageOf(PortDatabase(file));
    const TreeKey* const serial_map = file.root.Find(serial_map_key);
    machine.serial_map_exists = serial_map != nullptr;
    machine.serial_map = serial_map != nullptr ? serial_map->values : sim::Values();
    machine.dos_names = DosNamesOf(machine.serial_map);
    machine.profile.clear();
    if (const TreeKey* const ports = file.root.Find(ports_key)) {
        machine.profile.emplace_back(ports_section, ports->values);
    }
}

bool LoadMachine(std::istream& in, const std::string& name, MachineFile& file, Problem& problem) {
    MachineFile read;
    MachineKeeper keeper(read.root, read.count);
    if (!ReadExport(in, name, keeper, problem)) {
        return false;
    }
    read.control_set = ControlSetOf(read.root);
    // The other sets belong to earlier or failed starts.
    if (const auto system = read.root.keys.find(u"SYSTEM"); system != read.root.keys.end()) {
        const Text kept = read.control_set.substr(read.control_set.find(u'\\') + 1);
        std::erase_if(system->second.keys, [&](const auto& each) {
            return !sim::EqualNoCase(each.first, kept) && !sim::EqualNoCase(each.first, u"Select");
        });
    }
    file = std::move(read);
    return true;
}

} // namespace host
