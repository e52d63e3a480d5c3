#include "host/line/line_seat.h"

#include <algorithm>

#include "host/text.h"

namespace host {

void LineSeat::SitBefore(Session& session) {
    lines_.CompleteBy([&session](std::string_view line) { return Completed(session, line); });
}

std::optional<std::string> LineSeat::Next(const std::string& prompt) {
    std::optional<std::string> line = lines_.Next(prompt);
    had_input_ = had_input_ || line;
    asked_ = std::max(0, asked_ - 1);
    return line;
}

void LineSeat::Tell(std::string_view line) {
    out_ << line << '\n';
}

void LineSeat::Done(const std::string&) {
    out_.flush();
}

bool LineSeat::MayDiscard() {
    if (!lines_.IsPerson() || asked_ != 0) {
        return true;
    }
    asked_ = 2;
    for (const std::string& line : BrokenAt(
             "The machine has changed, and the changes are not saved: export FILE or patch FILE saves them, "
             "quit again discards them.",
             Width() != 0 ? Width() : 80)) {
        Tell(line);
    }
    return false;
}

} // namespace host
