// The slider. Its limits travel as signed 16-bit halves, its position as a whole number.
#include <algorithm>

#include "simulated/window.h"

namespace sim {
namespace {

struct TrackBar : Window {
    LONG minimum = 0;
    LONG maximum = 100;
    LONG position = 0;

    TrackBar() : Window(u"msctls_trackbar32") {}

    // The upper limit wins, even if it is below the lower one.
    void MoveTo(LONG wanted) {
        position = wanted < minimum ? minimum : wanted;
        position = position > maximum ? maximum : position;
    }

    // Handles a key. As it goes down, the slider moves and tells its parent if it has moved; as it goes up,
    // it tells the parent that the movement has ended.
    void TakeKey(WPARAM key, bool goes_up) {
        const LONG page = std::max((maximum - minimum) / 5, 1);
        const struct {
            WPARAM key;
            WORD code;
            LONG wanted;
        } moves[] = {
            {VK_LEFT, TB_LINEUP, position - 1},
            {VK_UP, TB_LINEUP, position - 1},
            {VK_RIGHT, TB_LINEDOWN, position + 1},
            {VK_DOWN, TB_LINEDOWN, position + 1},
            {VK_PRIOR, TB_PAGEUP, position - page},
            {VK_NEXT, TB_PAGEDOWN, position + page},
            {VK_HOME, TB_TOP, minimum},
            {VK_END, TB_BOTTOM, maximum},
        };
        const auto move = std::ranges::find_if(moves, [&](const auto& one) { return one.key == key; });
        const LONG before = position;
        if (move == std::end(moves)) {
            return;
        }
        if (goes_up) {
            return TellParent(*this, WM_HSCROLL, TB_ENDTRACK);
        }
        MoveTo(move->wanted);
        if (position != before) {
            TellParent(*this, WM_HSCROLL, move->code);
        }
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
        case WM_KEYDOWN:
        case WM_KEYUP:
            TakeKey(wParam, message == WM_KEYUP);
            return 0;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS;
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
