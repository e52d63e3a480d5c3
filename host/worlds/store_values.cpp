#include "host/worlds/store_values.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>

namespace host {

const StoreValue* FindValue(const StoreValues& store, std::string_view name) {
    const auto lower = [](auto unit) {
        return unit >= 'A' && unit <= 'Z' ? static_cast<WCHAR>(unit + 0x20) : static_cast<WCHAR>(unit);
    };
    const auto found = std::ranges::find_if(store, [&](const StoreValue& value) {
        return std::ranges::equal(value.name, name, {}, lower, lower);
    });
    return found == store.end() ? nullptr : &*found;
}

std::string TextOf(const StoreValue& value) {
    return ToUtf8(TextIn(value.data));
}

std::string StoredText(const StoreValues& store, std::string_view name) {
    const StoreValue* const value = FindValue(store, name);
    return value != nullptr ? TextOf(*value) : std::string();
}

unsigned long StoredNumber(const StoreValues& store, std::string_view name) {
    const StoreValue* const value = FindValue(store, name);
    std::uint32_t number = 0;
    if (value != nullptr && value->data.size() <= sizeof number) {
        std::ranges::copy(value->data, reinterpret_cast<BYTE*>(&number));
    }
    return number;
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
