// The terminal: what a person does at it, and how it is left as it was found, however the program ends.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/screen/keyboard.h"

namespace host {

struct Event {
    enum class Kind {
        Key,      // for the window in front
        Function, // F1 to F12 but F4, which is a key of windows
        Press,    // of the mouse, at `row` and `column`
        Drag,
        Release,
        WheelUp,
        WheelDown,
        Resize,
        End, // Ctrl-C, a signal that ends the program, or the terminal is gone
    };
    Kind kind = Kind::Resize;
    Key key{};
    int function = 0;
    int column = 0, row = 0;
};

// How a text stands out. All can be told apart without colours.
struct Look {
    bool reversed = false, bold = false, dim = false;
    int colour = 0; // one of the next, where there are colours
};
constexpr int colour_frame = 1, colour_title = 2, colour_mark = 3, colour_hot_key = 4;

// Why the terminal can't be filled; nothing if it can.
std::optional<std::string> WhyNoFullScreen();

// The screen is its own while it lasts; one at a time.
class Terminal {
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    int columns() const;
    int rows() const;

    void Clear();
    // At most `columns` of the text, with what would command the terminal written out; blanks up to that
    // many.
    void Write(int row, int column, std::string_view text, int columns, const Look& look = {});
    // One letter of what stands there is the hot key.
    void Underline(int row, int column, int columns);
    void PointAt(int row, int column); // where the cursor stands; it is hidden until it is told after a Clear
    void Show();

    Event Next();

private:
    Event Suspend();
    std::optional<Event> Read(int milliseconds);
    Event OfEscape();
    std::optional<Event> OfMouse();

    std::optional<Event> pending_; // what came behind an Esc that was none of its own
    bool cursor_ = false;
    bool pressed_ = false; // the mouse's button is down
};

} // namespace host
