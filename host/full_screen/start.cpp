#include "host/full_screen/start.h"

#include <optional>
#include <sstream>
#include <utility>

#include <unistd.h>

#include "host/full_screen/full_screen.h"
#include "host/line/interpreter.h"

namespace host {
namespace {

struct OneLine : LineSource {
    std::optional<std::string> line;
    std::optional<std::string> Next(const std::string&) override { return std::exchange(line, {}); }
};

} // namespace

bool RunFullScreen(World& world, std::string& reason) {
    if (isatty(STDIN_FILENO) == 0 || isatty(STDOUT_FILENO) == 0) {
        reason.clear();
        return false;
    }
    if (const auto why = WhyNoFullScreen()) {
        reason = *why;
        return false;
    }
    OneLine typed;
    std::ostringstream out;
    Interpreter interpreter(world, typed, out);
    const auto command = [&](const std::string& line) {
        typed.line = line;
        out.str({});
        interpreter.Run();
        std::istringstream written(out.str());
        Lines lines;
        for (std::string each; std::getline(written, each);) {
            lines.push_back(each);
        }
        if (!lines.empty()) {
            lines.erase(lines.begin()); // the command itself
        }
        return lines;
    };
    FullScreen(world, command).Run();
    return true;
}

} // namespace host
