// The texts of the built library's dialogs in each language, as they are at run time.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

using Text = std::wstring;

// The library whose resources are read; set before anything else here is called.
extern HMODULE library;

// A resource in one language and no other; null if there is none.
const void* Resource(LPCWSTR type, WORD name, LANGID language);
// A string of the table in one language; empty if there is none.
Text String(LANGID language, UINT id);
// The format with the value in place of its placeholder.
Text Filled(Text format, const Text& value);
// The widest items that a combo shows.
std::vector<Text> ComboItems(LANGID language, WORD dialog, int id);
// The text of a label or check box whose template says `text`, with the numbers that the library puts in.
Text RunTimeText(LANGID language, WORD dialog, int id, const Text& text);
