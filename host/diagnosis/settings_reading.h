// How the pages read a settings line, "9600,n,8,1,x": they take what they know and silently ignore the rest.
// What they took is what they write.
#pragma once

#include <string>
#include <string_view>

namespace host {

// The first part of a line that a page would show differently from what is written, and what it shows
// instead: `the speed is "1000000", which the page does not know: it shows 75`. Empty if the page shows the
// line as it is written.
std::string Misread(std::string_view line);

} // namespace host
