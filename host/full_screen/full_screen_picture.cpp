// How the full screen looks.
#include "host/full_screen/full_screen.h"

#include <algorithm>
#include <iterator>

#include "host/text.h"

namespace host {
namespace {

constexpr int small_screen = 100; // columns
constexpr int low_screen = 40;    // rows

} // namespace

int FullScreen::PaneRows() const {
    return view_ ? 0 : terminal_.rows() < low_screen ? 4 : 10;
}

bool FullScreen::IsTooSmall() const {
    return terminal_.columns() < fewest_columns || terminal_.rows() < fewest_rows;
}

// Between the title and the pane.
Cells FullScreen::Body() const {
    return {0, 1, terminal_.columns(), std::max(1, terminal_.rows() - 1 - PaneRows() - foot_)};
}

std::vector<Hint> FullScreen::HintsHere() const {
    std::vector<Hint> hints = {{"F1", "help", OfFunction(1)}};
    const auto add = [&](const std::vector<Hint>& more) {
        hints.insert(hints.end(), more.begin(), more.end());
    };
    if (view_) {
        add(view_->Hints(Body()));
        if (!session_->windows().empty()) { // no other sheet opens beside them
            std::erase_if(hints, [](const Hint& hint) { return hint.does.starts_with("open "); });
        }
        hints.push_back({"/", "find", OfLetter('/')});
        if (!searched_.empty()) {
            hints.push_back({"n", "next", OfLetter('n')});
        }
    } else if (!session_->windows().empty()) {
        add(front_.Hints(terminal_.columns(), terminal_.rows() - 1 - foot_));
    } else if (!devices_.IsEmpty()) {
        if (devices_.HasPage()) {
            hints.push_back({"Enter", "open", OfCode(VK_RETURN)});
        }
        AddPair(hints, "Up", VK_UP, "Down", VK_DOWN, "choose");
        hints.push_back({"letters, /", "find", OfLetter('/')});
    }
    add({{"^N", "numbers", OfControl(numbers)},
         {"^B", "board", OfControl(board)},
         {"F7", "wrong", OfFunction(7)},
         {"^S", "save", OfControl(save)},
         {"F10", "end", OfFunction(10)},
         {"F2", "ports", OfFunction(2)},
         {"F3", "store", OfFunction(3)},
         {"F5", "journal", OfFunction(5)},
         {"F6", "command", OfFunction(6)},
         {"F8", "changes", OfFunction(8)},
         {"F9", "trace", OfFunction(9)}});
    return hints;
}

void FullScreen::Draw(const Question* question) {
    const int columns = terminal_.columns(), rows = terminal_.rows();
    front_.Read(*session_);
    if (IsTooSmall()) {
        canvas_ = Canvas(columns, rows);
        canvas_.Write(0, 0, "needs " + std::to_string(fewest_columns) + 'x' + std::to_string(fewest_rows),
                      columns);
        return terminal_.Show(canvas_);
    }
    if (std::exchange(columns_, columns) != columns && view_) {
        view_->Renew(); // its lines are as long as the screen is wide
    }
    const auto place = [&](std::vector<Hint> hints) {
        hints_ = std::move(hints);
        placed_hints_ = PlaceHints(hints_, columns, std::max(1, rows / 8));
        return placed_hints_.empty() ? 1 : placed_hints_.back().cells.top + 1;
    };
    // A view has the more hints the less room they leave to it.
    int before;
    do {
        before = std::exchange(foot_, place(HintsHere()));
    } while (before != foot_);
    if (question != nullptr) { // which moves nothing
        foot_ = std::max(foot_, place(question->answers));
    }
    canvas_ = Canvas(columns, rows - foot_);
    const Cells body = Body();
    if (view_) {
        view_->Draw(canvas_, body);
    } else {
        DrawPane({0, body.top + body.rows, columns, PaneRows()});
        const bool has_window = !session_->windows().empty();
        const int beside = columns < small_screen ? 26 : 34;
        if (!has_window) {
            devices_.Draw(canvas_, body, true);
        } else {
            devices_.Draw(canvas_, {0, body.top, beside, body.rows}, false);
            if (!front_.Draw(canvas_, body, beside)) {
                for (int row = 0; row < body.rows; ++row) {
                    canvas_.Write(body.top + row, 0, "", columns);
                }
                front_.Draw(canvas_, body, beside);
            }
        }
    }
    DrawTitle();
    const Canvas above = std::exchange(canvas_, Canvas(columns, rows));
    canvas_.Lay(0, 0, above, {0, 0, columns, above.rows()});
    DrawFoot(question);
    terminal_.Show(canvas_);
}

// What is not saved is told before all else.
void FullScreen::DrawTitle() {
    const Look look{false, true, false, colour_title};
    const std::string state = session_->IsUnsaved() ? " * not saved" : "";
    const std::string place = view_ ? view_->Title() : session_->windows().empty() ? "Devices" : "";
    const int columns = terminal_.columns();
    const std::string name =
        ' ' + CutTo(Escaped(session_->world().Name()), columns - Columns(state) - 2) + state;
    canvas_.Write(0, 0, name, columns, look);
    const int right = std::min(Columns(place) + 1, columns - Columns(name) - 2);
    if (right > 0) {
        canvas_.Write(0, columns - right, place, right, look);
    }
}

void FullScreen::DrawPane(const Cells& within) {
    // The last action in the journal from its start, or the end of the trace, where its results are.
    Lines lines;
    std::string title = std::string{"Journal: "} + nothing_changed;
    const std::size_t seen = static_cast<std::size_t>(std::max(0, within.rows - 1));
    if (tracing_) {
        const Lines& trace = session_->Trace();
        title = trace.empty() ? std::string{"Trace: "} + nothing_traced : "Trace of the last action";
        lines.assign(trace.end() - static_cast<std::ptrdiff_t>(std::min(seen, trace.size())), trace.end());
    } else if (!session_->actions().empty()) {
        const Action& last = session_->actions().back();
        title = "Journal, " + last.name + ": " + std::to_string(last.changes.size()) +
                (last.changes.size() == 1 ? " change" : " changes");
        lines = last.changes;
    }
    canvas_.Write(within.top, 0, ' ' + title, within.columns, {false, true, false, colour_title});
    for (std::size_t row = 0; row < seen && row < lines.size(); ++row) {
        canvas_.Write(within.top + 1 + static_cast<int>(row), 0, ' ' + lines[row], within.columns);
    }
}

void FullScreen::DrawFoot(const Question* question) {
    const int columns = terminal_.columns(), first = terminal_.rows() - foot_;
    for (int row = 0; row < foot_; ++row) {
        canvas_.Write(first + row, 0, "", columns, {true, false, false, 0});
    }
    for (const PlacedHint& placed : placed_hints_) {
        const auto& [left, top, wide, high] = placed.cells;
        const int key = Columns(placed.hint->key);
        canvas_.Write(first + top, left, placed.hint->key, key, {true, true, false, 0});
        if (wide > key) {
            canvas_.Write(first + top, left + key + 1, placed.hint->does, wide - key - 1,
                          {true, false, false, 0});
        }
    }
    // What is asked or has just been said stands above the hints.
    const Look look{false, true, false, colour_title};
    int row = first;
    if (question != nullptr) {
        const std::string text = Escaped(question->text);
        std::string_view shown = text;
        int cursor = question->cursor;
        while (cursor >= columns) {
            const std::string_view whole = shown;
            TakeUtf8(shown);
            cursor -= Columns(whole.substr(0, whole.size() - shown.size()));
        }
        canvas_.Write(--row, 0, shown, columns, look);
        canvas_.PointAt(row, cursor);
    }
    if (!message_.empty()) {
        const Lines lines = BrokenAt(message_, columns - 2);
        for (auto line = lines.rbegin(); line != lines.rend() && row > 2; ++line) {
            canvas_.Write(--row, 0, ' ' + *line, columns, look);
        }
    }
}

} // namespace host
