#include "host/machine_file/guid_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace host {
namespace {

constexpr std::u16string_view form = u"{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}";

} // namespace

std::optional<GUID> ParseGuid(std::u16string_view text) {
    if (text.size() != form.size()) {
        return std::nullopt;
    }
    std::string digits;
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] == u'x') {
            digits += text[i] < 0x80 ? static_cast<char>(text[i]) : '?';
        } else if (text[i] != form[i]) {
            return std::nullopt;
        }
    }
    if (digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
        return std::nullopt;
    }
    const auto number = [&]<class Number>(std::size_t first, Number& result) {
        std::from_chars(&digits[first], &digits[first] + 2 * sizeof result, result, 16);
    };
    GUID guid;
    number(0, guid.Data1);
    number(8, guid.Data2);
    number(12, guid.Data3);
    for (std::size_t i = 0; i < 8; ++i) {
        number(16 + 2 * i, guid.Data4[i]);
    }
    return guid;
}

sim::Text GuidText(const GUID& guid) {
    char text[form.size() + 1];
    const auto& tail = guid.Data4;
    std::snprintf(text, sizeof text, "{%08x-%04x-%04x-%02x%02x-%02x%02x%02x%02x%02x%02x}", guid.Data1,
                  guid.Data2, guid.Data3, tail[0], tail[1], tail[2], tail[3], tail[4], tail[5], tail[6],
                  tail[7]);
    return sim::FromUtf8(text);
}

} // namespace host
