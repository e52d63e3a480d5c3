// What differs between two states of a machine, as sentences, place by place.
#pragma once

#include <string>
#include <vector>

#include "host/diagnosis/records.h"

namespace host {

enum class ChangedPlace { Device, FriendlyName, DeviceStore, Database, SerialMap, SettingsLine };

struct Change {
    ChangedPlace place;
    std::string text; // "database: COM13: claimed -> free", on one line
};

// In the order of the places. A place is compared only if it is known in both states.
std::vector<Change> Changes(const Records& before, const Records& after);

// The same as lines, followed by the places that could not be compared; a single line says so if nothing
// differs.
std::vector<std::string> ChangeLines(const Records& before, const Records& after);

// The comments at the head of a patch: what it changes, how to import it, what it leaves out, and how that is
// put right. `made_from` is the name of the export.
std::vector<std::string> PatchComments(const std::vector<Change>& changes, const std::string& made_from);
// The comments at the head of the file that takes the patch back; `patch` is the name of the patch.
std::vector<std::string> UndoComments(const std::vector<Change>& changes, const std::string& patch);

// The path of that file: "fix-undo.reg" for "fix.reg".
std::string UndoPath(const std::string& path);

} // namespace host
