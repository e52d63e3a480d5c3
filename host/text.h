// Text for a screen of characters, all in UTF-8: how wide it is, how it is cut and wrapped, and how a
// person's words are compared with what a window shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/text.h"

namespace host {

using Text = std::basic_string<WCHAR>;

using ::FromUtf8;
using ::TextIn;
using ::ToUtf8;

// The columns that one character takes: 0 for marks that combine with the letter before them, 2 for the wide
// scripts.
int ColumnsOf(char32_t character);
int Columns(std::string_view text);

// The text in at most `columns` columns; if it is longer, it ends in an ellipsis.
std::string CutTo(std::string_view text, int columns);
// The text followed by blanks up to `columns`; a longer one stays as it is.
std::string PaddedTo(std::string_view text, int columns);
// The lines of the text, each at most `columns` wide, broken at blanks if there are any, and at its own line
// ends.
std::vector<std::string> BrokenAt(std::string_view text, int columns);

// A caption as it is shown: without the & that marks the letter after it, and without the marks of writing
// direction, which a terminal finds out by itself.
std::string Shown(std::string_view caption);
// In lower case, for the alphabets that have it.
std::string Folded(std::string_view text);
// The name of a caption: folded, without the marks of hot keys and writing direction, and without the colon,
// dots or blanks at its end.
std::string NameOf(std::string_view caption);

// The text on one line, with line ends and other control characters written as \r, \n, \x1B, and invisible
// ones as \u{202E}, because a text from a device or a file may hold characters that command the terminal or
// turn what is read.
std::string Escaped(std::string_view text);
// The same in quotes.
std::string Quoted(std::string_view text);

// Parses a number. False unless the whole text is one in decimal and it fits.
bool ParseNumber(std::string_view text, long& number);

// The candidate that a misspelt word means: the one with the fewest letters changed, added or lost, and the
// first of several. Empty if more than half of its letters differ.
std::string Nearest(std::string_view word, const std::vector<std::string>& candidates);

// The words of a line, separated by blanks; "..." keeps the blanks between the quotes. False if a quote is
// not closed, and then it ends with the line.
bool SplitWords(std::string_view line, std::vector<std::string>& words);
// The text as one of them.
std::string AsWord(const std::string& text);

} // namespace host
