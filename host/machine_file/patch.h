// A patch: only what differs between two states of a machine, in the form that a registry editor imports.
#pragma once

#include <string>
#include <vector>

#include "host/machine_file/machine_file.h"

namespace host {

// The changes to one key. A key itself is never removed, because on the real machine it may hold what the
// export did not have.
struct KeyChange {
    sim::Text path; // "HKEY_LOCAL_MACHINE\..."
    std::vector<sim::Value> set;
    std::vector<sim::Text> erased;
};

// The changes that lead from the first to the second, in the order of the paths. They cover only the device
// stores, the COM port database and the settings lines: an administrator may write these, and no driver makes
// them anew when it starts.
std::vector<KeyChange> KeyChanges(const MachineFile& before, const MachineFile& after);

// The comments come first, one per line. Returns false with the reason if the file can't be written.
bool WritePatch(const std::vector<KeyChange>& changes, const std::vector<std::string>& comments,
                const std::string& path, std::string& error);

} // namespace host
