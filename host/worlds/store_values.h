// The contents of values in a device store.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/worlds/world.h"

namespace host {

// A value of a device's store by its name, ignoring case; null if there is none.
const StoreValue* FindValue(const std::vector<StoreValue>& store, std::string_view name);

// The text up to its terminator or the end of its bytes.
std::string TextOf(const StoreValue& value);

// False unless the value has exactly four bytes.
bool NumberOf(const StoreValue& value, unsigned long& number);

// On one line: numbers in decimal and hexadecimal, texts in quotes, anything else as bytes.
std::string Told(const StoreValue& value);

// The name of a type in a list: "dword", "text".
std::string TypeName(DWORD type);

} // namespace host
