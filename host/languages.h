// The languages of the library, under the names that people and systems use for them.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace host {

// The id of a language by its number ("1031"), its code ("de", "de_DE", "pt-PT"), its name, or an unambiguous
// beginning of its name ("german"), in either case; 0 if there is none.
LANGID FindLanguage(std::string_view called);

// All languages, one per line: number, code, name.
std::string AllLanguages();

// The language of a locale such as "de_DE.UTF-8". English (United States) if the library lacks the language,
// and for "C" and "POSIX".
LANGID LanguageOfLocale(std::string_view locale);

// The language of the environment: of the first of LC_ALL, LC_MESSAGES and LANG that is set.
LANGID UserLanguage();

// Whether the environment's character set is UTF-8.
bool HasUnicode();

} // namespace host
