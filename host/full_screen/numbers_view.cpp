#include "host/full_screen/numbers_view.h"

#include <algorithm>

#include "host/diagnosis/number_map.h"
#include "host/diagnosis/published_values.h"
#include "host/diagnosis/report.h"
#include "host/text.h"

namespace host {
namespace {

constexpr int all = static_cast<int>(mapped_numbers);

Look LookOf(NumberState state) {
    switch (state) {
    case NumberState::Conflict:
        return {false, true, false, colour_hot_key};
    case NumberState::Live:
        return {false, true, false, 0};
    case NumberState::Port:
    case NumberState::Claimed:
        return {false, false, false, colour_frame};
    default:
        return {false, false, true, 0};
    }
}

} // namespace

NumbersView::NumbersView(World& world) : world_(world) {
    Renew();
}

void NumbersView::Renew() {
    records_ = world_.Describe();
    findings_ = Diagnose(records_);
}

std::string NumbersView::Title() const {
    return ComName(static_cast<unsigned long>(number_)) + ": " +
           SignOf(StateOf(records_, static_cast<unsigned long>(number_))).name;
}

void NumbersView::Draw(Canvas& canvas, const Cells& within) {
    const Lines told = NumberLines(records_, findings_, static_cast<unsigned long>(number_));
    const Lines map = NumberMapLines(records_, within.columns);
    across_ = static_cast<int>(MapColumns(within.columns));
    const int map_rows = all / across_, below = 4; // of what is told
    const bool has_legend = within.rows >= static_cast<int>(map.size()) - map_rows + below + below;
    const int legend = has_legend ? static_cast<int>(map.size()) - map_rows : 0;
    rows_ = std::clamp(within.rows - legend - below, 1, map_rows);
    const int at = (number_ - 1) / across_;
    first_row_ = std::clamp(std::clamp(first_row_, at - rows_ + 1, at), 0, map_rows - rows_);
    int row = within.top;
    for (int line = first_row_; line < first_row_ + rows_; ++line, ++row) {
        canvas.Write(row, within.left, map[static_cast<std::size_t>(line)].substr(0, 6), 6,
                     {false, false, true, 0});
        for (int column = 0; column < across_; ++column) {
            const int number = line * across_ + column + 1;
            const NumberState state = StateOf(records_, static_cast<unsigned long>(number));
            const int left = within.left + 6 + 2 * column;
            Look look = LookOf(state);
            look.reversed = number == number_;
            canvas.Write(row, left, number == number_ ? ">" : " ", 1, {});
            canvas.Write(row, left + 1, std::string(1, SignOf(state).letter), 1, look);
            if (number == number_) {
                canvas.PointAt(row, left + 1);
            }
        }
    }
    for (auto line = static_cast<std::size_t>(map_rows); has_legend && line < map.size(); ++line, ++row) {
        canvas.Write(row, within.left, map[line], within.columns, {false, false, true, 0});
    }
    for (std::size_t line = 0; line < told.size() && row < within.top + within.rows; ++line, ++row) {
        canvas.Write(row, within.left, ' ' + told[line], within.columns);
    }
}

// What is safe to mend, or the device that has the number.
std::string NumbersView::Command() const {
    const auto number = static_cast<unsigned long>(number_);
    for (const Finding& finding : FindingsOf(findings_, number, records_)) {
        if (finding.safe) {
            return finding.command;
        }
    }
    const NumberRecord& record = NumberIn(records_, number);
    if (record.holders.empty()) {
        return {};
    }
    const DeviceRecord& holder = records_.devices[record.holders.front()];
    const bool has_sheet = holder.listed != 0 && WhyNoPage(holder.role, holder.store).empty();
    return has_sheet ? "open " + std::to_string(holder.listed) : std::string();
}

View::Outcome NumbersView::Take(const Event& event, const Cells& within) {
    if (event.kind == Event::Kind::Press) {
        const int column = (event.column - within.left - 6) / 2, row = event.row - within.top;
        if (column >= 0 && column < across_ && row >= 0 && row < rows_) {
            number_ = (first_row_ + row) * across_ + column + 1;
        }
        return {};
    }
    if (event.kind != Event::Kind::Key) {
        return {};
    }
    if (event.key.code == VK_ESCAPE) {
        return {true, {}};
    }
    if (event.key.code == VK_RETURN) {
        return {false, Command()};
    }
    const std::pair<UINT, int> moves[] = {{VK_LEFT, -1},
                                          {VK_RIGHT, 1},
                                          {VK_UP, -across_},
                                          {VK_DOWN, across_},
                                          {VK_PRIOR, -4 * across_},
                                          {VK_NEXT, 4 * across_},
                                          {VK_HOME, 1 - number_},
                                          {VK_END, all - number_}};
    const auto move = std::ranges::find(moves, event.key.code, &std::pair<UINT, int>::first);
    if (move != std::end(moves) && number_ + move->second >= 1 && number_ + move->second <= all) {
        number_ += move->second;
    }
    return {};
}

std::vector<Hint> NumbersView::Hints(const Cells&) const {
    std::vector<Hint> hints;
    if (const std::string command = Command(); !command.empty()) {
        hints.push_back({"Enter", command, OfCode(VK_RETURN)});
    }
    hints.push_back({"Esc", "back", OfCode(VK_ESCAPE)});
    hints.push_back({"arrows", "go", OfCode(number_ < all ? VK_RIGHT : VK_LEFT)});
    return hints;
}

bool NumbersView::Find(const std::string& text) {
    const std::string wanted = Folded(text);
    for (int step = 1; step <= all; ++step) {
        const int number = (number_ - 1 + step) % all + 1;
        const auto asked = static_cast<unsigned long>(number);
        const Lines told = NumberLines(records_, findings_, asked);
        if (Folded(ComName(asked)) == wanted || std::to_string(number) == wanted ||
            (records_.numbers.contains(asked) && std::ranges::any_of(told, [&](const std::string& line) {
                 return Folded(line).find(wanted) != std::string::npos;
             }))) {
            number_ = number;
            return true;
        }
    }
    return false;
}

} // namespace host
