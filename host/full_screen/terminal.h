// The terminal: what a person does at it. It is left as it was found, however the program ends.
#pragma once

#include <cwchar>
#include <optional>
#include <string>
#include <string_view>

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

// How a text stands out. All looks differ even without colours.
struct Look {
    bool reversed = false, bold = false, dim = false;
    int colour = 0; // one of the constants below, if there are colours
};
constexpr int colour_frame = 1, colour_title = 2, colour_mark = 3, colour_hot_key = 4;

constexpr int wheel_step = 3; // items or lines that the mouse's wheel moves by

// Why the terminal can't be filled; nothing if it can be.
std::optional<std::string> WhyNoFullScreen();

// Owns the screen while it lives. Only one may exist at a time.
class Terminal {
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    int columns() const;
    int rows() const;

    void Clear();
    // Writes at most `columns` of the text and fills up with blanks. Characters that command the terminal are
    // written out.
    void Write(int row, int column, std::string_view text, int columns, const Look& look = {});
    // Marks one letter of the text there as the hot key.
    void Underline(int row, int column, int columns);
    void PointAt(int row, int column); // puts the cursor there; hidden until the first call after a Clear
    void Show();

    Event Next();

private:
    Event Suspend();
    std::optional<Event> Read(int milliseconds);
    std::optional<Event> OfCode(std::wint_t code);
    std::optional<Event> OfCharacter(std::wint_t character);
    Event OfEscape();
    std::optional<Event> OfMouse();

    std::optional<Event> pending_; // what came after an Esc that did not belong to it
    bool cursor_ = false;
    bool pressed_ = false; // the mouse's button is down
};

} // namespace host
