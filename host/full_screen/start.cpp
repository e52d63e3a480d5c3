#include "host/full_screen/start.h"

#include <unistd.h>

#include "host/full_screen/full_screen.h"

namespace host {

std::unique_ptr<Seat> OpenFullScreen(std::string& reason) {
    if (isatty(STDIN_FILENO) == 0 || isatty(STDOUT_FILENO) == 0) {
        return nullptr;
    }
    if (const auto why = WhyNoFullScreen()) {
        reason = *why;
        return nullptr;
    }
    return std::make_unique<FullScreen>();
}

} // namespace host
