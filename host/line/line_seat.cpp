#include "host/line/line_seat.h"

#include <algorithm>

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
    Tell("The machine has changed and was not exported: export FILE saves it, quit again discards the "
         "changes.");
    return false;
}

} // namespace host
