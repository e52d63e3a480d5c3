// The tabs of a property sheet. There is only one page to show, so a tab control does no more than take its
// place among the tab stops.
#include "simulated/window.h"

namespace sim {
namespace {

struct TabControl : Window {
    TabControl() : Window(u"SysTabControl32") {}

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_GETDLGCODE ? DLGC_WANTARROWS | DLGC_WANTCHARS
                                        : Window::Answer(message, wParam, lParam);
    }
};

} // namespace

std::unique_ptr<Window> MakeTabControl() {
    return std::make_unique<TabControl>();
}

} // namespace sim
