// A sheet of character cells to draw on. Coordinates are columns and rows from 0; anything outside is cut
// off. A wide character fills two cells; drawing over one half of it blanks the other.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

class Canvas {
public:
    Canvas(int columns, int rows);

    int columns() const { return columns_; }
    int rows() const { return static_cast<int>(cells_.size()); }

    // The text is cut only at the width of the sheet. A caller with a narrower place cuts it first.
    void Write(int column, int row, std::string_view text);
    // A box with its corners at (left, top) and (right, bottom). The inside is left alone. `title` is written
    // into the upper edge.
    void Frame(int left, int top, int right, int bottom, std::string_view title, bool doubled = false);
    // Lays another sheet over this one, which grows if necessary.
    void Lay(int column, int row, const Canvas& other);

    // The rows as text, without trailing blanks.
    std::vector<std::string> Lines() const;

private:
    // UTF-8: a character with its combining marks; empty for the right half of a wide one.
    using Row = std::vector<std::string>;

    void Put(int column, int row, std::string glyph, int columns);

    int columns_;
    std::vector<Row> cells_;
};

} // namespace host
