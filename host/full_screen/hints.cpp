#include "host/full_screen/hints.h"

#include "host/text.h"

namespace host {

Event OfFunction(int number) {
    Event event;
    event.kind = Event::Kind::Function;
    event.function = number;
    return event;
}

Event OfControl(char letter) {
    Event event;
    event.kind = Event::Kind::Control;
    event.key.letter = static_cast<WCHAR>(letter);
    return event;
}

Event OfCode(UINT code) {
    Event event;
    event.kind = Event::Kind::Key;
    event.key.code = code;
    return event;
}

Event OfLetter(WCHAR letter) {
    Event event;
    event.kind = Event::Kind::Key;
    event.key.letter = letter;
    return event;
}

std::vector<PlacedHint> PlaceHints(const std::vector<Hint>& hints, int columns, int most_rows) {
    std::vector<PlacedHint> placed;
    int row = 0, column = 1;
    for (const Hint& hint : hints) {
        const int width = Columns(hint.key) + 1 + Columns(hint.does);
        if (column + width > columns && column > 1) {
            ++row;
            column = 1;
        }
        if (row == most_rows) {
            break;
        }
        placed.push_back({&hint, {column, row, width, 1}});
        column += width + 2;
    }
    return placed;
}

} // namespace host
