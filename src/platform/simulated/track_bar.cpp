// The slider. Its limits travel as signed 16-bit halves, its position as a whole number.
#include "platform/simulated/window.h"

namespace sim {
namespace {

struct TrackBar : Window {
    LONG minimum = 0;
    LONG maximum = 100;
    LONG position = 0;

    TrackBar() : Window(u"msctls_trackbar32") {}

    // The upper limit wins, even if the limits are the wrong way round.
    void MoveTo(LONG wanted) {
        position = wanted < minimum ? minimum : wanted;
        position = position > maximum ? maximum : position;
    }

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case TBM_GETPOS:
            return position;
        case TBM_GETRANGEMIN:
            return minimum;
        case TBM_GETRANGEMAX:
            return maximum;
        case TBM_SETPOS:
            MoveTo(static_cast<LONG>(lParam));
            return 0;
        case TBM_SETRANGE:
            minimum = static_cast<SHORT>(LOWORD(lParam));
            maximum = static_cast<SHORT>(HIWORD(lParam));
            MoveTo(position);
            return 0;
        default:
            return Window::Answer(message, wParam, lParam);
        }
    }
};

} // namespace

std::unique_ptr<Window> MakeTrackBar() {
    return std::make_unique<TrackBar>();
}

} // namespace sim
