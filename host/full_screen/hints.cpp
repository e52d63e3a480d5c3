#include "host/full_screen/hints.h"

#include "host/text.h"

namespace host {

void AddPair(std::vector<Hint>& hints, const char* back, UINT back_code, const char* forth, UINT forth_code,
             const std::string& does) {
    hints.push_back({std::string{back} + '/', {}, OfCode(back_code)});
    hints.push_back({forth, does, OfCode(forth_code)});
}

std::vector<PlacedHint> PlaceHints(const std::vector<Hint>& hints, int columns, int most_rows) {
    std::vector<PlacedHint> placed;
    int row = 0, column = 1;
    for (auto hint = hints.begin(); hint != hints.end(); ++hint) {
        const auto width_of = [](const Hint& each) {
            return Columns(each.key) + (each.does.empty() ? 0 : 1 + Columns(each.does));
        };
        const int width = width_of(*hint);
        const int together = width + (hint->does.empty() && hint + 1 != hints.end() ? width_of(hint[1]) : 0);
        if (column + together > columns && column > 1) {
            ++row;
            column = 1;
        }
        if (row == most_rows) {
            break;
        }
        placed.push_back({&*hint, {column, row, width, 1}});
        column += width + (hint->does.empty() ? 0 : 2);
    }
    return placed;
}

} // namespace host
