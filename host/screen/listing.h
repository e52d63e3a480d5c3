// What the host shows in lines: the devices, a device's store, the controls in front.
#pragma once

#include <string>
#include <vector>

#include "host/screen/screen.h"
#include "host/worlds/records.h"

namespace host {

using Lines = std::vector<std::string>;

// Those with a sheet.
Lines ListDevices(const Records& records);
// Numbers in decimal and hexadecimal, texts in quotes, anything else as bytes.
Lines ListStore(const StoreValues& store);
Lines ListControls(const Window& window);
// The window without its places, for those who hear it: one control a line with kind, name and state, in tab
// order, and under its group.
Lines ListWindow(const Window& window);

} // namespace host
