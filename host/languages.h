// The languages of the library, by what people and systems call them.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace host {

// The id of a language by its number ("1031"), its code ("de", "pt_PT") or its name or the beginning of no
// other name ("german"), without regard to case; 0 if there is none.
LANGID FindLanguage(std::string_view called);

// All of them, a line each: number, code, name.
std::string AllLanguages();

// The language of a locale such as "de_DE.UTF-8"; English (United States) for one that is none of the
// library's languages, "C" and "POSIX" among them.
LANGID LanguageOfLocale(std::string_view locale);

// That of the environment: the first of LC_ALL, LC_MESSAGES and LANG that is set.
LANGID UserLanguage();

} // namespace host
