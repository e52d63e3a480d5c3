// What the full screen asks its user: a line, one of some letters.
#include "host/full_screen/full_screen.h"

#include <algorithm>

#include "host/session/completion.h"
#include "host/text.h"

namespace host {

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
        if (!line.empty()) {
            question.answers.push_back({"^U", "clear", OfControl(clear)});
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
        if (IsControl(event, clear)) {
            line.clear();
            cursor = 0;
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
    constexpr std::string_view refused = "error: ";
    for (std::string file = stem + (kind == 'e' ? "-changed.reg" : "-fix.reg");;) {
        const std::optional<std::string> wanted = AskLine(word + " to: ", file, false);
        if (!wanted || wanted->empty()) {
            return;
        }
        file = *wanted;
        Lines told = OutputOf(word + ' ' + AsWord(file));
        if (const std::size_t exists = told.empty() ? std::string::npos : told.front().find(" exists; ");
            exists != std::string::npos) {
            const std::string which = told.front().substr(refused.size(), exists - refused.size());
            if (AskLetter(which + " exists.", {{"r", "replace it", OfLetter('r')}, esc}) == 0) {
                return;
            }
            told = OutputOf(word + " --over " + AsWord(file));
        }
        message_ = told.empty() ? file + " is written" : told.front();
        if (!message_.starts_with(refused)) {
            return;
        }
    }
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

} // namespace host
