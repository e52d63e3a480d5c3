// The terminal: it shows a canvas and tells what a person does. It is left as it was found, however the
// program ends.
#pragma once

#include <cwchar>
#include <deque>
#include <optional>
#include <string>

#include "host/screen/canvas.h"
#include "host/screen/keyboard.h"

namespace host {

struct Event {
    enum class Kind {
        Key,      // for the window in front
        Function, // F1 to F12 except F4, which is a key of windows
        Control,  // Ctrl and the key's letter, a capital
        Press,    // of the mouse, at `row` and `column`
        Drag,
        Release,
        WheelUp,
        WheelDown,
        Resize,
        End, // a signal that ends the program, or the loss of the terminal
    };
    Kind kind = Kind::Resize;
    Key key{};
    int function = 0;
    int column = 0, row = 0;
};

constexpr Event OfKey(const Key& key) {
    return {Event::Kind::Key, key};
}
constexpr Event OfCode(UINT code) {
    return OfKey({code});
}
constexpr Event OfLetter(WCHAR letter) {
    return OfKey({0, letter});
}
constexpr Event OfFunction(int number) {
    return {Event::Kind::Function, {}, number};
}
constexpr Event OfControl(char letter) {
    return {Event::Kind::Control, {0, static_cast<WCHAR>(letter)}};
}
constexpr bool IsControl(const Event& event, char letter) {
    return event.kind == Event::Kind::Control && event.key.letter == static_cast<WCHAR>(letter);
}

constexpr int wheel_step = 3; // items or lines that the mouse's wheel moves by

// Why the terminal can't be filled; nothing if it can be.
std::optional<std::string> WhyNoFullScreen();

// Owns the screen while it lives. Only one may exist at a time. If a signal has ended its use, the program
// ends by that signal with it.
class Terminal {
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    int columns() const;
    int rows() const;

    void Show(const Canvas& canvas); // the cursor is hidden if the canvas has none

    Event Next();

private:
    Event Suspend();
    std::optional<Event> Read(int milliseconds);
    std::optional<Event> OfCode(std::wint_t code);
    std::optional<Event> OfCharacter(std::wint_t character);
    std::optional<Event> OfEscape();
    std::optional<Event> OfMouse();
    std::optional<Event> TakePending();

    std::deque<Event> pending_; // came together with the last one
    Charset charset_;
    bool pressed_ = false; // the mouse's button is down
};

} // namespace host
