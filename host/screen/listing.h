// What the host tells in lines: the devices, a device's store, the controls in front.
#pragma once

#include <string>
#include <vector>

#include "host/screen/screen.h"
#include "host/worlds/world.h"

namespace host {

using Lines = std::vector<std::string>;

// The friendly name, else the description, else the instance id.
std::string NameOf(const Device& device);

// A value of a device's store by its name, without regard to case; null if there is none.
const StoreValue* FindValue(const std::vector<StoreValue>& store, std::string_view name);
// The text in a value's bytes, up to its terminator or their end.
Text TextIn(const std::vector<BYTE>& data);
std::string TextOf(const StoreValue& value);
// A value of exactly four bytes.
bool NumberOf(const StoreValue& value, unsigned long& number);

Lines ListDevices(const std::vector<Device>& devices);
// Numbers in decimal and hexadecimal, texts in quotes, anything else as bytes.
Lines ListStore(const std::vector<StoreValue>& store);
Lines ListControls(const Window& window);

} // namespace host
