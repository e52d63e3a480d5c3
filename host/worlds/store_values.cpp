#include "host/worlds/store_values.h"

#include <cinttypes>
#include <cstdio>
#include <cstring>

#include "host/text.h"

namespace host {

const StoreValue* FindValue(const std::vector<StoreValue>& store, std::string_view name) {
    const std::string wanted = Folded(name);
    for (const StoreValue& value : store) {
        if (Folded(ToUtf8(value.name)) == wanted) {
            return &value;
        }
    }
    return nullptr;
}

std::string TextOf(const StoreValue& value) {
    return ToUtf8(TextIn(value.data));
}

bool NumberOf(const StoreValue& value, unsigned long& number) {
    std::uint32_t bytes = 0;
    if (value.data.size() != sizeof bytes) {
        return false;
    }
    std::memcpy(&bytes, value.data.data(), sizeof bytes);
    number = bytes;
    return true;
}

std::string TypeName(DWORD type) {
    static constexpr std::pair<DWORD, const char*> names[] = {
        {REG_NONE, "none"},     {REG_SZ, "text"},     {REG_EXPAND_SZ, "text, expanding"},
        {REG_BINARY, "binary"}, {REG_DWORD, "dword"}, {REG_MULTI_SZ, "texts"},
        {REG_QWORD, "qword"}};
    for (const auto& [number, name] : names) {
        if (type == number) {
            return name;
        }
    }
    return "type " + std::to_string(type);
}

std::string Told(const StoreValue& value) {
    const bool dword = value.type == REG_DWORD && value.data.size() == 4;
    if (dword || (value.type == REG_QWORD && value.data.size() == 8)) {
        std::uint64_t number = 0;
        std::memcpy(&number, value.data.data(), value.data.size());
        char text[48];
        std::snprintf(text, sizeof text, "%" PRIu64 " (0x%" PRIX64 ")", number, number);
        return text;
    }
    // A text is shown as a text only if nothing of it is lost.
    const Text text = TextIn(value.data);
    if ((value.type == REG_SZ || value.type == REG_EXPAND_SZ) &&
        value.data.size() == (text.size() + 1) * sizeof(WCHAR)) {
        return Quoted(ToUtf8(text));
    }
    return HexBytes(value.data);
}

} // namespace host
