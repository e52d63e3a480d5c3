// What differs between two states of a machine, place by place. `changes`, `diff`, a patch and its comments
// are all written from this one list.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/worlds/records.h"

namespace host {

enum class ChangedPlace { Device, FriendlyName, DeviceStore, Database, SerialMap, SettingsLine };

struct Difference {
    ChangedPlace place;
    std::string text;   // "database: COM13: claimed -> free", on one line
    std::string device; // the instance id, if it is about a device
    Text name;          // of the value in a device's store, in the serial map or among the settings lines
    // That value; nothing where there is none.
    std::optional<StoreValue> before, after;
    bool was_read = true; // otherwise nobody knows what was there before
};

// In the order of the places. A place is compared only if it is known in both states.
std::vector<Difference> Differences(const Records& before, const Records& after);

// Its name for programs, which never changes.
const char* NameOf(ChangedPlace place);

// The places that are known in only one of the two states.
std::vector<MissingPlace> NotCompared(const Records& before, const Records& after);

// The same as lines, followed by the places that could not be compared; the first line says so if nothing
// differs, or if no place could be compared.
std::vector<std::string> DifferenceLines(const Records& before, const Records& after);

// A machine from a file as it was read, to be compared with what it has become: of a place that the file did
// not hold, it says that what is in it now was written since.
Records AsRead(const Records& original, const Records& now);

} // namespace host
