// The user's language, as the terminal's locale tells it.
#pragma once

#include <string_view>

#include "platform/platform.h"

namespace host {

// The language id of a locale such as "de_DE.UTF-8"; English (United States) for one that is none of the
// library's languages, "C" and "POSIX" among them.
LANGID LanguageOfLocale(std::string_view locale);

// That of the environment: the first of LC_ALL, LC_MESSAGES and LANG that is set.
LANGID UserLanguage();

} // namespace host
