// The two boards and their ports that the check makes: check/machine.reg, which this program carries.
#pragma once

#include <string>
#include <vector>

#include "host/worlds/store_values.h"

namespace check {

struct OwnDevice {
    std::string id;
    host::Text description, friendly_name; // the latter may be empty
    host::StoreValues store;
    std::vector<GUID> interfaces;
};

struct OwnMachine {
    std::vector<OwnDevice> devices;
    host::StoreValues serial_map;     // named by the port's object; "COM247"
    host::StoreValues settings_lines; // named "COM247:"
    std::vector<BYTE> usage;          // a bit for each number, as in the database
};

const OwnMachine& TheOwnMachine();

// The device of that id, ignoring case; null if it is none of them.
const OwnDevice* FindOwnDevice(const std::string& id);

} // namespace check
