#include "host/diagnosis/table.h"

#include <algorithm>

#include "host/text.h"

namespace host {

std::vector<std::string> TableLines(const std::vector<Row>& rows, std::size_t without) {
    std::vector<std::string> lines(rows.size());
    for (std::size_t column = 0; column < std::tuple_size_v<Row>; ++column) {
        int width = 0;
        for (const Row& row : rows) {
            width = std::max(width, Columns(row[column]));
        }
        for (std::size_t index = 0; column != without && index < rows.size(); ++index) {
            lines[index] += "  " + PaddedTo(rows[index][column], width);
        }
    }
    for (std::string& line : lines) {
        line.resize(line.find_last_not_of(' ') + 1);
    }
    return lines;
}

} // namespace host
