// Lines of text, longer and wider than the screen. Some of them may stand for something that Enter does.
#pragma once

#include <functional>

#include "host/full_screen/view.h"
#include "host/session/session.h"

namespace host {

// Lines that belong together.
struct Paragraph {
    Lines lines;
    std::string command; // that Enter gives; empty for none
};

class TextView : public View {
public:
    using Source = std::function<std::vector<Paragraph>()>;
    // The source gives the text as it is now. Its first `headings` lines stay in sight.
    TextView(std::string title, Source source, std::size_t headings = 0);

    std::string Title() const override;
    void Renew() override;
    void Draw(Canvas& canvas, const Cells& within) override;
    Outcome Take(const Event& event, const Cells& within) override;
    std::vector<Hint> Hints(const Cells& within) const override;
    bool Find(const std::string& text) override;

private:
    struct Line {
        std::string text;
        std::size_t paragraph;
    };

    bool HasCommands() const;
    int Widest() const; // columns
    void Select(int step);

    std::string title_;
    Source source_;
    std::size_t heading_count_;
    Lines headings_;
    std::vector<Line> lines_;
    Lines commands_;                       // by paragraph
    std::size_t selected_ = 0;             // a paragraph with a command, if there is one
    int found_ = -1;                       // the line that was searched for
    int first_ = 0, shift_ = 0, rows_ = 1; // what is in sight
};

} // namespace host
