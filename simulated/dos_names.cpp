// The DOS device names and their targets.
#include <algorithm>

#include "simulated/stage.h"

namespace {

auto Find(std::u16string_view name) {
    return std::ranges::find_if(sim::Current().dos_names,
                                [&](const auto& each) { return sim::EqualNoCase(each.first, name); });
}

} // namespace

DWORD QueryDosDeviceW(LPCWSTR name, LPWSTR target, DWORD capacity) {
    if (sim::Operation(sim::Reach::Read, __func__, [&] { return sim::ToUtf8(name); })) {
        SetLastError(ERROR_GEN_FAILURE);
        return 0;
    }
    const auto found = Find(name);
    if (found == sim::Current().dos_names.end()) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return 0;
    }
    // The result is a list of one text: the text's terminator, then the list's.
    const sim::Text list = found->second + sim::Text(2, u'\0');
    if (capacity < list.size()) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return 0;
    }
    list.copy(target, list.size());
    return static_cast<DWORD>(list.size());
}

BOOL DefineDosDeviceW(DWORD flags, LPCWSTR name, LPCWSTR target) {
    const bool remove = flags == DDD_REMOVE_DEFINITION && target == nullptr;
    const bool define = flags == DDD_RAW_TARGET_PATH && target != nullptr;
    if (sim::Operation(sim::Reach::Write, __func__, [&] {
            return target != nullptr ? sim::ToUtf8(name) + " -> " + sim::ToUtf8(target)
                                     : "remove " + sim::ToUtf8(name);
        })) {
        return sim::Fail(ERROR_GEN_FAILURE);
    }
    if (!remove && !define) {
        sim::Misuse("DefineDosDeviceW: neither a removal without target nor a raw definition");
        return sim::Fail(ERROR_INVALID_PARAMETER);
    }
    auto& names = sim::Current().dos_names;
    const auto found = Find(name);
    if (remove && found == names.end()) {
        return sim::Fail(ERROR_FILE_NOT_FOUND);
    }
    if (remove) {
        names.erase(found);
    } else if (found != names.end()) {
        found->second = target;
    } else {
        names.emplace_back(name, target);
    }
    return TRUE;
}
