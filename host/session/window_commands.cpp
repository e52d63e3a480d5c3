#include "host/screen/hand.h"
#include "host/screen/listing.h"
#include "host/session/command.h"
#include "host/session/session.h"
#include "host/text.h"

namespace host {
namespace {

constexpr int apply_now = 0x3021; // the number of the sheet's own Apply button, on every Windows

constexpr struct {
    const char* word;
    int id;
} answers[] = {{"yes", IDYES}, {"no", IDNO}, {"ok", IDOK}},
  sheet_buttons[] = {{"ok", IDOK}, {"apply", apply_now}, {"cancel", IDCANCEL}};

int IdOf(const auto& table, const std::string& word) {
    std::string words;
    for (const auto& entry : table) {
        if (Folded(word) == entry.word) {
            return entry.id;
        }
        words += std::string{words.empty() ? "" : ", "} + entry.word;
    }
    throw Refusal(Quoted(word) + " is not one of " + words);
}

void Open(Session& session, const Words& words) {
    session.Open(session.FindDevice(words[1]));
}

void Show(Session& session, const Words&) {
    session.Show();
}

void Controls(Session& session, const Words&) {
    session.Tell(ListControls(session.Front()));
    session.TellBehind();
}

void PickItem(Session& session, const Words& words) {
    const Window front = session.Front();
    Pick(session.InFront(front, words[1]), words[2]);
}

void CheckOn(Session& session, const Words& words) {
    const Window front = session.Front();
    SetCheck(session.InFront(front, words[1]), true);
}

void CheckOff(Session& session, const Words& words) {
    const Window front = session.Front();
    SetCheck(session.InFront(front, words[1]), false);
}

void SlideTo(Session& session, const Words& words) {
    const Window front = session.Front();
    const Control& slider = session.InFront(front, words[1]);
    long position = 0;
    if (!ParseNumber(words[2], position)) {
        throw Refusal(Quoted(words[2]) + " is not a number");
    }
    Slide(slider, position);
}

void ClickOn(Session& session, const Words& words) {
    const Window front = session.Front();
    session.Press(session.InFront(front, words[1]));
}

void Answer(Session& session, const Words& words) {
    const Window front = session.Front();
    const int id = IdOf(answers, words[1]);
    if (front.kind != WindowKind::Box) {
        throw Refusal("no message box is in front");
    }
    for (const Control& control : front.controls) {
        if (control.kind == Kind::Button && control.id == id) {
            return session.Press(control);
        }
    }
    throw Refusal("the box has only: " + ButtonNames(front));
}

void Sheet(Session& session, const Words& words) {
    const Window front = session.Front();
    const int id = IdOf(sheet_buttons, words[1]);
    if (front.kind != WindowKind::Sheet) {
        throw Refusal(session.windows().back().told + " is in front and blocks the sheet");
    }
    session.Press(FindButton(front, id));
}

} // namespace

std::span<const Command> WindowCommands() {
    static constexpr Command commands[] = {
        {"open", "DEVICE", "opens the sheet of a device: its number in the list, COM5, or its instance id",
         &Open},
        {"show", "", "draws the screen", &Show},
        {"controls", "", "lists the controls of the window in front: number, kind, caption, state",
         &Controls},
        {"pick", "CONTROL ITEM", "picks an item of a list: by its text, its first word, or #n counted from 1",
         &PickItem},
        {"check", "CONTROL", "checks a box", &CheckOn},
        {"uncheck", "CONTROL", "unchecks a box", &CheckOff},
        {"slide", "CONTROL POSITION", "moves a slider", &SlideTo},
        {"click", "CONTROL", "presses a button of the window in front", &ClickOn},
        {"answer", "yes|no|ok", "answers a message box", &Answer},
        {"sheet", "ok|apply|cancel", "presses a button of the sheet itself", &Sheet},
    };
    return commands;
}

} // namespace host
