// Registry keys in a tree: what is kept of an export while it is read.
#pragma once

#include <cstddef>
#include <map>
#include <string_view>

#include "simulated/machine.h"

namespace host {

// The order in which a registry enumerates the subkeys of a key: by name, ignoring case.
struct NameOrder {
    using is_transparent = void;
    bool operator()(std::u16string_view left, std::u16string_view right) const;
};

// Takes the part of the path before its first backslash; `path` keeps the rest.
std::u16string_view TakeComponent(std::u16string_view& path);

struct TreeKey {
    std::size_t place = 0; // counts the keys of a tree in the order of their making
    bool named = false;    // occurs in the file itself, not only on the way to other keys
    sim::Values values;
    std::map<sim::Text, TreeKey, NameOrder> keys;

    // The key at a path below this one; null if there is none.
    const TreeKey* Find(std::u16string_view path) const;
    // The key at a path below this one. It is named, and made if it is missing, together with those on the
    // way to it. `count` counts all keys that were made.
    TreeKey& Make(std::u16string_view path, std::size_t& count);
    // Removes the key at a path below this one, with everything below it.
    void Erase(std::u16string_view path);
};

} // namespace host
