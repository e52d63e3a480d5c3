#include "host/screen/canvas.h"

#include <algorithm>

#include "host/text.h"

namespace host {

Canvas::Canvas(int columns, int rows)
    : columns_(std::max(0, columns)),
      cells_(static_cast<std::size_t>(std::max(0, rows)), Row(static_cast<std::size_t>(columns_), " ")) {}

void Canvas::Put(int column, int row, std::string glyph, int columns) {
    if (row < 0 || row >= rows() || column < 0 || column + columns > columns_) {
        return;
    }
    Row& cells = cells_[static_cast<std::size_t>(row)];
    const auto first = static_cast<std::size_t>(column), end = first + static_cast<std::size_t>(columns);
    if (cells[first].empty()) {
        cells[first - 1] = " ";
    }
    if (end < cells.size() && cells[end].empty()) {
        cells[end] = " ";
    }
    cells[first] = std::move(glyph);
    for (std::size_t half = first + 1; half < end; ++half) {
        cells[half].clear();
    }
}

void Canvas::Write(int column, int row, std::string_view text) {
    while (!text.empty()) {
        const std::string_view from_here = text;
        const char32_t character = TakeUtf8(text);
        const int columns = ColumnsOf(character);
        const std::string glyph = IsControl(character) ? " " : std::string(from_here.begin(), text.begin());
        if (columns > 0) {
            Put(column, row, glyph, columns);
        } else if (row >= 0 && row < rows() && column > 0 && column <= columns_) {
            Row& cells = cells_[static_cast<std::size_t>(row)];
            auto before = static_cast<std::size_t>(column - 1);
            if (cells[before].empty() && before > 0) {
                --before;
            }
            cells[before] += glyph;
        }
        column += columns;
    }
}

void Canvas::Frame(int left, int top, int right, int bottom, std::string_view title, bool doubled) {
    const char* const across = doubled ? "═" : "─";
    const char* const down = doubled ? "║" : "│";
    for (int column = left + 1; column < right; ++column) {
        Put(column, top, across, 1);
        Put(column, bottom, across, 1);
    }
    for (int row = top + 1; row < bottom; ++row) {
        Put(left, row, down, 1);
        Put(right, row, down, 1);
    }
    Put(left, top, doubled ? "╔" : "┌", 1);
    Put(right, top, doubled ? "╗" : "┐", 1);
    Put(left, bottom, doubled ? "╚" : "└", 1);
    Put(right, bottom, doubled ? "╝" : "┘", 1);
    if (!title.empty() && right - left > 6) {
        Write(left + 2, top, ' ' + CutTo(title, right - left - 5) + ' ');
    }
}

void Canvas::Lay(int column, int row, const Canvas& other) {
    columns_ = std::max(columns_, column + other.columns_);
    cells_.resize(static_cast<std::size_t>(std::max(rows(), row + other.rows())));
    for (Row& cells : cells_) {
        cells.resize(static_cast<std::size_t>(columns_), " ");
    }
    for (int line = 0; line < other.rows(); ++line) {
        const Row& cells = other.cells_[static_cast<std::size_t>(line)];
        for (std::size_t at = 0; at < cells.size(); ++at) {
            if (!cells[at].empty()) {
                Put(column + static_cast<int>(at), row + line, cells[at],
                    at + 1 < cells.size() && cells[at + 1].empty() ? 2 : 1);
            }
        }
    }
}

std::vector<std::string> Canvas::Lines() const {
    std::vector<std::string> lines;
    for (const Row& cells : cells_) {
        std::string& line = lines.emplace_back();
        for (const std::string& cell : cells) {
            line += cell;
        }
        line.resize(line.find_last_not_of(' ') + 1);
    }
    return lines;
}

} // namespace host
