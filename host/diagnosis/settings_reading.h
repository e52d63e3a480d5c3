// How the pages read a settings line, "9600,n,8,1,x": they take what they know and pass over the rest without
// a word, and what they took is what they write.
#pragma once

#include <string>
#include <string_view>

namespace host {

// The first part of a line that a page would not show as it is written, with what it shows instead:
// `no speed "1000000", 75 is shown`. Empty for a line that reads back as it is.
std::string Misread(std::string_view line);

} // namespace host
