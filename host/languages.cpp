#include "host/languages.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "host/text.h"

namespace host {
namespace {

constexpr LANGID english_united_states = 1033;

// The first code is the language's own. A code without a country also stands for every country that has no
// code here.
constexpr struct Language {
    LANGID id;
    const char* name;
    const char* codes;
} languages[] = {
    {1025, "arabic", "ar"},
    {1028, "chinese traditional", "zh_TW zh"},
    {1029, "czech", "cs"},
    {1030, "danish", "da"},
    {1031, "german", "de"},
    {1032, "greek", "el"},
    {1033, "english", "en_US en"},
    {1035, "finnish", "fi"},
    {1036, "french", "fr"},
    {1037, "hebrew", "he iw"},
    {1038, "hungarian", "hu"},
    {1040, "italian", "it"},
    {1041, "japanese", "ja"},
    {1042, "korean", "ko"},
    {1043, "dutch", "nl"},
    {1044, "norwegian bokmal", "nb no"},
    {1045, "polish", "pl"},
    {1046, "portuguese", "pt_BR pt"},
    {1049, "russian", "ru"},
    {1051, "slovak", "sk"},
    {1054, "thai", "th"},
    {1055, "turkish", "tr"},
    {2052, "chinese simplified", "zh_CN zh_SG"},
    {2057, "english united kingdom", "en_GB"},
    {2068, "norwegian nynorsk", "nn"},
    {2070, "portuguese portugal", "pt_PT"},
    {29, "swedish", "sv"},
    {3082, "spanish", "es"},
    {3084, "french canada", "fr_CA"},
    {4105, "english canada", "en_CA"},
};

// The language of a code such as "de", "de_DE" or "de-DE"; null if there is none.
const Language* WithCode(std::string_view code) {
    std::string name = Folded(code);
    std::ranges::replace(name, '-', '_');
    for (const std::string& wanted : {name, name.substr(0, name.find('_'))}) {
        for (const Language& language : languages) {
            std::vector<std::string> codes;
            SplitWords(language.codes, codes);
            if (std::ranges::any_of(codes, [&](const std::string& each) { return Folded(each) == wanted; })) {
                return &language;
            }
        }
    }
    return nullptr;
}

std::string CodeOf(const Language& language) {
    std::vector<std::string> codes;
    SplitWords(language.codes, codes);
    return codes.front();
}

// What the environment says about a category of the locale; empty if it says nothing.
std::string_view Setting(const char* category) {
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        if (const char* locale = std::getenv(variable); locale != nullptr && *locale) {
            return locale;
        }
    }
    return {};
}

} // namespace

LANGID FindLanguage(std::string_view called) {
    if (const Language* const language = WithCode(called)) {
        return language->id;
    }
    const std::string wanted = Folded(called);
    LANGID begun = 0;
    int count = 0;
    for (const Language& language : languages) {
        if (wanted == std::to_string(language.id) || wanted == language.name) {
            return language.id;
        }
        if (!wanted.empty() && std::string_view{language.name}.starts_with(wanted)) {
            begun = language.id;
            ++count;
        }
    }
    return count == 1 ? begun : LANGID{0};
}

std::string AllLanguages() {
    std::string lines;
    for (const Language& language : languages) {
        lines += "  " + PaddedTo(std::to_string(language.id), 6) + PaddedTo(CodeOf(language), 7) +
                 language.name + '\n';
    }
    return lines;
}

LANGID LanguageOfLocale(std::string_view locale) {
    const Language* const language = WithCode(locale.substr(0, locale.find_first_of(".@")));
    return language != nullptr ? language->id : english_united_states;
}

LANGID UserLanguage() {
    return LanguageOfLocale(Setting("LC_MESSAGES"));
}

bool HasUnicode() {
    const std::string locale = Folded(Setting("LC_CTYPE"));
    return locale.find("utf-8") != std::string::npos || locale.find("utf8") != std::string::npos;
}

} // namespace host
