// A patch: only what differs between two states of a machine, in the form that a registry editor imports,
// with what takes it back.
#pragma once

#include <string>

#include "host/machine_file/differences.h"

namespace host {

struct PatchSource {
    const Records& before;
    const Records& after;
    const Text& control_set; // the path of the control set below HKEY_LOCAL_MACHINE
    std::string name;        // of the export that was read
};

// Writes the file and the one that takes it back, each with comments that say what it changes, how it is
// imported, what it leaves out, and how that is put right. They cover the device stores, the COM port
// database and the settings lines: an administrator may write these, and no driver makes them anew when it
// starts. Returns false with a reason in `error` if that fails or there is nothing to write.
bool WritePatch(const PatchSource& source, const std::string& path, std::string& error);

// The path of the file that takes a patch back: "fix-undo.reg" for "fix.reg".
std::string UndoPath(const std::string& path);

} // namespace host
