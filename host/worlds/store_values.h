// The contents of values in a device store.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/text.h"
#include "platform/platform.h"

namespace host {

struct StoreValue {
    Text name;
    DWORD type = 0;
    std::vector<BYTE> data;
    friend bool operator==(const StoreValue&, const StoreValue&) = default;
};
using StoreValues = std::vector<StoreValue>;

// A value by its name, ignoring the case of letters without accents; null if there is none.
const StoreValue* FindValue(const StoreValues& store, std::string_view name);

// The text up to its terminator or the end of its bytes.
std::string TextOf(const StoreValue& value);
// The text of a value; empty if it is missing.
std::string StoredText(const StoreValues& store, std::string_view name);

// A number as the pages read it: a shorter value fills only its own bytes. 0 if it is missing or longer.
unsigned long StoredNumber(const StoreValues& store, std::string_view name);

// On one line: numbers in decimal and hexadecimal, texts in quotes, anything else as bytes.
std::string Told(const StoreValue& value);

// The name of a type in a list: "dword", "text".
std::string TypeName(DWORD type);

} // namespace host
