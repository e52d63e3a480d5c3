#include <algorithm>
#include <cstdio>
#include <cstring>
#include <optional>
#include <span>

#include "host/machine_file/guid_text.h"
#include "host/machine_file/machine_file.h"
#include "host/machine_file/machine_places.h"
#include "host/machine_file/registry_tree.h"

namespace host {
namespace {

using sim::Text;
using TextView = std::u16string_view;

// --- What is kept of the file ---

// The keys that mean something, and which of their values; all of them where none is named. An asterisk
// stands for any one name.
struct Place {
    TextView path;
    TextView values[4];
};
constexpr Place machine_places[] = {
    {u"SYSTEM\\Select", {u"Current"}},
    {SerialMapKey, {}},
    {PortsKey, {}},
};
constexpr Place control_set_places[] = {
    {u"Enum\\*\\*\\*", {u"DeviceDesc", u"FriendlyName", u"Class", u"ClassGUID"}},
    {u"Enum\\*\\*\\*\\Device Parameters", {}},
    {u"Control\\DeviceClasses\\*\\*", {u"DeviceInstance"}},
    {u"Control\\DeviceClasses\\*\\*\\Control", {u"Linked"}},
    {u"Control\\DeviceClasses\\*\\*\\*", {u"SymbolicLink"}},
    {u"Control\\DeviceClasses\\*\\*\\*\\Control", {u"Linked"}},
    {ArbiterKey, {u"ComDB"}},
    // Newer systems keep the name of a device's class with the class alone.
    {u"Control\\Class\\*", {u"Class"}},
};

bool TakePrefix(TextView& path, TextView prefix) {
    const bool is_there = sim::EqualNoCase(path.substr(0, prefix.size()), prefix);
    path.remove_prefix(is_there ? prefix.size() : 0);
    return is_there;
}

bool Matches(TextView path, TextView pattern) {
    while (!pattern.empty() && !path.empty()) {
        const TextView wanted = TakeComponent(pattern), name = TakeComponent(path);
        if (name.empty() || (wanted != u"*" && !sim::EqualNoCase(wanted, name))) {
            return false;
        }
    }
    return pattern.empty() && path.empty();
}

// `path` is below HKEY_LOCAL_MACHINE.
const Place* FindPlace(TextView path) {
    const auto find = [&](std::span<const Place> places) {
        const auto place =
            std::ranges::find_if(places, [&](const Place& each) { return Matches(path, each.path); });
        return place == places.end() ? nullptr : &*place;
    };
    if (const Place* const place = find(machine_places)) {
        return place;
    }
    if (!TakePrefix(path, u"SYSTEM\\")) {
        return nullptr;
    }
    TakeComponent(path);
    return find(control_set_places);
}

class Keeper : public ExportReceiver {
public:
    const TreeKey& Root() const { return root_; }

