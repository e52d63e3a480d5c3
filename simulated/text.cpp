// Text: comparison without case, text in buffers, and Windows' own text operations.
#include <cstring>

#include "simulated/stage.h"

namespace sim {

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

void ExpectItsTerminator(std::span<const BYTE> data, std::string_view operation) {
    if (data.size() != (TextIn(data).size() + 1) * sizeof(WCHAR)) {
        Misuse(std::string(operation) + ": a text whose size does not end at its terminator");
    }
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
