#include <algorithm>
#include <tuple>

#include "host/machine_file/guid_text.h"
#include "host/machine_file/machine_file.h"
#include "host/machine_file/machine_places.h"
#include "host/whole_file.h"

namespace host {
namespace {

using sim::Text;

// The keys of the file as they are to be written, with the changes put into them.
class ChangedKeys {
public:
    ChangedKeys(MachineFile& file, const sim::Machine& machine) : file_(file), machine_(machine) {
        GiveMachine(file, before_);
    }

    void Put() {
        for (const sim::Device& device : machine_.devices) {
            PutDevice(device);
        }
        for (const sim::Interface& one : machine_.interfaces) {
            PutInterface(one);
        }
        PutPortUsage();
        if (machine_.serial_map_exists &&
            !(before_.serial_map_exists && machine_.serial_map == before_.serial_map)) {
            Key(Text(serial_map_key)).values = machine_.serial_map;
        }
        for (const auto& [section, values] : machine_.profile) {
            const auto& known = before_.profile;
            if (sim::EqualNoCase(section, ports_section) && (known.empty() || known[0].second != values)) {
                Key(Text(ports_key)).values = values;
            }
        }
    }

private:
    TreeKey& Key(const Text& path) { return file_.root.Make(path, file_.count); }
    Text InControlSet(std::u16string_view key) const { return Below(file_.control_set, key); }

    void PutText(const Text& path, std::u16string_view name, const std::optional<Text>& before,
                 const std::optional<Text>& now) {
        if (now && now != before) {
            Key(path).values.SetText(name, *now);
        } else if (!now && before) {
            Key(path).values.Erase(name);
        }
    }

    void PutDevice(const sim::Device& device) {
        const Text path = Below(InControlSet(devices_key), device.instance_id);
        sim::Device unknown;
        unknown.has_key = false;
        const sim::Device* before = before_.FindDevice(device.instance_id);
        if (before == nullptr) {
            before = &unknown;
            Key(path);
        }
        const auto text_of = [](const std::optional<GUID>& guid) {
            return guid ? std::optional(GuidText(*guid)) : std::nullopt;
        };
        PutText(path, u"DeviceDesc", before->description, device.description);
        PutText(path, u"FriendlyName", before->friendly_name, device.friendly_name);
        PutText(path, u"Class", before->class_name, device.class_name);
        PutText(path, u"ClassGUID", text_of(before->class_guid), text_of(device.class_guid));
        if (device.has_key && !(before->has_key && before->key == device.key)) {
            Key(Below(path, hardware_key)).values = device.key;
        }
    }

    bool IsKnown(const sim::Interface& one) const {
        const Text& owner = machine_.devices[one.device].instance_id;
        return std::ranges::any_of(before_.interfaces, [&](const sim::Interface& each) {
            return std::tie(each.class_guid, each.path, each.linked) ==
                       std::tie(one.class_guid, one.path, one.linked) &&
                   before_.devices[each.device].instance_id == owner;
        });
    }

    // The path is the name of the key with # for each backslash. The part after a further backslash is a
    // reference string, which has a subkey.
    void PutInterface(const sim::Interface& one) {
        if (IsKnown(one)) {
            return;
        }
        constexpr std::size_t prefix = std::u16string_view(u"\\\\?\\").size();
        const std::size_t reference = std::min(one.path.find(u'\\', prefix), one.path.size());
        Text name = one.path.substr(0, reference),
             subkey = u"#" + one.path.substr(std::min(reference + 1, one.path.size()));
        std::ranges::replace(name, u'\\', u'#');
        std::ranges::replace(subkey, u'\\', u'#');
        const Text path = Below(Below(InControlSet(interfaces_key), GuidText(one.class_guid)), name);
        Key(path).values.SetText(u"DeviceInstance", machine_.devices[one.device].instance_id);
        Key(Below(path, subkey)).values.SetText(u"SymbolicLink", one.path);
        if (one.linked) {
            Key(Below(Below(path, subkey), u"Control")).values.SetDword(u"Linked", 1);
        }
    }

    void PutPortUsage() {
        const std::optional<std::vector<BYTE>> usage = CurrentPortUsage(file_, machine_);
        if (usage && *usage != PortDatabase(file_)->data) {
            Key(InControlSet(arbiter_key)).values.Set(com_db_value, REG_BINARY, *usage);
        }
    }

    MachineFile& file_;
    const sim::Machine& machine_;
    sim::Machine before_; // as the file described it
};

// The keys below one, in the order in which they were read or made.
void Collect(const Text& path, const TreeKey& key, std::vector<std::pair<Text, const TreeKey*>>& keys) {
    for (const auto& [name, subkey] : key.keys) {
        const Text below = Below(path, name);
        if (subkey.named) {
            keys.emplace_back(below, &subkey);
        }
        Collect(below, subkey, keys);
    }
}

void Write(ExportWriter& writer, const TreeKey& root) {
    std::vector<std::pair<Text, const TreeKey*>> keys;
    Collect(Text(local_machine.substr(0, local_machine.size() - 1)), root, keys);
    std::ranges::sort(keys, {}, [](const auto& each) { return each.second->place; });
    for (const auto& [path, key] : keys) {
        writer.Key(path);
        for (const sim::Value& value : key->values.list) {
            writer.SetValue(value.name, value.type, value.data);
        }
    }
}

} // namespace

std::optional<std::vector<BYTE>> CurrentPortUsage(const MachineFile& file, const sim::Machine& machine) {
    const sim::Value* const database = PortDatabase(file);
    if (database == nullptr) {
        return std::nullopt;
    }
    std::vector<BYTE> data = database->data;
    const sim::PortUsage& usage = machine.port_usage;
    const auto last = std::find_if(usage.rbegin(), usage.rend(), [](BYTE byte) { return byte != 0; });
    data.resize(std::max(data.size(), static_cast<std::size_t>(usage.rend() - last)));
    std::copy_n(usage.begin(), std::min(data.size(), usage.size()), data.begin());
    return data;
}

MachineFile Changed(const MachineFile& file, const sim::Machine& machine) {
    MachineFile changed = file;
    ChangedKeys(changed, machine).Put();
    return changed;
}

bool SaveMachine(const MachineFile& file, const sim::Machine& machine, const std::string& path,
                 std::string& error) {
    const MachineFile changed = Changed(file, machine);
    return WriteWhole(
        path,
        [&](std::ostream& out) {
            ExportWriter writer(out);
            Write(writer, changed.root);
        },
        error);
}

} // namespace host
