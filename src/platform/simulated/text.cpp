// Text: UTF-8 and UTF-16, comparison without case, text in buffers, and Windows' own text operations.
#include <algorithm>
#include <cstring>

#include "platform/simulated/stage.h"

namespace sim {
namespace {

constexpr char32_t no_character = 0xFFFD;

bool IsHigh(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLow(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

// Appends a character as one lead byte and its continuation bytes of six bits each.
void AppendUtf8(std::string& utf8, char32_t character) {
    static constexpr struct {
        char32_t end; // the first character that needs more bytes
        int continuations;
        unsigned lead;
    } forms[] = {{0x80, 0, 0x00}, {0x800, 1, 0xC0}, {0x10000, 2, 0xE0}, {0x110000, 3, 0xF0}};
    const auto* form = forms;
    while (character >= form->end) {
        ++form;
    }
    utf8 += static_cast<char>(form->lead | character >> 6 * form->continuations);
    for (int left = form->continuations; left-- > 0;) {
        utf8 += static_cast<char>(0x80 | (character >> 6 * left & 0x3F));
    }
}

// Takes one character off the front; a byte that begins no character gives U+FFFD.
char32_t TakeUtf8(std::string_view& utf8) {
    const auto lead = static_cast<BYTE>(utf8.front());
    utf8.remove_prefix(1);
    if (lead < 0x80) {
        return lead;
    }
    const std::size_t continuations = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || utf8.size() < continuations) {
        return no_character;
    }
    char32_t character = lead & (0x3Fu >> continuations);
    for (const char next : utf8.substr(0, continuations)) {
        if ((next & 0xC0) != 0x80) {
            return no_character;
        }
        character = character << 6 | (next & 0x3F);
    }
    static constexpr char32_t least[] = {0, 0x80, 0x800, 0x10000};
    if (character < least[continuations] || character >= 0x110000) {
        return no_character;
    }
    utf8.remove_prefix(continuations);
    return character;
}

} // namespace

std::string ToUtf8(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t character = text[i];
        if (IsHigh(character) && i + 1 < text.size() && IsLow(text[i + 1])) {
            character = 0x10000 + ((character - 0xD800) << 10) + (text[++i] - 0xDC00u);
        }
        AppendUtf8(utf8, character);
    }
    return utf8;
}

Text FromUtf8(std::string_view utf8) {
    Text text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const char32_t character = TakeUtf8(utf8);
        if (character < 0x10000) {
            text += static_cast<char16_t>(character);
        } else {
            text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            text += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
        }
    }
    return text;
}

bool EqualNoCase(std::u16string_view left, std::u16string_view right) {
    if (left.size() != right.size()) {
        return false;
    }
    // Compared from the end, because the names of a group begin alike.
    for (std::size_t i = left.size(); i-- > 0;) {
        if (left[i] != right[i] && Upper(left[i]) != Upper(right[i])) {
            return false;
        }
    }
    return true;
}

void ExpectItsTerminator(const void* data, std::size_t bytes, std::string_view operation) {
    if (bytes != (TextIn(data, bytes).size() + 1) * sizeof(WCHAR)) {
        Misuse(std::string(operation) + ": a text whose size does not end at its terminator");
    }
}

Text TextIn(const void* data, std::size_t bytes) {
    Text text(bytes / sizeof(WCHAR), u'\0');
    if (!text.empty()) {
        std::memcpy(text.data(), data, text.size() * sizeof(WCHAR));
    }
    text.resize(std::min(text.size(), text.find(u'\0')));
    return text;
}

std::vector<BYTE> BytesOf(std::u16string_view text) {
    std::vector<BYTE> bytes((text.size() + 1) * sizeof(WCHAR));
    std::memcpy(bytes.data(), text.data(), text.size() * sizeof(WCHAR));
    return bytes;
}

std::string Quoted(std::u16string_view text) {
    return '"' + ToUtf8(text) + '"';
}

} // namespace sim

int lstrlenW(LPCWSTR text) {
    return text != nullptr ? static_cast<int>(std::u16string_view(text).size()) : 0;
}

int lstrcmpW(LPCWSTR left, LPCWSTR right) {
    const int order = std::u16string_view(left).compare(right);
    return (order > 0) - (order < 0);
}
