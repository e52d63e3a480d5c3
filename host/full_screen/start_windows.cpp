#include "host/full_screen/start.h"

namespace host {

// The real windows are on the screen already.
std::unique_ptr<Seat> OpenFullScreen(std::string&) {
    return nullptr;
}

} // namespace host
