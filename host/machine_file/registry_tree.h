// Registry keys in a tree: what is kept of an export while it is read.
#pragma once

#include <cstddef>
#include <map>
#include <string_view>

#include "platform/simulated/machine.h"

namespace host {

// The order in which a registry enumerates the subkeys of a key: by name, without regard to case.
struct NameOrder {
    using is_transparent = void;
    bool operator()(std::u16string_view left, std::u16string_view right) const;
};

// The part of the path before its first backslash; `path` keeps what follows it.
std::u16string_view TakeComponent(std::u16string_view& path);

struct TreeKey {
    std::size_t place = 0; // counts the keys of a tree in the order in which they were made
    bool named = false;    // stands in the file itself, not only on the way to other keys
    sim::Values values;
    std::map<sim::Text, TreeKey, NameOrder> keys;

    // The key at a path below this one; null if there is none.
    const TreeKey* Find(std::u16string_view path) const;
    // The key at a path below this one, made with those on the way to it where they are missing, and named.
    // `count` is that of all keys that were made.
    TreeKey& Make(std::u16string_view path, std::size_t& count);
    // Removes the key at a path below this one, with all below it.
    void Erase(std::u16string_view path);
};

} // namespace host
