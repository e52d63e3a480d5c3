#include "host/worlds/simulated/user_language.h"

#include <cstdlib>

namespace host {
namespace {

constexpr LANGID english_united_states = 1033;

// A language with its country before the language alone.
constexpr struct {
    std::string_view locale;
    LANGID language;
} locales[] = {
    {"ar", 1025},    {"cs", 1029},    {"da", 1030}, {"de", 1031}, {"el", 1032},    {"en_CA", 4105},
    {"en_GB", 2057}, {"en", 1033},    {"es", 3082}, {"fi", 1035}, {"fr_CA", 3084}, {"fr", 1036},
    {"he", 1037},    {"hu", 1038},    {"it", 1040}, {"iw", 1037}, {"ja", 1041},    {"ko", 1042},
    {"nb", 1044},    {"nl", 1043},    {"nn", 2068}, {"no", 1044}, {"pl", 1045},    {"pt_PT", 2070},
    {"pt", 1046},    {"ru", 1049},    {"sk", 1051}, {"sv", 29},   {"th", 1054},    {"tr", 1055},
    {"zh_CN", 2052}, {"zh_SG", 2052}, {"zh", 1028},
};

} // namespace

LANGID LanguageOfLocale(std::string_view locale) {
    const std::string_view name = locale.substr(0, locale.find_first_of(".@"));
    for (const auto& entry : locales) {
        if (name == entry.locale || name.substr(0, name.find('_')) == entry.locale) {
            return entry.language;
        }
    }
    return english_united_states;
}

LANGID UserLanguage() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const char* locale = std::getenv(variable); locale && *locale) {
            return LanguageOfLocale(locale);
        }
    }
    return english_united_states;
}

} // namespace host
