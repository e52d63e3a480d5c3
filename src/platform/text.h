// Text operations for everything around the library: the simulated system, the host and the tests. The
// library has its own, which need no memory, in reporting/text_operations.h.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/platform.h"

std::string ToUtf8(std::basic_string_view<WCHAR> text);
// Each byte that is not valid UTF-8 becomes U+FFFD.
std::basic_string<WCHAR> FromUtf8(std::string_view utf8);

void AppendUtf8(std::string& utf8, char32_t character);
// Takes one character off the front, in the same way.
char32_t TakeUtf8(std::string_view& utf8);

// The text in a value's bytes, up to its terminator or their end.
std::basic_string<WCHAR> TextIn(std::span<const BYTE> data);

// "0a ff"
std::string HexBytes(std::span<const BYTE> data);
// A value as a journal shows it: a number in decimal, a text in quotes, anything else as bytes.
std::string ValueInJournal(DWORD type, std::span<const BYTE> data);
