#include "host/screen/keyboard.h"

namespace host {
namespace {

constexpr LPARAM alt_is_down = LPARAM{1} << 29;
constexpr LPARAM goes_up = (LPARAM{1} << 30) | (LPARAM{1} << 31);

void Deliver(HWND front, HWND target, UINT message, WPARAM what, LPARAM how) {
    MSG sent{};
    sent.hwnd = target;
    sent.message = message;
    sent.wParam = what;
    sent.lParam = how;
    if (IsWindow(front) && IsWindow(target)) {
        IsDialogMessageW(front, &sent);
    }
}

} // namespace

void PressKey(HWND front, const Key& key) {
    constexpr BYTE down = 0x80;
    BYTE keys[256]{};
    keys[VK_SHIFT] = key.shift ? down : 0;
    keys[VK_MENU] = key.alt ? down : 0;
    SetKeyboardState(keys);
    // If no control has the focus, keys go to the window in front, which takes them as if Alt were down.
    const HWND focus = GetFocus();
    const bool focused = IsChild(front, focus) != FALSE;
    const HWND target = focused ? focus : front;
    const bool system = key.alt || !focused;
    const LPARAM how = 1 | (key.alt ? alt_is_down : 0);
    if (key.letter != 0) {
        Deliver(front, target, system ? WM_SYSCHAR : WM_CHAR, key.letter, how);
        return;
    }
    Deliver(front, target, system ? WM_SYSKEYDOWN : WM_KEYDOWN, key.code, how);
    if (GetFocus() == target) { // otherwise the key goes up over another window, which ignores that
        Deliver(front, target, system ? WM_SYSKEYUP : WM_KEYUP, key.code, how | goes_up);
    }
}

} // namespace host
