// The trace. Functions call it at their entry, their exit and their decisions. It goes nowhere.
#pragma once

// The function under whose name a line stands. A helper that traces for its caller takes the caller's name
// without being told, by a last parameter `TraceName function = __builtin_FUNCTION()`.
using TraceName = const char*;

// `format` is narrow, "%s" stands for a narrow name and "%ws" for UTF-16 text; every line ends in a line
// feed.
template <typename... Arguments> void TraceOut(const char* /*format*/, const Arguments&... /*arguments*/) {}
