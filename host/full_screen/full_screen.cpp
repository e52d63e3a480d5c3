#include "host/full_screen/full_screen.h"

#include <algorithm>
#include <iterator>

#include "host/diagnosis/board_table.h"
#include "host/diagnosis/report.h"
#include "host/full_screen/numbers_view.h"
#include "host/session/completion.h"
#include "host/text.h"

namespace host {
namespace {

constexpr int small_screen = 100; // columns
constexpr int low_screen = 40;    // rows

constexpr char leave = 'C', save = 'S', numbers = 'N', board = 'B'; // with Ctrl

bool IsControl(const Event& event, char letter) {
    return event.kind == Event::Kind::Control && event.key.letter == static_cast<WCHAR>(letter);
}

// A word as the command line takes it.
std::string AsWord(const std::string& text) {
    return text.find(' ') == std::string::npos ? text : '"' + text + '"';
}

constexpr std::size_t mark_columns = 2; // before a line that stands for something; a table has blanks there

constexpr const char* nothing_changed = "nothing has been changed";
constexpr const char* nothing_traced = "nothing has been traced yet";

constexpr const char* help[] = {
    "At the foot of the screen stands what the keys do at the moment; a click there does the same.",
    "In a window they are Windows' own:",
    "  Tab, Shift-Tab     the next or the previous control",
    "  Alt and a letter   the control whose letter is underlined",
    "  Space              checks a box, presses a button",
    "  Enter              presses the button <in these>",
    "  Esc                cancels",
    "  arrows             move within a list, a slider, a group",
    "  F4, Alt-Down       opens and closes a combo's list",
    "  letters            find the item that begins with them; in the list of devices too",
    "The mouse clicks, drags a slider, and turns its wheel over a list.",
    "~ marks what is disabled, * what differs from what is stored, > the focus.",
    "Ctrl-L repaints the screen, Ctrl-Z stops the program.",
    "",
    "Commands, typed after F6 or at the prompt of --line:",
};

} // namespace

void FullScreen::SitBefore(Session& session) {
    session_ = &session;
    devices_.Read(session.world());
    session.Trace();
}

std::optional<std::string> FullScreen::Next(const std::string&) {
    if (shown_actions_ != session_->actions().size()) {
        Refresh();
    }
    Draw();
    const Event event = NextEvent();
    const bool leaves =
        IsControl(event, leave) || (event.kind == Event::Kind::Function && event.function == 10);
    if (leaves) {
        return {};
    }
    if (event.kind == Event::Kind::End) {
        session_->Abandon();
        return std::string{};
    }
    if (event.kind == Event::Kind::Function || event.kind == Event::Kind::Control) {
        return TakeCommon(event);
    }
    if (view_) {
        return TakeView(event);
    }
    if (session_->windows().empty()) {
        return TakeDeviceEvent(event);
    }
    if (event.kind != Event::Kind::Resize) {
        front_.Take(*session_, event);
    }
    return std::string{};
}

// The next event; a click on a hint is the event of its key.
Event FullScreen::NextEvent() {
    const Event event = terminal_.Next();
    if (event.kind == Event::Kind::Resize || event.kind == Event::Kind::Release) {
        return event; // which is nobody's answer to what has been said
    }
    message_.clear();
    if (event.kind == Event::Kind::Press) {
        for (const PlacedHint& placed : placed_hints_) {
            if (placed.cells.Has(event.column, event.row - (terminal_.rows() - foot_))) {
                return placed.hint->event;
            }
        }
    }
    return event;
}

void FullScreen::Done(const std::string& command) {
    const Lines told = std::exchange(told_, {});
    if (told.size() == 1) {
        message_ = told.front();
    } else if (!told.empty()) {
        ShowText(command, [told] { return std::vector<Paragraph>{{told, {}}}; });
    }
    Refresh();
}

// --- Events ---

std::string FullScreen::TakeCommon(const Event& event) {
    const std::string device = std::to_string(devices_.Selected());
    if (IsControl(event, save)) {
        Save();
    } else if (IsControl(event, numbers)) {
        view_ = std::make_unique<NumbersView>(session_->world());
    } else if (IsControl(event, board)) {
        ShowText(
            "The board of device " + device, [this, device] { return Board(device); }, 1);
    }
    if (event.kind == Event::Kind::Control) {
        return {};
    }
    switch (event.function) {
    case 1:
        ShowText("Help", [this] { return Help(); });
        break;
    case 2:
        ShowOutput("Ports", "ports", 1);
        break;
    case 3:
        ShowOutput("The store of device " + device, "store " + device);
        break;
    case 5:
    case 9: // the pane goes on with it
        tracing_ = event.function == 9;
        ShowText(tracing_ ? "Trace of the last action" : "Journal", [this] { return Journal(); });
        break;
    case 6:
        return AskLine("command: ", {}, true).value_or("");
    case 7:
        ShowText("What is wrong", [this] { return Findings(); });
        break;
    case 8:
        ShowOutput("What differs from the machine as it was read", "changes");
        break;
    default:
        break;
    }
    return {};
}

std::string FullScreen::TakeView(const Event& event) {
    const bool is_key = event.kind == Event::Kind::Key;
    if (is_key && event.key.letter == '/') {
        AskFind();
        return {};
    }
    if (is_key && event.key.letter == 'n' && !searched_.empty()) {
        message_ = view_->Find(searched_) ? "" : "not found: " + searched_;
        return {};
    }
    View::Outcome outcome = view_->Take(event, Body());
    if (outcome.closes || outcome.command.starts_with("open")) {
        view_.reset();
    }
    return outcome.command;
}

std::string FullScreen::TakeDeviceEvent(const Event& event) {
    if (event.kind == Event::Kind::Key && event.key.letter == '/') {
        AskFind();
        return {};
    }
    return devices_.Take(event, Body()) ? "open " + std::to_string(devices_.Selected()) : std::string{};
}

// --- Views ---

Lines FullScreen::OutputOf(const std::string& command) {
    Lines before = std::exchange(told_, {});
    session_->Execute(command);
    return std::exchange(told_, std::move(before));
}

void FullScreen::ShowText(const std::string& title, TextView::Source source, std::size_t headings) {
    view_ = std::make_unique<TextView>(title, std::move(source), headings);
}

void FullScreen::ShowOutput(const std::string& title, const std::string& command, std::size_t headings) {
    ShowText(
        title,
        [this, command] {
            return std::vector<Paragraph>{{OutputOf(command), {}}};
        },
        headings);
}

// Enter mends what is safe to mend, or else goes to the device.
std::vector<Paragraph> FullScreen::Findings() {
    const Records records = session_->world().Describe();
    const std::vector<Finding> findings = Diagnose(records);
    if (findings.empty()) {
        return {{DiagnosisLines(records, findings), {}}};
    }
    std::vector<Paragraph> paragraphs;
    for (const Finding& finding : findings) {
        const bool opens = !finding.subject.open.empty() && !finding.safe;
        paragraphs.push_back({FindingLines(finding), opens          ? "open " + AsWord(finding.subject.open)
                                                     : finding.safe ? finding.command
                                                                    : ""});
    }
    return paragraphs;
}

std::vector<Paragraph> FullScreen::Journal() {
    if (tracing_ ? session_->Trace().empty() : session_->actions().empty()) {
        return {{{tracing_ ? nothing_traced : nothing_changed}, {}}};
    }
    if (tracing_) {
        return {{session_->Trace(), {}}};
    }
    std::vector<Paragraph> actions;
    for (const Action& action : session_->actions()) {
        actions.push_back({{action.name + ':'}, {}});
        for (const std::string& change : action.changes) {
            actions.back().lines.push_back("  " + change);
        }
    }
    return actions;
}

std::vector<Paragraph> FullScreen::Board(const std::string& device) {
    const Records records = session_->world().Describe();
    const BoardTable table = TableOfBoard(records, session_->FindDevice(device));
    if (table.lines.empty()) {
        return {{{"This device belongs to no board that has a page."}, {}}};
    }
    std::vector<Paragraph> paragraphs;
    for (std::size_t row = 0; row < table.lines.size(); ++row) {
        const std::size_t listed = table.listed[row];
        // The view marks what can be chosen in the columns that the table leaves free, but not the headings.
        paragraphs.push_back({{row == 0 ? table.lines[row] : table.lines[row].substr(mark_columns)},
                              listed != 0 ? "open " + std::to_string(listed) : ""});
    }
    return paragraphs;
}

std::vector<Paragraph> FullScreen::Help() {
    std::vector<Paragraph> paragraphs;
    for (const char* const line : help) {
        paragraphs.push_back({{line}, {}});
    }
    paragraphs.push_back({OutputOf("help"), {}});
    return paragraphs;
}

// Shows what has changed since the devices and the view were read.
void FullScreen::Refresh() {
    shown_actions_ = session_->actions().size();
    devices_.Read(session_->world());
    if (view_) {
        view_->Renew();
    }
}

// --- Questions ---

std::optional<std::string> FullScreen::AskLine(const std::string& label, std::string text, bool is_command) {
    Text line = FromUtf8(text);
    std::size_t cursor = line.size(), recalled = commands_.size();
    for (;;) {
        const std::string before = ' ' + label + ToUtf8(line.substr(0, cursor));
        Question question{before + ToUtf8(line.substr(cursor)) + ' ', Columns(Escaped(before)), {}};
        question.answers = {{"Enter", "do it", OfCode(VK_RETURN)}, {"Esc", "leave", OfCode(VK_ESCAPE)}};
        if (is_command) {
            question.answers.push_back({"Tab", "complete", OfCode(VK_TAB)});
        }
        if (is_command && !commands_.empty()) {
            AddPair(question.answers, "Up", VK_UP, "Down", VK_DOWN, "earlier ones");
        }
        Draw(&question);
        const Event event = NextEvent();
        if (event.kind == Event::Kind::End) {
            session_->Abandon();
            return {};
        }
        if (IsControl(event, leave)) {
            return {};
        }
        if (event.kind != Event::Kind::Key) {
            continue;
        }
        const Key& key = event.key;
        if (key.code == VK_ESCAPE) {
            return {};
        }
        if (key.code == VK_RETURN) {
            text = ToUtf8(line);
            if (is_command && !text.empty()) {
                commands_.push_back(text);
            }
            return text;
        }
        if (is_command && (key.code == VK_UP || key.code == VK_DOWN)) {
            recalled = key.code == VK_UP ? std::max<std::size_t>(recalled, 1) - 1
                                         : std::min(recalled + 1, commands_.size());
            line = FromUtf8(recalled < commands_.size() ? commands_[recalled] : "");
            cursor = line.size();
        } else if (is_command && key.code == VK_TAB) {
            const Completion completion = Completed(*session_, ToUtf8(line.substr(0, cursor)));
            const Text completed = FromUtf8(completion.line);
            line.replace(0, cursor, completed);
            cursor = completed.size();
            for (const std::string& candidate : completion.candidates) {
                message_ += (message_.empty() ? "" : "  ") + Escaped(candidate);
            }
        } else if (key.code == VK_LEFT) {
            cursor = std::max<std::size_t>(cursor, 1) - 1;
        } else if (key.code == VK_RIGHT) {
            cursor = std::min(cursor + 1, line.size());
        } else if (key.code == VK_HOME) {
            cursor = 0;
        } else if (key.code == VK_END) {
            cursor = line.size();
        } else if (key.code == VK_BACK && cursor != 0) {
            line.erase(--cursor, 1);
        } else if (key.code == VK_DELETE) {
            line.erase(cursor, 1);
        } else if ((key.letter != 0 && !key.alt) || key.code == VK_SPACE) {
            line.insert(cursor++, 1, key.letter != 0 ? key.letter : WCHAR{' '});
        }
    }
}

char FullScreen::AskLetter(const std::string& question, const std::vector<Hint>& answers) {
    for (;;) {
        const Question asked{' ' + question, Columns(question) + 2, answers};
        Draw(&asked);
        const Event event = NextEvent();
        if (event.kind == Event::Kind::End) {
            session_->Abandon();
            return 0;
        }
        if (IsControl(event, leave) || (event.kind == Event::Kind::Key && event.key.code == VK_ESCAPE)) {
            return 0;
        }
        for (const Hint& answer : answers) {
            if (event.kind == Event::Kind::Key && event.key.letter != 0 &&
                event.key.letter == answer.event.key.letter) {
                return static_cast<char>(event.key.letter);
            }
        }
    }
}

void FullScreen::AskFind() {
    const std::optional<std::string> text = AskLine("find: ", {}, false);
    searched_ = text && !text->empty() ? *text : searched_;
    if (text && !searched_.empty()) {
        const bool is_found = view_ ? view_->Find(searched_) : devices_.Find(searched_);
        message_ = is_found ? "" : "not found: " + searched_;
    }
}

void FullScreen::Save() {
    const Hint esc{"Esc", "go on", OfCode(VK_ESCAPE)};
    const char kind = AskLetter("Save:", {{"e", "export the whole machine", OfLetter('e')},
                                          {"p", "patch with the changes, to import", OfLetter('p')},
                                          esc});
    if (kind == 0) {
        return;
    }
    std::string stem = session_->world().Name();
    if (stem.ends_with(".reg")) {
        stem.resize(stem.size() - 4);
    } else {
        stem = "sample";
    }
    const std::string word = kind == 'e' ? "export" : "patch";
    const std::optional<std::string> file =
        AskLine(word + " to: ", stem + (kind == 'e' ? "-changed.reg" : "-fix.reg"), false);
    if (!file || file->empty()) {
        return;
    }
    Lines told = OutputOf(word + ' ' + AsWord(*file));
    if (!told.empty() && told.front().find(" exists; ") != std::string::npos) {
        if (AskLetter(*file + " exists.", {{"r", "replace it", OfLetter('r')}, esc}) == 0) {
            return;
        }
        told = OutputOf(word + " --over " + AsWord(*file));
    }
    message_ = told.empty() ? *file + " is written" : told.front();
}

bool FullScreen::MayDiscard() {
    const char answer = AskLetter(session_->world().Name() + " has changed, and the changes are not saved.",
                                  {{"s", "save", OfLetter('s')},
                                   {"d", "discard them and end", OfLetter('d')},
                                   {"Esc", "go on", OfCode(VK_ESCAPE)}});
    if (answer == 's') {
        Save();
    }
    return answer == 'd' || (answer == 's' && !session_->IsUnsaved());
}

// --- The picture ---

int FullScreen::PaneRows() const {
    return view_ ? 0 : terminal_.rows() < low_screen ? 4 : 10;
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
    if (columns < fewest_columns || rows < fewest_rows) {
        canvas_ = Canvas(columns, rows);
        canvas_.Write(0, 0, "needs " + std::to_string(fewest_columns) + 'x' + std::to_string(fewest_rows),
                      columns);
        return terminal_.Show(canvas_);
    }
    front_.Read(*session_);
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
