// What lies over the devices for a while: a text, a map. One at a time; a function key goes from one to the
// next.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/full_screen/hints.h"
#include "host/full_screen/terminal.h"
#include "host/screen/placement.h"

namespace host {

class View {
public:
    virtual ~View() = default;

    virtual std::string Title() const = 0;
    // Shows the machine as it is now.
    virtual void Renew() = 0;
    virtual void Draw(Canvas& canvas, const Cells& within) = 0;

    // What an event led to: a command to be carried out, if any.
    struct Outcome {
        bool closes = false;
        std::string command;
    };
    virtual Outcome Take(const Event& event, const Cells& within) = 0;

    // What the keys do in these cells, besides those that do the same everywhere.
    virtual std::vector<Hint> Hints(const Cells& within) const = 0;

    // Finds the next place with such a text, beginning after the present one. False if there is none.
    virtual bool Find(const std::string& text) = 0;
};

} // namespace host
