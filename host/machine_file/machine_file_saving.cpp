#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

#include "host/machine_file/guid_text.h"
#include "host/machine_file/machine_file.h"
#include "host/machine_file/machine_places.h"

namespace host {
namespace {

using sim::Text;

// The path of a key below another one.
Text Below(std::u16string_view key, std::u16string_view subkey) {
    return Text(key).append(u"\\").append(subkey);
}

Text InControlSet(std::u16string_view key) {
    return Below(Text(LocalMachine).append(CurrentSet), key);
}

void WriteValues(ExportWriter& writer, const sim::Values& values) {
    for (const sim::Value& value : values.list) {
        writer.SetValue(value.name, value.type, value.data);
    }
}

// Values that a key has if the machine knows them.
struct NamedTexts : sim::Values {
    NamedTexts& Add(std::u16string_view name, const std::optional<Text>& text) {
        if (text) {
            SetText(name, *text);
        }
        return *this;
    }
};

void WriteDevice(ExportWriter& writer, const sim::Device& device) {
    const Text key = Below(InControlSet(DevicesKey), device.instance_id);
    NamedTexts values;
    values.Add(u"DeviceDesc", device.description).Add(u"FriendlyName", device.friendly_name);
    if (!device.class_name.empty()) {
        values.Add(u"Class", device.class_name);
    }
    if (device.class_guid) {
        values.Add(u"ClassGUID", GuidText(*device.class_guid));
    }
    writer.Key(key);
    WriteValues(writer, values);
    if (device.has_key) {
        writer.Key(Below(key, HardwareKey));
        WriteValues(writer, device.key);
    }
}

// The path is the name of the key, with # for each backslash; what stands behind a backslash of its own is a
// reference string, which has a subkey.
void WriteInterface(ExportWriter& writer, const sim::Interface& one, const Text& instance_id) {
    constexpr std::size_t prefix = std::u16string_view(u"\\\\?\\").size();
    const std::size_t reference = std::min(one.path.find(u'\\', prefix), one.path.size());
    Text name = one.path.substr(0, reference),
         subkey = u"#" + one.path.substr(std::min(reference + 1, one.path.size()));
    std::replace(name.begin(), name.end(), u'\\', u'#');
    std::replace(subkey.begin(), subkey.end(), u'\\', u'#');
    const Text key = Below(Below(InControlSet(InterfacesKey), GuidText(one.class_guid)), name);
    writer.Key(key);
    WriteValues(writer, NamedTexts().Add(u"DeviceInstance", instance_id));
    writer.Key(Below(key, subkey));
    WriteValues(writer, NamedTexts().Add(u"SymbolicLink", one.path));
    if (one.linked) {
        sim::Values control;
        control.SetDword(u"Linked", 1);
        writer.Key(Below(Below(key, subkey), u"Control"));
        WriteValues(writer, control);
    }
}

void WriteMachine(ExportWriter& writer, const sim::Machine& machine) {
    for (const sim::Device& device : machine.devices) {
        WriteDevice(writer, device);
    }
    for (const sim::Interface& one : machine.interfaces) {
        WriteInterface(writer, one, machine.devices[one.device].instance_id);
    }
    writer.Key(InControlSet(ArbiterKey));
    writer.SetValue(u"ComDB", REG_BINARY, machine.port_usage);
    if (machine.serial_map_exists) {
        writer.Key(Text(LocalMachine).append(SerialMapKey));
        WriteValues(writer, machine.serial_map);
    }
    for (const auto& [section, values] : machine.profile) {
        if (sim::EqualNoCase(section, PortsSection)) {
            writer.Key(Text(LocalMachine).append(PortsKey));
            WriteValues(writer, values);
        }
    }
}

} // namespace

bool SaveMachine(const sim::Machine& machine, const std::string& file, std::string& error) {
    errno = 0;
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    ExportWriter writer(out);
    WriteMachine(writer, machine);
    out.close();
    if (!out) {
        error = "can't write " + file + ": " + std::strerror(errno);
    }
    return static_cast<bool>(out);
}

} // namespace host
