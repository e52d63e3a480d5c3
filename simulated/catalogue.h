// The dialogs and strings of the library as data, one catalogue per language, built from the same files that
// the resource compiler reads. Each language registers its catalogue at program start.
#pragma once

#include <cstddef>

#include "platform/platform.h"

namespace sim {

// A table of a catalogue, borrowed from an array or a list. <span> alone would take longer to compile than a
// language's texts.
template <typename Row> struct Table {
    const Row* first = nullptr;
    std::size_t count = 0;
    constexpr Table() = default;
    template <std::size_t length> constexpr Table(const Row (&rows)[length]) : first(rows), count(length) {}
    template <typename List> Table(const List& rows) : first(rows.data()), count(rows.size()) {}
    constexpr const Row* begin() const { return first; }
    constexpr const Row* end() const { return first + count; }
    constexpr std::size_t size() const { return count; }
    constexpr const Row& operator[](std::size_t row) const { return first[row]; }
};

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
    int weight;                      // of the font, 0 if not given
    int cx, cy;                      // dialog units
    Table<ControlTemplate> controls; // in tab order
};

struct CatalogueString {
    UINT id;
    const WCHAR* text;
    int limit; // units of the buffer that it is loaded into, terminator included
};

struct Catalogue {
    LANGID language;
    Table<DialogTemplate> dialogs;
    Table<CatalogueString> strings;
};

// All catalogues of the program, in no particular order. Valid once main has begun.
Table<const Catalogue*> Catalogues();

// The catalogue that the system's resource lookup finds when all of the system is set to a language: the
// exact id, then the primary language without a country, then English (United States). So Mexico's Spanish
// finds English.
const Catalogue& CatalogueFor(LANGID language);

// Registers a catalogue; called by the languages' own files only.
bool EnterCatalogue(const Catalogue& catalogue);

} // namespace sim
