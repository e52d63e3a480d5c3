// The dialogs and strings of the library as data, one catalogue per language, built from the same files that
// the resource compiler reads. Each language registers its catalogue at program start.
#pragma once

#include <span>

#include "platform/platform.h"

namespace sim {

struct ControlTemplate {
    int id;
    const WCHAR* text;
    const WCHAR* class_name;
    DWORD style;
    int x, y, cx, cy; // dialog units
};

struct DialogTemplate {
    int id;
    const WCHAR* title;
    DWORD style;
    int weight;                                // of the font, 0 if not given
    int cx, cy;                                // dialog units
    std::span<const ControlTemplate> controls; // in tab order
};

struct CatalogueString {
    UINT id;
    const WCHAR* text;
    int limit; // units of the buffer that it is loaded into, terminator included
};

struct Catalogue {
    LANGID language;
    std::span<const DialogTemplate> dialogs;
    std::span<const CatalogueString> strings;
};

// All catalogues of the program, in no particular order. Valid once main has begun.
std::span<const Catalogue* const> Catalogues();

// The catalogue that the system's resource lookup finds when all of the system is set to a language: the
// exact id, then the primary language without a country, then English (United States). So Mexico's Spanish
// finds English.
const Catalogue& CatalogueFor(LANGID language);

// Registers a catalogue; called by the languages' own files only.
bool EnterCatalogue(const Catalogue& catalogue);

} // namespace sim
