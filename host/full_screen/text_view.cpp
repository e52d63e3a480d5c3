#include "host/full_screen/text_view.h"

#include <algorithm>

#include "host/text.h"

namespace host {

TextView::TextView(std::string title, Source source, std::size_t headings)
    : title_(std::move(title)), source_(std::move(source)), heading_count_(headings) {
    Renew();
}

void TextView::Renew() {
    headings_.clear();
    lines_.clear();
    commands_.clear();
    for (Paragraph& paragraph : source_()) {
        for (std::string& line : paragraph.lines) {
            if (headings_.size() < heading_count_) {
                headings_.push_back(std::move(line));
            } else {
                lines_.push_back({std::move(line), commands_.size()});
            }
        }
        commands_.push_back(std::move(paragraph.command));
    }
    const auto has_command = [](const std::string& command) { return !command.empty(); };
    if (selected_ >= commands_.size() || commands_[selected_].empty()) {
        selected_ =
            static_cast<std::size_t>(std::ranges::find_if(commands_, has_command) - commands_.begin());
    }
    found_ = -1;
}

bool TextView::HasCommands() const {
    return selected_ < commands_.size();
}

std::string TextView::Title() const {
    const int all = static_cast<int>(lines_.size());
    return all <= rows_ ? title_
                        : title_ + "  " + std::to_string(first_ + 1) + '-' +
                              std::to_string(std::min(first_ + rows_, all)) + " of " + std::to_string(all);
}

void TextView::Draw(Canvas& canvas, const Cells& within) {
    const int headings = static_cast<int>(headings_.size()), all = static_cast<int>(lines_.size());
    rows_ = std::max(1, within.rows - headings);
    first_ = std::clamp(first_, 0, std::max(0, all - rows_));
    const auto write = [&](int row, std::string_view line, const Look& look) {
        for (int cut = 0; cut < shift_ && !line.empty();) {
            cut += ColumnsOf(TakeUtf8(line));
        }
        canvas.Write(within.top + row, within.left, line, within.columns, look);
    };
    for (int row = 0; row < headings; ++row) {
        write(row, headings_[static_cast<std::size_t>(row)], {false, true, false, 0});
    }
    for (int row = 0; row < rows_ && first_ + row < all; ++row) {
        const int index = first_ + row;
        const Line& line = lines_[static_cast<std::size_t>(index)];
        const bool is_selected = HasCommands() && line.paragraph == selected_;
        const bool begins =
            index == 0 || lines_[static_cast<std::size_t>(index - 1)].paragraph != line.paragraph;
        write(headings + row, HasCommands() ? (is_selected && begins ? "> " : "  ") + line.text : line.text,
              {index == found_, is_selected, false, 0});
        if (index == found_ || (found_ < 0 && is_selected && begins)) {
            canvas.PointAt(within.top + headings + row, within.left);
        }
    }
}

// Goes to the next paragraph with a command, or moves the text if there is none that way.
void TextView::Select(int step) {
    found_ = -1;
    for (auto at = static_cast<std::ptrdiff_t>(selected_) + step;
         HasCommands() && at >= 0 && at < static_cast<std::ptrdiff_t>(commands_.size()); at += step) {
        if (!commands_[static_cast<std::size_t>(at)].empty()) {
            selected_ = static_cast<std::size_t>(at);
            const auto begin = std::ranges::find(lines_, selected_, &Line::paragraph);
            const auto end = std::find_if(begin, lines_.end(),
                                          [&](const Line& line) { return line.paragraph != selected_; });
            // Of a paragraph that is longer than the screen its beginning is shown.
            first_ = std::min(std::max(first_, static_cast<int>(end - lines_.begin()) - rows_),
                              static_cast<int>(begin - lines_.begin()));
            return;
        }
    }
    first_ += step;
}

View::Outcome TextView::Take(const Event& event, const Cells& within) {
    if (event.kind == Event::Kind::WheelUp || event.kind == Event::Kind::WheelDown) {
        first_ += event.kind == Event::Kind::WheelUp ? -wheel_step : wheel_step;
        return {};
    }
    if (event.kind == Event::Kind::Press && HasCommands()) {
        const int index = first_ + event.row - within.top - static_cast<int>(headings_.size());
        if (index >= first_ && index < static_cast<int>(lines_.size())) {
            const std::size_t pressed = lines_[static_cast<std::size_t>(index)].paragraph;
            if (pressed == selected_) {
                return {false, commands_[selected_]};
            }
            selected_ = commands_[pressed].empty() ? selected_ : pressed;
        }
        return {};
    }
    if (event.kind != Event::Kind::Key) {
        return {};
    }
    switch (event.key.code) {
    case VK_ESCAPE:
        return {true, {}};
    case VK_RETURN:
        return HasCommands() ? Outcome{false, commands_[selected_]} : Outcome{};
    case VK_UP:
        Select(-1);
        break;
    case VK_DOWN:
        Select(1);
        break;
    case VK_PRIOR:
        first_ -= rows_;
        break;
    case VK_NEXT:
        first_ += rows_;
        break;
    case VK_HOME:
        first_ = 0;
        break;
    case VK_END:
        first_ = static_cast<int>(lines_.size());
        break;
    case VK_LEFT:
        shift_ = std::max(0, shift_ - 8);
        break;
    case VK_RIGHT:
        shift_ = std::clamp(Widest() - within.columns, 0, shift_ + 8);
        break;
    default:
        break;
    }
    return {};
}

int TextView::Widest() const {
    int widest = 0;
    for (const std::string& heading : headings_) {
        widest = std::max(widest, Columns(Escaped(heading)));
    }
    for (const Line& line : lines_) {
        widest = std::max(widest, Columns(Escaped(line.text)) + (HasCommands() ? 2 : 0));
    }
    return widest;
}

std::vector<Hint> TextView::Hints(const Cells& within) const {
    std::vector<Hint> hints;
    if (HasCommands()) {
        hints.push_back({"Enter", commands_[selected_], OfCode(VK_RETURN)});
    }
    hints.push_back({"Esc", "back", OfCode(VK_ESCAPE)});
    const bool is_long = static_cast<int>(headings_.size() + lines_.size()) > within.rows;
    if (is_long ||
        std::ranges::count_if(commands_, [](const auto& command) { return !command.empty(); }) > 1) {
        AddPair(hints, "Up", VK_UP, "Down", VK_DOWN, HasCommands() ? "choose" : "move");
    }
    if (is_long) {
        AddPair(hints, "PgUp", VK_PRIOR, "PgDn", VK_NEXT, "page");
    }
    if (Widest() > within.columns) {
        AddPair(hints, "Left", VK_LEFT, "Right", VK_RIGHT, "shift");
    }
    return hints;
}

bool TextView::Find(const std::string& text) {
    const std::string wanted = Folded(text);
    const auto all = static_cast<int>(lines_.size());
    const int from = found_ >= 0 ? found_ + 1 : first_;
    for (int step = 0; step < all; ++step) {
        const int index = (from + step) % all;
        if (Folded(lines_[static_cast<std::size_t>(index)].text).find(wanted) != std::string::npos) {
            found_ = index;
            first_ = std::clamp(first_, index - rows_ + 1, index);
            return true;
        }
    }
    return false;
}

} // namespace host
