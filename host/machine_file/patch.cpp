#include "host/machine_file/patch.h"

#include <algorithm>
#include <set>

#include "host/machine_file/machine_places.h"
#include "host/machine_file/whole_file.h"

namespace host {
namespace {

using sim::Text;

bool IsPatched(std::u16string_view path) {
    for (const std::u16string_view place : {hardware_key, arbiter_key, ports_key}) {
        if (path.size() > place.size() && path[path.size() - place.size() - 1] == u'\\' &&
            sim::EqualNoCase(path.substr(path.size() - place.size()), place)) {
            return true;
        }
    }
    return false;
}

// Null stands for a key that does not exist.
const sim::Values& ValuesOf(const TreeKey* key) {
    static const sim::Values none;
    return key != nullptr ? key->values : none;
}

KeyChange CompareValues(const Text& path, const sim::Values& before, const sim::Values& after) {
    KeyChange change{path, {}, {}};
    for (const sim::Value& value : after.list) {
        const sim::Value* const was = before.Find(value.name);
        if (was == nullptr || was->type != value.type || was->data != value.data) {
            change.set.push_back(value);
        }
    }
    for (const sim::Value& value : before.list) {
        if (after.Find(value.name) == nullptr) {
            change.erased.push_back(value.name);
        }
    }
    return change;
}

const TreeKey* Subkey(const TreeKey* key, const Text& name) {
    return key != nullptr ? key->Find(name) : nullptr;
}

void Compare(const Text& path, const TreeKey* before, const TreeKey* after, std::vector<KeyChange>& changes) {
    if (IsPatched(path)) {
        KeyChange change = CompareValues(path, ValuesOf(before), ValuesOf(after));
        if (!change.set.empty() || !change.erased.empty()) {
            changes.push_back(std::move(change));
        }
    }
    std::set<Text, NameOrder> names;
    for (const TreeKey* const key : {before, after}) {
        if (key != nullptr) {
            for (const auto& [name, subkey] : key->keys) {
                names.insert(name);
            }
        }
    }
    for (const Text& name : names) {
        Compare(Below(path, name), Subkey(before, name), Subkey(after, name), changes);
    }
}

} // namespace

std::vector<KeyChange> KeyChanges(const MachineFile& before, const MachineFile& after) {
    std::vector<KeyChange> changes;
    Compare(Text(local_machine.substr(0, local_machine.size() - 1)), &before.root, &after.root, changes);
    return changes;
}

bool WritePatch(const std::vector<KeyChange>& changes, const std::vector<std::string>& comments,
                const std::string& path, std::string& error) {
    return WriteWhole(
        path,
        [&](std::ostream& out) {
            ExportWriter writer(out);
            for (const std::string& comment : comments) {
                writer.Comment(sim::FromUtf8(comment));
            }
            for (const KeyChange& change : changes) {
                writer.Key(change.path);
                for (const sim::Value& value : change.set) {
                    writer.SetValue(value.name, value.type, value.data);
                }
                for (const Text& name : change.erased) {
                    writer.DeleteValue(name);
                }
            }
        },
        error);
}

} // namespace host
