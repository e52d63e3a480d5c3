// What the keys do at the moment, told at the foot of the screen. A hint can be clicked: that does what its
// key does.
#pragma once

#include <string>
#include <vector>

#include "host/full_screen/terminal.h"
#include "host/screen/placement.h"

namespace host {

struct Hint {
    std::string key;  // "F2", "^S"
    std::string does; // "ports"; empty if the next hint says it for both
    Event event;      // of the key
};

// The two keys of a direction.
void AddPair(std::vector<Hint>& hints, const char* back, UINT back_code, const char* forth, UINT forth_code,
             const std::string& does);

// The hints in rows of so many columns, in their order; those that no row holds are left out. Places are
// within the rows.
struct PlacedHint {
    const Hint* hint;
    Cells cells;
};
std::vector<PlacedHint> PlaceHints(const std::vector<Hint>& hints, int columns, int most_rows);

} // namespace host
