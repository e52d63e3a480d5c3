// The trace: calls stand at the entry and exit of functions and at their decisions, with all that decides the
// run. It goes nowhere.
#pragma once

// Whose line it is. A helper that traces for the function which calls it takes that function's name without
// being told, as its last parameter: `TraceName function = __builtin_FUNCTION()`.
using TraceName = const char*;

// `format` is narrow, "%s" stands for a narrow name and "%ws" for UTF-16 text; every line ends in a line
// feed.
template <typename... Arguments> void TraceOut(const char* /*format*/, const Arguments&... /*arguments*/) {}
