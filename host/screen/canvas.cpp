#include "host/screen/canvas.h"

#include <algorithm>

#include "host/text.h"

namespace host {
namespace {

constexpr std::pair<std::string_view, std::string_view> in_ascii[] = {
    {"─", "-"}, {"│", "|"}, {"┌", "+"}, {"┐", "+"}, {"└", "+"}, {"┘", "+"},
    {"├", "|"}, {"┤", "|"}, {"┴", "+"}, {"═", "="}, {"║", "#"}, {"╔", "#"},
    {"╗", "#"}, {"╚", "#"}, {"╝", "#"}, {"█", "o"}, {"▾", "v"}, {"…", "."}};

constexpr const char* single_line[] = {"┌", "┐", "└", "┘", "─", "│"};
constexpr const char* double_line[] = {"╔", "╗", "╚", "╝", "═", "║"};

} // namespace

std::string_view GlyphIn(Charset charset, std::string_view glyph) {
    const auto known =
        std::ranges::find(in_ascii, glyph, &std::pair<std::string_view, std::string_view>::first);
    return charset == Charset::Ascii && glyph.size() > 1 && known != std::end(in_ascii) ? known->second
                                                                                        : glyph;
}

Canvas::Canvas(int columns, int rows)
    : columns_(std::max(0, columns)), cells_(static_cast<std::size_t>(std::max(0, rows)),
                                             std::vector<Cell>(static_cast<std::size_t>(columns_))) {}

void Canvas::Put(int row, int column, std::string_view glyph, int columns, const Look& look) {
    if (row < 0 || row >= rows() || column < 0 || column + columns > columns_) {
        return;
    }
    auto& cells = cells_[static_cast<std::size_t>(row)];
    const auto first = static_cast<std::size_t>(column), end = first + static_cast<std::size_t>(columns);
    if (cells[first].glyph.empty() && first > 0) {
        cells[first - 1].glyph = " ";
    }
    if (end < cells.size() && cells[end].glyph.empty()) {
        cells[end].glyph = " ";
    }
    for (std::size_t at = first; at < end; ++at) {
        cells[at] = {at == first ? std::string(glyph) : std::string(), look};
    }
}

// A mark belongs to the character before it, of which a terminal shows only so many.
void Canvas::Combine(int row, int column, std::string_view mark) {
    constexpr std::size_t most = 16; // bytes
    if (row < 0 || row >= rows() || column < 1 || column > columns_) {
        return;
    }
    auto cell = cells_[static_cast<std::size_t>(row)].begin() + (column - 1);
    if (cell->glyph.empty() && column > 1) {
        --cell;
    }
    if (cell->glyph.size() + mark.size() <= most) {
        cell->glyph += mark;
    }
}

void Canvas::Write(int row, int column, std::string_view text, int columns, const Look& look) {
    const std::string written = PaddedTo(CutTo(Escaped(text), columns), columns);
    for (std::string_view rest = written; !rest.empty();) {
        const std::string_view from_here = rest;
        const int wide = ColumnsOf(TakeUtf8(rest));
        const std::string_view glyph = from_here.substr(0, from_here.size() - rest.size());
        if (wide == 0) {
            Combine(row, column, glyph);
        } else if (column < 0 && column + wide > 0) {
            Put(row, 0, " ", column + wide, look);
        } else if (column + wide > columns_) {
            Put(row, column, " ", 1, look);
        } else {
            Put(row, column, glyph, wide, look);
        }
        column += wide;
    }
}

void Canvas::Underline(int row, int column, int columns) {
    for (int at = std::max(0, column); row >= 0 && row < rows() && at < std::min(column + columns, columns_);
         ++at) {
        Look& look = cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(at)].look;
        look.underlined = true;
        look.colour = look.colour != 0 ? look.colour : colour_hot_key;
    }
}

void Canvas::Frame(const Cells& cells, bool doubled, const Look& look) {
    const auto& [left_top, right_top, left_bottom, right_bottom, across, down] =
        doubled ? double_line : single_line;
    const int bottom = cells.top + cells.rows - 1, right = cells.left + cells.columns - 1;
    for (int column = cells.left + 1; column < right; ++column) {
        Put(cells.top, column, across, 1, look);
        Put(bottom, column, across, 1, look);
    }
    for (int row = cells.top + 1; row < bottom; ++row) {
        Put(row, cells.left, down, 1, look);
        Put(row, right, down, 1, look);
    }
    Put(cells.top, cells.left, left_top, 1, look);
    Put(cells.top, right, right_top, 1, look);
    Put(bottom, cells.left, left_bottom, 1, look);
    Put(bottom, right, right_bottom, 1, look);
}

void Canvas::PointAt(int row, int column) {
    cursor_ = {row, column};
}

void Canvas::Lay(int row, int column, const Canvas& from, const Cells& part) {
    for (int line = part.top; line < std::min(part.top + part.rows, from.rows()); ++line) {
        const int end = std::min(part.left + part.columns, from.columns());
        for (int at = part.left; at < end; ++at) {
            const Cell& cell = from.At(line, at);
            const bool wide = at + 1 < from.columns() && from.At(line, at + 1).glyph.empty();
            const bool whole = !cell.glyph.empty() && (!wide || at + 1 < end);
            Put(row + line - part.top, column + at - part.left, whole ? std::string_view(cell.glyph) : " ",
                whole && wide ? 2 : 1, cell.look);
            at += whole && wide ? 1 : 0;
        }
    }
    if (from.cursor_ && part.Has(from.cursor_->column, from.cursor_->row)) {
        PointAt(row + from.cursor_->row - part.top, column + from.cursor_->column - part.left);
    }
}

std::vector<std::string> Canvas::Lines(Charset charset) const {
    std::vector<std::string> lines;
    for (const auto& cells : cells_) {
        std::string& line = lines.emplace_back();
        for (const Cell& cell : cells) {
            line += GlyphIn(charset, cell.glyph);
        }
        line.resize(line.find_last_not_of(' ') + 1);
    }
    return lines;
}

} // namespace host
