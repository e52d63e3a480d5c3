// What differs between two states of a machine, in words and by place.
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

// In the order of the places. What is not known in both states is not compared.
std::vector<Change> Changes(const Records& before, const Records& after);

// The same as lines, with what could not be compared behind them; one line that says so if nothing differs.
std::vector<std::string> ChangeLines(const Records& before, const Records& after);

// What stands at the head of a patch: what it changes, how it is imported, and what it leaves out, with what
// puts that right. `made_from` is the name of the export.
std::vector<std::string> PatchComments(const std::vector<Change>& changes, const std::string& made_from);
// At the head of what takes it back; `patch` is the name of that file.
std::vector<std::string> UndoComments(const std::vector<Change>& changes, const std::string& patch);

// Of that file: "fix-undo.reg" for "fix.reg".
std::string UndoPath(const std::string& path);

} // namespace host
