#include "host/machine_file/registry_tree.h"

#include <algorithm>

namespace host {

bool NameOrder::operator()(std::u16string_view left, std::u16string_view right) const {
    // Names that are compared mostly begin alike, unit by unit.
    for (std::size_t at = 0; at < std::min(left.size(), right.size()); ++at) {
        if (left[at] != right[at] && sim::Upper(left[at]) != sim::Upper(right[at])) {
            return sim::Upper(left[at]) < sim::Upper(right[at]);
        }
    }
    return left.size() < right.size();
}

std::u16string_view TakeComponent(std::u16string_view& path) {
    const std::u16string_view component = path.substr(0, path.find(u'\\'));
    path.remove_prefix(std::min(component.size() + 1, path.size()));
    return component;
}

const TreeKey* TreeKey::Find(std::u16string_view path) const {
    const TreeKey* key = this;
    while (!path.empty()) {
        const auto found = key->keys.find(TakeComponent(path));
        if (found == key->keys.end()) {
            return nullptr;
        }
        key = &found->second;
    }
    return key;
}

TreeKey& TreeKey::Make(std::u16string_view path, std::size_t& count) {
    TreeKey* key = this;
    while (!path.empty()) {
        const std::u16string_view name = TakeComponent(path);
        auto found = key->keys.find(name);
        if (found == key->keys.end()) {
            found = key->keys.try_emplace(sim::Text(name)).first;
            found->second.place = ++count;
        }
        key = &found->second;
    }
    key->named = true;
    return *key;
}

void TreeKey::Erase(std::u16string_view path) {
    TreeKey* key = this;
    for (;;) {
        const auto found = key->keys.find(TakeComponent(path));
        if (found == key->keys.end()) {
            return;
        }
        if (path.empty()) {
            key->keys.erase(found);
            return;
        }
        key = &found->second;
    }
}

} // namespace host
