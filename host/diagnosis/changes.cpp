#include "host/diagnosis/changes.h"

#include <algorithm>
#include <map>

#include "host/diagnosis/diagnosis.h"
#include "host/text.h"

namespace host {
namespace {

using Lines = std::vector<std::string>;
using ChangeList = std::vector<Change>;
// What is there, by name. Names are compared without case and shown as they are.
using Entries = std::map<std::string, std::pair<std::string, std::string>>;

Entries EntriesOf(const TextPairs& texts) {
    Entries entries;
    for (const auto& [name, text] : texts) {
        entries.try_emplace(Folded(name), name, Quoted(text));
    }
    return entries;
}

Entries EntriesOf(const std::vector<StoreValue>& store) {
    Entries entries;
    for (const StoreValue& value : store) {
        const std::string name = ToUtf8(value.name);
        entries.try_emplace(Folded(name), name, Told(value));
    }
    return entries;
}

// Adds "NAME: BEFORE -> AFTER", with `where` before it, for each entry that differs.
void Compare(ChangeList& changes, ChangedPlace place, const std::string& where, const Entries& before,
             const Entries& after) {
    Entries all = before;
    all.insert(after.begin(), after.end());
    for (const auto& each : all) {
        const auto text = [&each](const Entries& entries, const char* missing) {
            const auto found = entries.find(each.first);
            return found == entries.end() ? missing : found->second.second;
        };
        const std::string was = text(before, "not there"), is = text(after, "gone");
        if (was != is) {
            changes.push_back({place, where + Escaped(each.second.first) + ": " + was + " -> " + is});
        }
    }
}

void CompareDevices(ChangeList& changes, const Records& before, const Records& after) {
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
        if (was == nullptr || is == nullptr) {
            changes.push_back({ChangedPlace::Device, "device: " + label + ", " + Escaped(known.id) +
                                                         (is != nullptr ? ": new" : ": gone")});
            continue;
        }
        if (presence_known && was->present != is->present) {
            changes.push_back(
                {ChangedPlace::Device,
                 "device: " + label + (is->present ? ": absent -> present" : ": present -> absent")});
        }
        if (was->friendly_name != is->friendly_name) {
            changes.push_back({ChangedPlace::FriendlyName, "friendly name: " + label + ": " +
                                                               Quoted(was->friendly_name) + " -> " +
                                                               Quoted(is->friendly_name)});
        }
        Compare(changes, ChangedPlace::DeviceStore, "device store: " + label + ": ", EntriesOf(was->store),
                EntriesOf(is->store));
    }
}

void CompareDatabases(ChangeList& changes, const std::vector<bool>& before, const std::vector<bool>& after) {
    const auto is_claimed = [](const std::vector<bool>& claimed, std::size_t index) {
        return index < claimed.size() && claimed[index];
    };
    for (std::size_t index = 0; index < std::max(before.size(), after.size()); ++index) {
        const bool was = is_claimed(before, index), is = is_claimed(after, index);
        if (was != is) {
            changes.push_back({ChangedPlace::Database, "database: " + ComName(index + 1) +
                                                           (is ? ": free -> claimed" : ": claimed -> free")});
        }
    }
}

// --- A patch ---

// What only the system or a driver writes, and how it is put right.
struct LeftOut {
    ChangedPlace place;
    const char* heading;
    const char* put_right[2];
};
constexpr LeftOut left_outs[] = {
    {ChangedPlace::SerialMap,
     "Not in this file, because drivers make it anew whenever they start a port:",
     {"The restart puts it right: the driver enters the port under the number that PortName has then.", ""}},
    {ChangedPlace::FriendlyName,
     "Not in this file, because only the system writes this key:",
     {"Device Manager shows the old number, which misleads and does no harm, until the port is given its",
      "number on its page there (Advanced) or its driver is reinstalled."}},
    {ChangedPlace::Device, "Not in this file, because the system finds devices by itself:", {"", ""}},
};

bool IsInPatch(const Change& change) {
    return std::ranges::find(left_outs, change.place, &LeftOut::place) == std::end(left_outs);
}

template <class Wanted> void AddChanges(Lines& lines, const ChangeList& changes, const Wanted& wanted) {
    for (const Change& change : changes) {
        if (wanted(change)) {
            lines.push_back("  " + change.text);
        }
    }
}

} // namespace

ChangeList Changes(const Records& before, const Records& after) {
    ChangeList changes;
    const unsigned known = before.known & after.known;
    if ((known & DevicesPlace) != 0) {
        CompareDevices(changes, before, after);
    }
    if ((known & DatabasePlace) != 0) {
        CompareDatabases(changes, before.claimed, after.claimed);
    }
    if ((known & SerialMapPlace) != 0) {
        Compare(changes, ChangedPlace::SerialMap, "serial map: ", EntriesOf(before.serial_map),
                EntriesOf(after.serial_map));
    }
    if ((known & SettingsPlace) != 0) {
        Compare(changes, ChangedPlace::SettingsLine, "settings line: ", EntriesOf(before.settings_lines),
                EntriesOf(after.settings_lines));
    }
    return changes;
}

Lines ChangeLines(const Records& before, const Records& after) {
    Lines lines;
    for (const Change& change : Changes(before, after)) {
        lines.push_back(change.text);
    }
    if (lines.empty()) {
        lines.push_back("nothing differs");
    }
    for (const MissingPlace& missing : MissingPlaces(before.known & after.known)) {
        if (((before.known | after.known) & missing.place) != 0) {
            lines.push_back(std::string{"not compared: "} + missing.name + ", known in only one of the two");
        }
    }
    return lines;
}

Lines PatchComments(const ChangeList& changes, const std::string& made_from) {
    Lines lines = {"What this file changes:"};
    AddChanges(lines, changes, &IsInPatch);
    lines.insert(
        lines.end(),
        {"", "Made from " + Escaped(made_from) + ".",
         "An administrator imports it on that machine (a double click, or regedit /s FILE) and restarts",
         "the machine, or the ports that it names."});
    if (std::ranges::find(changes, ChangedPlace::Database, &Change::place) != changes.end()) {
        lines.insert(lines.end(),
                     {"The COM port database is one value: what was claimed since the export is lost by the",
                      "import. So import it soon, and make it from a fresh export."});
    }
    for (const LeftOut& left_out : left_outs) {
        const auto is_of = [&](const Change& change) { return change.place == left_out.place; };
        if (std::ranges::any_of(changes, is_of)) {
            lines.insert(lines.end(), {"", left_out.heading});
            AddChanges(lines, changes, is_of);
            lines.insert(lines.end(), std::begin(left_out.put_right), std::end(left_out.put_right));
        }
    }
    return lines;
}

Lines UndoComments(const ChangeList& changes, const std::string& patch) {
    Lines lines = {"Takes back what " + Escaped(patch) + " changes:"};
    AddChanges(lines, changes, &IsInPatch);
    lines.insert(lines.end(), {"", "An administrator imports it and restarts the machine, or the ports."});
    return lines;
}

std::string UndoPath(const std::string& path) {
    constexpr std::string_view ending = ".reg";
    const std::size_t length =
        path.size() >= ending.size() && Folded(path.substr(path.size() - ending.size())) == ending
            ? path.size() - ending.size()
            : path.size();
    return path.substr(0, length) + "-undo" + std::string{ending};
}

} // namespace host
