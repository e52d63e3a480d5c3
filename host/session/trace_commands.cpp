#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>

#include "host/session/command.h"
#include "host/session/session.h"
#include "host/text.h"
#include "host/whole_file.h"

namespace host {
namespace {

// A line of the trace is written as it is, one of the journal with a * before it. They are appended to a file
// that this session has begun, and to no other.
World::TraceListener ListenerFor(Session& session, const std::string& where) {
    const std::string word = Folded(where);
    if (word == "off") {
        return nullptr;
    }
    if (word == "on") {
        return [&session](const std::string& line, bool change) {
            session.Tell((change ? "  * " : "  ") + line);
        };
    }
    Lines& begun = session.trace_files();
    const bool goes_on = std::ranges::find(begun, where) != begun.end();
    std::error_code none;
    if (!goes_on && std::filesystem::is_regular_file(PathOf(where), none)) {
        throw Refusal(where + " exists; name a new file");
    }
    const auto file = std::make_shared<std::ofstream>(PathOf(where), std::ios::app);
    if (!*file) {
        throw Refusal("can't write " + where);
    }
    begun.push_back(where);
    return [file](const std::string& line, bool change) {
        *file << (change ? "* " : "") << line << '\n' << std::flush;
    };
}

void Trace(Session& session, const Words& words) {
    World::TraceListener hear = ListenerFor(session, words[1]);
    const bool wanted = hear != nullptr;
    if (!session.HearTrace(std::move(hear)) && wanted) {
        throw Refusal("this library has no trace; the diagnostic one has");
    }
}

} // namespace

std::span<const Command> TraceCommands() {
    static constexpr Command commands[] = {
        {"trace", "on|off|FILE",
         "shows or keeps what the library decides, and in between what it changes (*)", &Trace},
    };
    return commands;
}

} // namespace host
