// The seat of commands that come line by line and are answered on a stream.
#pragma once

#include <ostream>

#include "host/line/line_source.h"
#include "host/session/seat.h"

namespace host {

class LineSeat : public Seat {
public:
    // Both must outlive this. If it is plain, windows are told as lists.
    LineSeat(LineSource& lines, std::ostream& out, bool is_plain = false)
        : lines_(lines), out_(out), is_plain_(is_plain) {}

    // Whether there was any line at all.
    bool had_input() const { return had_input_; }

    void SitBefore(Session& session) override;
    std::optional<std::string> Next(const std::string& prompt) override;
    void Tell(std::string_view line) override;
    void Done(const std::string& command) override;
    bool IsPerson() const override { return lines_.IsPerson(); }
    bool SeesWindows() const override { return false; }
    int Width() const override { return lines_.Width(); }
    bool IsPlain() const override { return is_plain_ || lines_.IsPlain(); }
    Charset Letters() const override { return lines_.Letters(); }
    // A person is told what he would lose, and agrees with the next line if that ends the session too.
    bool MayDiscard() override;

private:
    LineSource& lines_;
    std::ostream& out_;
    bool is_plain_;
    bool had_input_ = false;
    int asked_ = 0; // lines in which the person may still agree
};

} // namespace host
