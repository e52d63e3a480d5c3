// The profile, whose values live in the registry, and the user's locale.
#include <algorithm>

#include "simulated/stage.h"

namespace {

std::string Place(LPCWSTR section, LPCWSTR key) {
    return "[" + sim::ToUtf8(section) + "] " + sim::ToUtf8(key);
}

// One pair of quotation marks around a value does not belong to it.
std::u16string_view WithoutQuotes(std::u16string_view text) {
    const bool quoted =
        text.size() >= 2 && (text.front() == u'"' || text.front() == u'\'') && text.front() == text.back();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

} // namespace

DWORD GetProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR fallback, LPWSTR buffer, DWORD capacity) {
    const bool fails = sim::Operation(sim::Reach::Read, __func__, [&] { return Place(section, key); });
    const sim::Values* values = fails ? nullptr : sim::Current().ProfileSection(section, false);
    const sim::Value* value = values != nullptr ? values->Find(key) : nullptr;
    sim::Text text;
    if (value != nullptr) {
        text = WithoutQuotes(TextIn(value->data));
    } else {
        SetLastError(fails ? ERROR_GEN_FAILURE : ERROR_FILE_NOT_FOUND);
        text = fallback != nullptr ? fallback : u"";
    }
    if (capacity == 0) {
        return 0;
    }
    const std::size_t length = std::min<std::size_t>(text.size(), capacity - 1);
    text.copy(buffer, length);
    buffer[length] = u'\0';
    return static_cast<DWORD>(length);
}

BOOL WriteProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR value) {
    if (sim::Operation(sim::Reach::Write, __func__, [&] {
            return Place(section, key) + (value != nullptr ? " = " + sim::Quoted(value) : " deleted");
        })) {
        return sim::Fail(ERROR_GEN_FAILURE);
    }
    sim::Values* values = sim::Current().ProfileSection(section, value != nullptr);
    if (value != nullptr) {
        values->SetText(key, value);
    } else if (values != nullptr) {
        values->Erase(key);
    }
    return TRUE;
}

LCID GetUserDefaultLCID() {
    return sim::Current().language;
}

int GetLocaleInfoW(LCID, LCTYPE type, LPWSTR buffer, int capacity) {
    if (sim::Operation(sim::Reach::Read, __func__)) {
        return sim::Fail(ERROR_GEN_FAILURE);
    }
    if (type != LOCALE_SDECIMAL) {
        sim::Misuse("GetLocaleInfoW: only the decimal separator is simulated");
        return sim::Fail(ERROR_INVALID_PARAMETER);
    }
    const sim::Text& separator = sim::Current().decimal_separator;
    const int needed = static_cast<int>(separator.size()) + 1;
    if (capacity == 0) {
        return needed;
    }
    if (capacity < needed) { // and what the buffer then holds is no text
        separator.copy(buffer, static_cast<std::size_t>(capacity));
        return sim::Fail(ERROR_INSUFFICIENT_BUFFER);
    }
    separator.copy(buffer, separator.size());
    buffer[separator.size()] = u'\0';
    return needed;
}
