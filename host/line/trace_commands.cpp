#include <filesystem>
#include <fstream>
#include <memory>

#include "host/line/command.h"
#include "host/line/interpreter.h"
#include "host/text.h"

namespace host {
namespace {

// A line of the trace is written as it is, one of the journal with a * before it. They are appended to what a
// file already holds.
World::TraceListener ListenerFor(Interpreter& host, const std::string& where) {
    const std::string word = Folded(where);
    if (word == "off") {
        return nullptr;
    }
    if (word == "on") {
        return [&host](const std::string& line, bool change) { host.Write({line}, change ? "  * " : "  "); };
    }
    const auto file = std::make_shared<std::ofstream>(std::filesystem::path(FromUtf8(where)), std::ios::app);
    if (!*file) {
        throw Refusal("can't write " + where);
    }
    return [file](const std::string& line, bool change) {
        *file << (change ? "* " : "") << line << '\n' << std::flush;
    };
}

void Trace(Interpreter& host, const Words& words) {
    World::TraceListener hear = ListenerFor(host, words[1]);
    const bool wanted = hear != nullptr;
    if (!host.world().HearTrace(std::move(hear)) && wanted) {
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
