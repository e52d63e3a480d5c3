// A patch: what differs between two states of a machine and nothing else, in the form that a registry editor
// imports.
#pragma once

#include <string>
#include <vector>

#include "host/machine_file/machine_file.h"

namespace host {

// What is to be done to one key. A key itself is never removed: it may hold on the real machine what the
// export did not have.
struct KeyChange {
    sim::Text path; // "HKEY_LOCAL_MACHINE\..."
    std::vector<sim::Value> set;
    std::vector<sim::Text> erased;
};

// What makes the second out of the first, in the order of the paths. Only the device stores, the COM port
// database and the settings lines are looked at: an administrator may write these, and no driver makes them
// anew at its start.
std::vector<KeyChange> KeyChanges(const MachineFile& before, const MachineFile& after);

// False if the file can't be written, with the reason. The comments stand at its head, a line each.
bool WritePatch(const std::vector<KeyChange>& changes, const std::vector<std::string>& comments,
                const std::string& path, std::string& error);

} // namespace host
