// Rows of cells under each other.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace host {

using Row = std::array<std::string, 8>;

// A line for each row, its columns as wide as they must be; column `without` is left out.
std::vector<std::string> TableLines(const std::vector<Row>& rows,
                                    std::size_t without = std::tuple_size_v<Row>);

} // namespace host
