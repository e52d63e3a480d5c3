#include "host/full_screen/start.h"

#include <unistd.h>

#include "host/full_screen/full_screen.h"

namespace host {

bool RunFullScreen(World& world, const FullScreen::Command& command, std::string& reason) {
    if (isatty(STDIN_FILENO) == 0 || isatty(STDOUT_FILENO) == 0) {
        reason.clear();
        return false;
    }
    if (const auto why = WhyNoFullScreen()) {
        reason = *why;
        return false;
    }
    FullScreen(world, command).Run();
    return true;
}

} // namespace host
