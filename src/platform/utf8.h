// The encodings of a character in UTF-8 and UTF-16. Half a surrogate pair counts as a character here, of
// three bytes, because texts of a registry may hold one.
#pragma once

#include "platform/platform.h"

constexpr u32 ReplacementCharacter = 0xFFFD; // stands for what is not a character

// The number of bytes of a character, from the first of them; 0 if no character begins with it.
constexpr u32 Utf8Length(BYTE lead) {
    return lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
}

// Returns the number of bytes written, at most four.
constexpr u32 EncodeUtf8(u32 character, char* bytes) {
    constexpr u32 Leads[] = {0, 0, 0xC0, 0xE0, 0xF0};
    const u32 length = character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
    for (u32 i = length - 1; i > 0; --i) {
        bytes[i] = static_cast<char>(0x80 | (character & 0x3F));
        character >>= 6;
    }
    bytes[0] = static_cast<char>(Leads[length] | character);
    return length;
}

// Returns the number of bytes of the first character; 0 if it is incomplete or no character begins here.
constexpr u32 DecodeUtf8(const char* bytes, SIZE_T count, u32* character) {
    constexpr u32 Least[] = {0, 0, 0x80, 0x800, 0x10000}; // a smaller character has a shorter form
    const u32 length = count != 0 ? Utf8Length(static_cast<BYTE>(bytes[0])) : 0;
    if (length == 0 || length > count) {
        return 0;
    }
    u32 value = static_cast<BYTE>(bytes[0]) & (length == 1 ? 0x7Fu : 0x7Fu >> length);
    for (u32 i = 1; i < length; ++i) {
        if ((bytes[i] & 0xC0) != 0x80) {
            return 0;
        }
        value = value << 6 | (bytes[i] & 0x3Fu);
    }
    if (value < Least[length] || value > 0x10FFFF) {
        return 0;
    }
    *character = value;
    return length;
}

// Returns the number of units written, at most two.
constexpr u32 EncodeUtf16(u32 character, WCHAR* units) {
    if (character < 0x10000) {
        units[0] = static_cast<WCHAR>(character);
        return 1;
    }
    units[0] = static_cast<WCHAR>(0xD7C0 + (character >> 10));
    units[1] = static_cast<WCHAR>(0xDC00 + (character & 0x3FF));
    return 2;
}

// Returns the number of units of the first character. There must be one.
constexpr u32 DecodeUtf16(const WCHAR* units, SIZE_T count, u32* character) {
    *character = units[0];
    if (count < 2 || units[0] >> 10 != 0xD800 >> 10 || units[1] >> 10 != 0xDC00 >> 10) {
        return 1;
    }
    *character = 0x10000 + ((units[0] & 0x3FFu) << 10) + (units[1] & 0x3FFu);
    return 2;
}

// Half a surrogate pair.
constexpr bool IsSurrogate(u32 character) {
    return character >> 11 == 0xD800 >> 11;
}
