// A sheet of character cells to paint on. Rows and columns count from 0; anything outside is cut off. A wide
// character fills two cells; painting over one half of it blanks the other.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// A rectangle of character cells.
struct Cells {
    int left = 0, top = 0, columns = 0, rows = 0;
    bool Has(int column, int row) const {
        return column >= left && column < left + columns && row >= top && row < top + rows;
    }
};

// How a text stands out. All looks differ even without colours.
struct Look {
    bool reversed = false, bold = false, dim = false;
    int colour = 0; // one of the constants below, if there are colours
    bool underlined = false;
    bool operator==(const Look&) const = default;
};
constexpr int colour_frame = 1, colour_title = 2, colour_hot_key = 3;

struct Cell {
    std::string glyph = " "; // a character with its combining marks; empty for the right half of a wide one
    Look look;
};

enum class Charset { Utf8, Ascii };

// Frames, tracks and marks in that set of characters. Text stays as it is: a reader without its letters has
// no others for it.
std::string_view GlyphIn(Charset charset, std::string_view glyph);

class Canvas {
public:
    struct Spot {
        int row = 0, column = 0;
    };

    Canvas(int columns, int rows);

    int columns() const { return columns_; }
    int rows() const { return static_cast<int>(cells_.size()); }
    const Cell& At(int row, int column) const {
        return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }
    // Where the terminal's cursor belongs; nothing until PointAt has told.
    const std::optional<Spot>& cursor() const { return cursor_; }

    // Writes at most `columns` of the text, shortened if it is longer, and fills up with blanks. Characters
    // that command the terminal or can't be seen are written out.
    void Write(int row, int column, std::string_view text, int columns, const Look& look = {});
    // Marks the text there as the letter of a hot key.
    void Underline(int row, int column, int columns);
    // The inside is left alone.
    void Frame(const Cells& cells, bool doubled, const Look& look = {});
    void PointAt(int row, int column);
    // Copies a part of another sheet, and the cursor if it is in there, to a place on this one.
    void Lay(int row, int column, const Canvas& from, const Cells& part);

    // The rows as text, without trailing blanks.
    std::vector<std::string> Lines(Charset charset) const;

private:
    void Put(int row, int column, std::string_view glyph, int columns, const Look& look);
    void Combine(int row, int column, std::string_view mark);

    int columns_;
    std::vector<std::vector<Cell>> cells_;
    std::optional<Spot> cursor_;
};

} // namespace host
