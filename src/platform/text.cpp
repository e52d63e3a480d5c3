#include "platform/text.h"

#include <cstdio>
#include <cstring>

#include "platform/utf8.h"

std::string ToUtf8(std::basic_string_view<WCHAR> text) {
    std::string utf8;
    utf8.reserve(text.size());
    while (!text.empty()) {
        u32 character = 0;
        text.remove_prefix(DecodeUtf16(text.data(), text.size(), &character));
        AppendUtf8(utf8, character);
    }
    return utf8;
}

std::basic_string<WCHAR> FromUtf8(std::string_view utf8) {
    std::basic_string<WCHAR> text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        WCHAR units[2];
        text.append(units, EncodeUtf16(TakeUtf8(utf8), units));
    }
    return text;
}

void AppendUtf8(std::string& utf8, char32_t character) {
    char bytes[4];
    utf8.append(bytes, EncodeUtf8(character, bytes));
}

char32_t TakeUtf8(std::string_view& utf8) {
    u32 character = ReplacementCharacter;
    const u32 length = DecodeUtf8(utf8.data(), utf8.size(), &character);
    utf8.remove_prefix(length != 0 ? length : 1);
    return character;
}

std::basic_string<WCHAR> TextIn(std::span<const BYTE> data) {
    std::basic_string<WCHAR> text(data.size() / sizeof(WCHAR), 0);
    if (!text.empty()) {
        std::memcpy(text.data(), data.data(), text.size() * sizeof(WCHAR));
    }
    return text.substr(0, text.find(WCHAR{0}));
}

std::string HexBytes(std::span<const BYTE> data) {
    std::string hex;
    for (const BYTE byte : data) {
        char digits[4];
        std::snprintf(digits, sizeof digits, hex.empty() ? "%02x" : " %02x", byte);
        hex += digits;
    }
    return hex;
}

std::string ValueInJournal(DWORD type, std::span<const BYTE> data) {
    DWORD number = 0;
    if (type == REG_DWORD && data.size() == sizeof number) {
        std::memcpy(&number, data.data(), sizeof number);
        return std::to_string(number);
    }
    if (type == REG_SZ && data.size() % sizeof(WCHAR) == 0) {
        return '"' + ToUtf8(TextIn(data)) + '"';
    }
    return HexBytes(data);
}