    bool Key(TextView path) override {
        place_ = TakePrefix(path, LocalMachine) ? FindPlace(path) : nullptr;
        key_ = place_ ? &root_.Make(path, count_) : nullptr;
        return key_ != nullptr;
    }
    void DeleteKey(TextView path) override {
        if (TakePrefix(path, LocalMachine)) {
            root_.Erase(path);
        }
    }
    void SetValue(TextView name, DWORD type, std::span<const BYTE> data) override {
        if (place_->values[0].empty() || std::ranges::any_of(place_->values, [name](TextView each) {
                return sim::EqualNoCase(each, name);
            })) {
            key_->values.Set(name, type, {data.begin(), data.end()});
        }
    }
    void DeleteValue(TextView name) override { key_->values.Erase(name); }

private:
    TreeKey root_;
    std::size_t count_ = 0;
    const Place* place_ = nullptr; // of the current key
    TreeKey* key_ = nullptr;
};

// --- What it says of the machine ---

// What a text holds up to its terminator; none if the value is missing or no text.
std::optional<Text> TextOf(const sim::Value* value) {
    if (!value || value->type != REG_SZ) {
        return std::nullopt;
    }
    Text text(value->data.size() / sizeof(WCHAR), u'\0');
    std::copy_n(value->data.begin(), text.size() * sizeof(WCHAR), reinterpret_cast<BYTE*>(text.data()));
    text.resize(std::min(text.size(), text.find(u'\0')));
    return text;
}

// Missing values and those that are no numbers are 0.
DWORD NumberOf(const TreeKey* key, TextView name) {
    const sim::Value* const value = key ? key->values.Find(name) : nullptr;
    DWORD number = 0;
    if (value && value->type == REG_DWORD && value->data.size() == sizeof number) {
        std::memcpy(&number, value->data.data(), sizeof number);
    }
    return number;
}

const TreeKey* CurrentControlSet(const TreeKey& root) {
    if (const TreeKey* const current = root.Find(CurrentSet)) {
        return current;
    }
    const DWORD number = NumberOf(root.Find(u"SYSTEM\\Select"), u"Current");
    char path[32];
    std::snprintf(path, sizeof path, "SYSTEM\\ControlSet%03u", number != 0 ? number : 1);
    return root.Find(sim::FromUtf8(path));
}

// "@file.inf,%name%;Text" names a text of the file, with the text itself for where it can't be had.
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
    if (!class_name && device_class) {
        class_name = TextOf(device_class->values.Find(u"Class"));
    }
    device.class_name = class_name.value_or(u"");
    const TreeKey* const parameters = key.Find(HardwareKey);
    device.has_key = parameters != nullptr;
    if (parameters) {
        device.key = parameters->values;
    }
    return device;
}

std::vector<sim::Device> DevicesOf(const TreeKey& set) {
    std::vector<std::pair<Text, const TreeKey*>> instances;
    if (const TreeKey* const enumeration = set.Find(DevicesKey)) {
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

// The interfaces that one key of a class stands for: as a rule the one without a reference string.
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
    if (const TreeKey* const classes = set.Find(InterfacesKey)) {
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

sim::PortUsage PortUsageOf(const TreeKey& set) {
    sim::PortUsage usage{};
    const TreeKey* const arbiter = set.Find(ArbiterKey);
    if (const sim::Value* const value = arbiter ? arbiter->values.Find(u"ComDB") : nullptr) {
        std::copy_n(value->data.begin(), std::min(value->data.size(), usage.size()), usage.begin());
    }
    return usage;
}

// A port in the serial map has a DOS name for its object.
std::vector<std::pair<Text, Text>> DosNamesOf(const sim::Values& serial_map) {
    std::vector<std::pair<Text, Text>> names;
    for (const sim::Value& value : serial_map.list) {
        const Text name = TextOf(&value).value_or(u"");
        const bool is_new =
            std::ranges::none_of(names, [&](const auto& each) { return sim::EqualNoCase(each.first, name); });
        if (!name.empty() && is_new) {
            names.emplace_back(name, value.name);
        }
    }
    return names;
}

} // namespace

bool LoadMachine(std::istream& in, const std::string& name, sim::Machine& machine, Problem& problem) {
    Keeper keeper;
    if (!ReadExport(in, name, keeper, problem)) {
        return false;
    }
    const TreeKey& root = keeper.Root();
    static const TreeKey nothing;
    const TreeKey* const found = CurrentControlSet(root);
    const TreeKey& set = found ? *found : nothing;
    machine.devices = DevicesOf(set);
    machine.interfaces = InterfacesOf(set, machine.devices);
    machine.port_usage = PortUsageOf(set);
    const TreeKey* const serial_map = root.Find(SerialMapKey);
    machine.serial_map_exists = serial_map != nullptr;
    machine.serial_map = serial_map ? serial_map->values : sim::Values();
    machine.dos_names = DosNamesOf(machine.serial_map);
    machine.profile.clear();
    if (const TreeKey* const ports = root.Find(PortsKey)) {
        machine.profile.emplace_back(PortsSection, ports->values);
    }
    return true;
}

} // namespace host
