#include "host/machine_file/differences.h"

#include <algorithm>
#include <map>

#include "host/text.h"

namespace host {
namespace {

using List = std::vector<Difference>;

// Values by their folded names.
std::map<std::string, const StoreValue*> ByName(const StoreValues& values) {
    std::map<std::string, const StoreValue*> by_name;
    for (const StoreValue& value : values) {
        by_name.try_emplace(Folded(ToUtf8(value.name)), &value);
    }
    return by_name;
}

// Adds "WHERE NAME: BEFORE -> AFTER" for each value that differs.
void Compare(List& list, Difference about, const StoreValues& before, const StoreValues& after) {
    if (before == after) {
        return;
    }
    const auto was = ByName(before), is = ByName(after);
    auto all = was;
    all.insert(is.begin(), is.end());
    const auto value_in = [](const auto& values, const std::string& name) {
        const auto found = values.find(name);
        return found == values.end() ? std::nullopt : std::optional(*found->second);
    };
    const std::string where = std::move(about.text);
    for (const auto& [folded, value] : all) {
        about.before = value_in(was, folded);
        about.after = value_in(is, folded);
        about.name = value->name;
        if (about.before && about.after && about.before->type == about.after->type &&
            about.before->data == about.after->data) {
            continue;
        }
        const std::string name = Escaped(ToUtf8(value->name));
        about.text = where + name + (name.ends_with(':') ? " " : ": ") +
                     (about.before     ? Told(*about.before)
                      : about.was_read ? "not there"
                                       : "not known") +
                     " -> " + (about.after ? Told(*about.after) : "gone");
        list.push_back(about);
    }
}

void CompareDevices(List& list, const Records& before, const Records& after) {
    std::map<std::string, std::pair<const DeviceRecord*, const DeviceRecord*>> pairs; // by instance id
    for (const DeviceRecord& device : before.devices) {
        pairs[Folded(device.id)].first = &device;
    }
    for (const DeviceRecord& device : after.devices) {
        pairs[Folded(device.id)].second = &device;
    }
    const bool presence_known = (before.known & after.known & InterfacesPlace) != 0;
    for (const auto& [id, pair] : pairs) {
        const auto& [was, is] = pair;
        const DeviceRecord& known = is != nullptr ? *is : *was;
        const std::string label = LabelOf(is != nullptr ? after : before, known);
        const auto add = [&](ChangedPlace place, std::string text) {
            list.push_back({place, std::move(text), known.id, {}, {}, {}});
        };
        if (was == nullptr || is == nullptr) {
            add(ChangedPlace::Device,
                "device: " + label + ", " + Escaped(known.id) + (is != nullptr ? ": new" : ": gone"));
            continue;
        }
        if (presence_known && was->present != is->present) {
            add(ChangedPlace::Device,
                "device: " + label + (is->present ? ": absent -> present" : ": present -> absent"));
        }
        if (was->friendly_name != is->friendly_name) {
            add(ChangedPlace::FriendlyName, "friendly name: " + label + ": " + Quoted(was->friendly_name) +
                                                " -> " + Quoted(is->friendly_name));
        }
        Compare(list, {ChangedPlace::DeviceStore, "device store: " + label + ": ", known.id, {}, {}, {}},
                was->store, is->store);
    }
}

void CompareDatabases(List& list, const std::vector<BYTE>& before, const std::vector<BYTE>& after) {
    const auto byte = [](const std::vector<BYTE>& usage, std::size_t index) {
        return index < usage.size() ? usage[index] : BYTE{0};
    };
    for (std::size_t index = 0; index < std::max(before.size(), after.size()); ++index) {
        const unsigned was = byte(before, index), is = byte(after, index);
        for (unsigned bit = 0; bit < 8; ++bit) {
            if (((was ^ is) >> bit & 1) != 0) {
                list.push_back({ChangedPlace::Database,
                                "database: " + ComName(8 * index + bit + 1) +
                                    ((is >> bit & 1) != 0 ? ": free -> claimed" : ": claimed -> free"),
                                {},
                                {},
                                {},
                                {}});
            }
        }
    }
}

} // namespace

List Differences(const Records& before, const Records& after) {
    List list;
    const unsigned known = before.known & after.known;
    const auto was_read = [&](Place place) { return (before.written & place) == 0; };
    if ((known & DevicesPlace) != 0) {
        CompareDevices(list, before, after);
    }
    if ((known & DatabasePlace) != 0) {
        CompareDatabases(list, before.usage, after.usage);
    }
    if ((known & SerialMapPlace) != 0) {
        Compare(list, {ChangedPlace::SerialMap, "serial map: ", {}, {}, {}, {}, was_read(SerialMapPlace)},
                before.serial_map, after.serial_map);
    }
    if ((known & SettingsPlace) != 0) {
        Compare(list,
                {ChangedPlace::SettingsLine, "settings line: ", {}, {}, {}, {}, was_read(SettingsPlace)},
                before.settings_lines, after.settings_lines);
    }
    return list;
}

const char* NameOf(ChangedPlace place) {
    static constexpr const char* names[] = {"device",   "friendlyName", "deviceStore",
                                            "database", "serialMap",    "settingsLine"};
    return names[static_cast<std::size_t>(place)];
}

std::vector<MissingPlace> NotCompared(const Records& before, const Records& after) {
    std::vector<MissingPlace> places = MissingPlaces(before.known & after.known);
    std::erase_if(places,
                  [&](const MissingPlace& each) { return ((before.known | after.known) & each.place) == 0; });
    return places;
}

std::vector<std::string> DifferenceLines(const Records& before, const Records& after) {
    std::vector<std::string> lines;
    for (const Difference& difference : Differences(before, after)) {
        lines.push_back(difference.text);
    }
    const std::vector<MissingPlace> not_compared = NotCompared(before, after);
    if (lines.empty()) {
        lines.push_back((before.known & after.known) == 0 ? "nothing can be compared"
                        : not_compared.empty()            ? "nothing differs"
                                                          : "nothing differs in what both hold");
    }
    for (const MissingPlace& missing : not_compared) {
        lines.push_back(std::string{"not compared: "} + missing.name + ", which only one of the two holds");
    }
    return lines;
}

Records AsRead(const Records& original, const Records& now) {
    Records read = original;
    read.written = now.known & ~original.known;
    read.known |= now.known;
    return read;
}

} // namespace host
