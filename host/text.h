// Text as a screen of characters takes it, all in UTF-8: how wide it is, how it is cut and broken, and how
// what a person types is compared with what a window shows.
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

// The columns that one character takes: 0 for marks that stand on the letter before them, 2 for the wide
// scripts.
int ColumnsOf(char32_t character);
int Columns(std::string_view text);

// The text in at most `columns` columns; if it is longer, it ends in an ellipsis.
std::string CutTo(std::string_view text, int columns);
// The text with blanks behind it up to `columns`; a longer one stays as it is.
std::string PaddedTo(std::string_view text, int columns);
// The lines of the text at no more than `columns` each, broken at blanks where there are any, and at its own
// ends.
std::vector<std::string> BrokenAt(std::string_view text, int columns);

// A caption as it is shown: without the & that marks the key of the letter behind it.
std::string Shown(std::string_view caption);
// In lower case, for the alphabets that have it.
std::string Folded(std::string_view text);
// What a caption is called by: folded, without the marks of keys and of writing direction, and without the
// colon or the dots and blanks at its end.
std::string NameOf(std::string_view caption);

// A character that commands a terminal instead of being shown.
bool IsControl(char32_t character);

// On one line, with line ends and other controls written as \r, \n, \x1B: a text of a device or a file may
// hold what would command the terminal.
std::string Escaped(std::string_view text);
// The same in quotes.
std::string Quoted(std::string_view text);

// The number, if the whole text is one in decimal and fits.
bool ParseNumber(std::string_view text, long& number);

// The candidate that a misspelt word means: that with the fewest letters changed, added or lost, the first of
// several. Empty if that is more than half of its letters.
std::string Nearest(std::string_view word, const std::vector<std::string>& candidates);

// The words of a line, parted by blanks; "..." keeps the blanks between the quotes. False at an open quote,
// which then ends with the line.
bool SplitWords(std::string_view line, std::vector<std::string>& words);

} // namespace host
