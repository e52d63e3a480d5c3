// The part of a registry export that is kept while it is read: the keys and values that make up a machine.
#include "host/machine_file/machine_keeper.h"

#include <algorithm>

#include "host/machine_file/machine_places.h"

namespace host {
namespace {

using TextView = std::u16string_view;

// The keys below HKEY_LOCAL_MACHINE that have a meaning, and which of their values; all of them if none is
// named. An asterisk stands for any name, a question mark for the name of a control set.
struct KeptKey {
    TextView path;
    TextView values[4];
};
constexpr KeptKey kept_keys[] = {
    {u"SYSTEM\\Select", {u"Current"}},
    {serial_map_key, {}},
    {ports_key, {}},
    {u"SYSTEM\\?\\Enum\\*\\*\\*", {u"DeviceDesc", u"FriendlyName", u"Class", u"ClassGUID"}},
    {u"SYSTEM\\?\\Enum\\*\\*\\*\\Device Parameters", {}},
    {u"SYSTEM\\?\\Control\\DeviceClasses\\*\\*", {u"DeviceInstance"}},
    {u"SYSTEM\\?\\Control\\DeviceClasses\\*\\*\\Control", {u"Linked"}},
    {u"SYSTEM\\?\\Control\\DeviceClasses\\*\\*\\*", {u"SymbolicLink"}},
    {u"SYSTEM\\?\\Control\\DeviceClasses\\*\\*\\*\\Control", {u"Linked"}},
    {u"SYSTEM\\?\\Control\\COM Name Arbiter", {u"ComDB"}},
    // Newer systems keep the name of a device's class only with the class.
    {u"SYSTEM\\?\\Control\\Class\\*", {u"Class"}},
};

enum class Fit {
    None,
    Whole,
    Mistaken, // a name that has a meaning is followed by a slash
};

// Names may hold slashes, but a slash after a name of the pattern is meant to be a backslash.
Fit FitOf(TextView path, TextView pattern) {
    while (!pattern.empty() && !path.empty()) {
        const TextView wanted = TakeComponent(pattern);
        const TextView name = TakeComponent(path);
        const std::size_t slash = name.find(u'/');
        const bool is_free = wanted == u"*" || wanted == u"?";
        if (slash != TextView::npos && wanted != u"*" &&
            (is_free || sim::EqualNoCase(name.substr(0, slash), wanted))) {
            return Fit::Mistaken;
        }
        if (name.empty() || (!is_free && !sim::EqualNoCase(wanted, name))) {
            return Fit::None;
        }
    }
    return pattern.empty() && path.empty() ? Fit::Whole : Fit::None;
}

bool TakePrefix(TextView& path, TextView prefix) {
    const bool is_there = sim::EqualNoCase(path.substr(0, prefix.size()), prefix);
    path.remove_prefix(is_there ? prefix.size() : 0);
    return is_there;
}

} // namespace

KeyUse MachineKeeper::Key(TextView path) {
    values_ = {};
    key_ = nullptr;
    if (!TakePrefix(path, local_machine)) {
        return KeyUse::Unwanted;
    }
    for (const KeptKey& kept : kept_keys) {
        const Fit fit = FitOf(path, kept.path);
        if (fit == Fit::Mistaken) {
            return KeyUse::Mistaken;
        }
        if (fit == Fit::Whole) {
            values_ = kept.values;
            key_ = &root_.Make(path, count_);
            names_.clear();
            for (const sim::Value& value : key_->values.list) {
                names_.insert(value.name);
            }
            return KeyUse::Wanted;
        }
    }
    return KeyUse::Unwanted;
}

void MachineKeeper::DeleteKey(TextView path) {
    if (TakePrefix(path, local_machine)) {
        root_.Erase(path);
    }
}

void MachineKeeper::SetValue(TextView name, DWORD type, std::span<const BYTE> data) {
    if (values_[0].empty() ||
        std::ranges::any_of(values_, [name](TextView each) { return sim::EqualNoCase(each, name); })) {
        if (names_.emplace(name).second) {
            key_->values.list.push_back({sim::Text(name), type, {data.begin(), data.end()}});
        } else {
            key_->values.Set(name, type, {data.begin(), data.end()});
        }
    }
}

void MachineKeeper::DeleteValue(TextView name) {
    key_->values.Erase(name);
    names_.erase(sim::Text(name));
}

} // namespace host
