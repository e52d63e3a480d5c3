// The open windows on the terminal, and what keys and the mouse do to the one in front.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/full_screen/hints.h"
#include "host/screen/painter.h"
#include "host/session/session.h"

namespace host {

class FrontWindow {
public:
    // Reads the session's windows, which the rest is about.
    void Read(Session& session);

    // Draws them into these cells, or over more of the terminal if they need it. Returns whether the first
    // `beside` columns have stayed free.
    bool Draw(Canvas& canvas, const Cells& within, int beside);

    // What the keys do to the control with the focus, if there are so many cells for the window.
    std::vector<Hint> Hints(int columns, int rows) const;

    // Passes an event on to the window in front, as an action of the session.
    void Take(Session& session, Event event);

private:
    // What a press of the mouse is for; null for nothing.
    const Placed* At(const Event& event) const;
    void Click(const Placed& placed, const Event& event);
    void ClickList(const Control& list, int row, int rows);
    void Turn(const Event& event);
    void Scroll(int step);
    void Drag(int column);

    const Painted& Front() const { return windows_.back(); }

    std::vector<Painted> windows_; // from the backmost to the frontmost
    Turned turned_;
    std::map<HWND, std::optional<Window>> stored_; // each window as it showed what is stored
    std::size_t actions_ = 0;                      // the session's then
    HWND dragged_ = nullptr;                       // the slider that the mouse holds
};

} // namespace host
