// Push buttons, check boxes and group boxes: one class, as on Windows.
#include <algorithm>

#include "simulated/window.h"

namespace sim {
namespace {

struct Button : Window {
    WPARAM check = BST_UNCHECKED;

    Button() : Window(u"Button") {}

    bool IsKind(DWORD kind) const { return (style & BS_TYPEMASK) == kind; }

    void Click() {
        if (IsKind(BS_GROUPBOX) || !IsShown() || !IsOpenToInput()) {
            return;
        }
        MoveFocus(*this);
        if (IsKind(BS_AUTOCHECKBOX)) {
            check ^= BST_CHECKED;
        }
        TellParent(*this, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED));
    }

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case BM_GETCHECK:
            return static_cast<LRESULT>(check);
        case BM_SETCHECK:
            if (IsKind(BS_AUTOCHECKBOX)) {
                check = std::min<WPARAM>(wParam, BST_CHECKED);
            }
            return 0;
        case BM_CLICK:
            Click();
            return 0;
        case WM_KEYUP:
            if (wParam == VK_SPACE) {
                Click();
            }
            return 0;
        case WM_GETDLGCODE:
            return IsKind(BS_GROUPBOX)       ? DLGC_STATIC
                   : IsKind(BS_AUTOCHECKBOX) ? DLGC_BUTTON
                   : IsKind(BS_PUSHBUTTON)   ? DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON
                                             : DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        default:
            return Window::Answer(message, wParam, lParam);
        }
    }
};

} // namespace

std::unique_ptr<Window> MakeButton() {
    return std::make_unique<Button>();
}

} // namespace sim
