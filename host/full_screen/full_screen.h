// The seat before a terminal that is filled: the machine's devices, the windows that are open over them, what
// the last action changed outside, a view for a while, and at the foot what the keys do at the moment.
//
// A key becomes the messages of that key, and a click does what a hand does. Nothing is known here about a
// dialog except what is read from it, and nothing of the machine except what the session says.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/full_screen/device_list.h"
#include "host/full_screen/front_window.h"
#include "host/full_screen/hints.h"
#include "host/full_screen/text_view.h"
#include "host/session/seat.h"
#include "host/session/session.h"

namespace host {

// Keys with Ctrl that do the same everywhere.
constexpr char leave = 'C', save = 'S', numbers = 'N', board = 'B';
constexpr char clear = 'U'; // where a line is typed

// What the journal and the trace say while they are empty.
constexpr const char* nothing_changed = "nothing has been changed";
constexpr const char* nothing_traced = "nothing has been traced yet";

class FullScreen : public Seat {
public:
    // The terminal must be one that can be filled.
    FullScreen() = default;

    void SitBefore(Session& session) override;
    std::optional<std::string> Next(const std::string& prompt) override;
    void Tell(std::string_view line) override { told_.emplace_back(line); }
    void Done(const std::string& command) override;
    bool IsPerson() const override { return true; }
    bool SeesWindows() const override { return true; }
    int Width() const override { return terminal_.columns(); }
    Charset Letters() const override { return Charset::Utf8; }
    bool MayDiscard() override;

private:
    // --- The picture
    // What stands above the hints while an answer is awaited.
    struct Question {
        std::string text;
        int cursor; // columns before it
        std::vector<Hint> answers;
    };
    void Draw(const Question* question = nullptr);
    void DrawTitle();
    void DrawPane(const Cells& within);
    void DrawFoot(const Question* question);
    std::vector<Hint> HintsHere() const;
    Cells Body() const;
    int PaneRows() const;
    bool IsTooSmall() const;

    // --- Events; the command that one leads to, or an empty text
    Event NextEvent();
    std::string TakeCommon(const Event& event);
    std::string TakeView(const Event& event);
    std::string TakeDeviceEvent(const Event& event);

    // --- Views
    Lines OutputOf(const std::string& command);
    void ShowText(const std::string& title, TextView::Source source, std::size_t headings = 0);
    void ShowOutput(const std::string& title, const std::string& command, std::size_t headings = 0);
    std::vector<Paragraph> Findings();
    std::vector<Paragraph> Journal();
    std::vector<Paragraph> Board(const std::string& device);
    std::vector<Paragraph> Help();
    void Refresh();

    // --- Questions: a line that is typed, or nothing if its user thought better of it; one of some letters,
    // or 0
    std::optional<std::string> AskLine(const std::string& label, std::string text, bool is_command);
    char AskLetter(const std::string& question, const std::vector<Hint>& answers);
    void AskFind();
    void Save();

    Terminal terminal_;
    Canvas canvas_{0, 0}; // what it shows
    int columns_ = 0;     // of the screen when it was drawn
    Session* session_ = nullptr;
    DeviceList devices_;
    FrontWindow front_;
    std::unique_ptr<View> view_;
    std::string searched_;                 // what was looked for last
    std::size_t shown_actions_ = 0;        // the session's, when the devices were read
    bool tracing_ = false;                 // the pane shows the trace, not the journal
    Lines told_;                           // by the command in progress
    std::string message_;                  // shown once
    Lines commands_;                       // typed so far
    std::vector<Hint> hints_;              // at the foot,
    std::vector<PlacedHint> placed_hints_; // and where
    int foot_ = 1;                         // rows of the hints
};

} // namespace host
