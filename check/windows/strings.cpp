#include <windows.h>

#include "check/windows/dialog_fit.h"
#include "check/windows/parts.h"
#include "check/windows/run_time_texts.h"

namespace check {
namespace {

constexpr struct {
    UINT id;
    std::size_t capacity; // of the library's buffer, with the terminator
} strings[] = {
#define STRING(id, name, units) {id, units},
#include "resources/strings.inc"
#undef STRING
};

// As the library loads it: in the thread's language, or in what the system takes instead.
Text Loaded(UINT id) {
    WCHAR text[1024] = {};
    LoadStringW(library, id, text, ARRAYSIZE(text));
    return text;
}

// A language that the library does not have.
constexpr LANGID bulgarian = 1026;

} // namespace

void LookAtStrings(Report& report) {
    int present = 0, loaded = 0, all = 0;
    std::string other, instead = "none";
    const LANGID before = GetThreadUILanguage();
    const std::vector<LANGID> languages = Languages();
    for (const LANGID language : languages) {
        SetThreadUILanguage(language);
        int same = 0;
        for (const auto& [id, capacity] : strings) {
            const Text text = String(language, id);
            ++all;
            present += !text.empty() && text.size() < capacity;
            same += Loaded(id) == text;
        }
        loaded += same;
        if (same != static_cast<int>(std::size(strings))) {
            other += ' ' + std::to_string(language);
        }
    }
    SetThreadUILanguage(bulgarian);
    for (const LANGID language : languages) {
        if (instead == "none" && Loaded(IDS_PARITY_LIST) == String(language, IDS_PARITY_LIST)) {
            instead = std::to_string(language);
        }
    }
    SetThreadUILanguage(before);
    report.facts.insert(report.facts.end(), {{"strings.languages", "30", std::to_string(languages.size())},
                                             {"strings.present", Of(all, all), Of(present, all)},
                                             {"strings.loaded_by_the_system", Of(all, all),
                                              Of(loaded, all) + (other.empty() ? "" : "; not in" + other)},
                                             {"strings.fall_back", "-", instead}});
}

} // namespace check
