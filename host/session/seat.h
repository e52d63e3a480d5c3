// Who sits before a session: a person at a prompt or a full screen, or lines of text. A seat shows what it is
// told and passes on what its user does. It holds nothing of the machine.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/screen/canvas.h"

namespace host {

class Session;

class Seat {
public:
    virtual ~Seat() = default;

    // Called once, before anything else. The session outlives the seat's use.
    virtual void SitBefore(Session&) {}

    // What the user does next: a command in any bytes, or an empty text after he has acted on the windows
    // himself through `Session::Act`; nothing once he has left.
    virtual std::optional<std::string> Next(const std::string& prompt) = 0;

    // Shows a line of a command's output. It holds no control character, whatever a machine contains.
    virtual void Tell(std::string_view line) = 0;
    // All output of a command has been told.
    virtual void Done(const std::string& command) = 0;

    // Whether the commands are already before the user's eyes when he gives them.
    virtual bool IsPerson() const = 0;
    // Whether the user sees open windows without being told of them.
    virtual bool SeesWindows() const = 0;

    // The columns of a line; 0 for any number.
    virtual int Width() const = 0;
    // Whether windows are told as lists and not drawn.
    virtual bool IsPlain() const { return false; }
    // What it can show of frames.
    virtual Charset Letters() const = 0;

    // Whether the session may end although its changes are not saved. A person is asked.
    virtual bool MayDiscard() = 0;
};

} // namespace host
