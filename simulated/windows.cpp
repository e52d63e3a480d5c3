// What all windows share: handles, relations, places, texts, and who is enabled, shown and in focus.
#include "simulated/window.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "simulated/stage.h"

namespace sim {
namespace {

std::unordered_map<HWND, Window*>& AllWindows() {
    static std::unordered_map<HWND, Window*> windows;
    return windows;
}

} // namespace

Window::Window(const WCHAR* name) : handle(reinterpret_cast<HWND>(NextHandle())), class_name(name) {
    AllWindows()[handle] = this;
}

Window::~Window() {
    children.clear();
    AllWindows().erase(handle);
    if (Focus() == handle) {
        Focus() = nullptr;
    }
}

LRESULT Window::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SETTEXT:
        text = MessageText(lParam);
        return TRUE;
    case WM_GETTEXT:
        return CopyOut(text, reinterpret_cast<LPWSTR>(lParam), wParam);
    case WM_GETTEXTLENGTH:
        return static_cast<LRESULT>(text.size());
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    default:
        return 0;
    }
}

Window& Window::TopLevel() {
    return parent == nullptr ? *this : parent->TopLevel();
}

Window* Window::Child(int number) const {
    const auto found = std::ranges::find(children, number, [](const auto& child) { return child->id; });
    return found == children.end() ? nullptr : found->get();
}

// A window that is disabled loses the focus.
void Window::Enable(bool enable) {
    style = enable ? style & ~static_cast<DWORD>(WS_DISABLED) : style | WS_DISABLED;
    if (!enable && Focus() == handle) {
        PassFocus(nullptr);
    }
}

bool Window::IsShown() const {
    return (style & WS_VISIBLE) != 0 && (parent == nullptr || parent->IsShown());
}

bool Window::IsOpenToInput() const {
    return (style & WS_DISABLED) == 0 && (parent == nullptr || parent->IsOpenToInput());
}

Window* FindWindow(HWND handle) {
    const auto found = AllWindows().find(handle);
    return found == AllWindows().end() ? nullptr : found->second;
}

Window* WindowOf(HWND handle, std::string_view operation) {
    Window* window = FindWindow(handle);
    if (window == nullptr) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        if (handle != nullptr) {
            MisuseOfHandle(operation, "window", handle);
        }
    }
    return window;
}

HWND& Focus() {
    static HWND focus = nullptr;
    return focus;
}

HWND PassFocus(HWND window) {
    const HWND before = std::exchange(Focus(), window);
    if (before == window) {
        return before;
    }
    if (Window* left = FindWindow(before)) {
        left->Answer(WM_KILLFOCUS, reinterpret_cast<WPARAM>(window), 0);
    }
    Window* entered = FindWindow(window);
    if (entered != nullptr && Focus() == window) { // a window that was told may have moved it on
        entered->Answer(WM_SETFOCUS, reinterpret_cast<WPARAM>(before), 0);
    }
    return before;
}

void TellParent(const Window& control, UINT message, WPARAM wParam) {
    control.parent->Answer(message, wParam, reinterpret_cast<LPARAM>(control.handle));
}

int CopyOut(std::u16string_view text, LPWSTR buffer, std::size_t capacity) {
    if (buffer == nullptr || capacity == 0) {
        return 0;
    }
    const std::size_t copied = text.copy(buffer, capacity - 1);
    buffer[copied] = u'\0';
    return static_cast<int>(copied);
}

std::string NumberOf(const Window* window) {
    return window == nullptr || window->id == 0 ? std::string() : std::to_string(window->id);
}

std::u16string_view MessageText(LPARAM lParam) {
    const auto text = reinterpret_cast<LPCWSTR>(lParam);
    return text == nullptr ? std::u16string_view() : std::u16string_view(text);
}

} // namespace sim

using sim::NumberOf;
using sim::Operation;
using sim::Reach;
using sim::Window;
using sim::WindowOf;

HWND GetParent(HWND handle) {
    const Window* window = WindowOf(handle, __func__);
    const Window* above = window == nullptr           ? nullptr
                          : window->parent != nullptr ? window->parent
                                                      : window->owner;
    return above == nullptr ? nullptr : above->handle;
}

HWND GetWindow(HWND handle, UINT relation) {
    const Window* window = WindowOf(handle, __func__);
    if (window == nullptr) {
        return nullptr;
    }
    switch (relation) {
    case GW_OWNER:
        return window->owner == nullptr ? nullptr : window->owner->handle;
    case GW_CHILD:
        return window->children.empty() ? nullptr : window->children.front()->handle;
    case GW_HWNDNEXT: {
        if (window->parent == nullptr) {
            return nullptr;
        }
        const auto& siblings = window->parent->children;
        const auto self =
            std::ranges::find(siblings, window, [](const auto& sibling) { return sibling.get(); });
        return std::next(self) == siblings.end() ? nullptr : (*std::next(self))->handle;
    }
    default:
        return nullptr;
    }
}

int GetDlgCtrlID(HWND handle) {
    const Window* window = WindowOf(handle, __func__);
    return window == nullptr ? 0 : window->id;
}

int GetClassNameW(HWND handle, LPWSTR buffer, int capacity) {
    const Window* window = WindowOf(handle, __func__);
    return window == nullptr || capacity <= 0
               ? 0
               : sim::CopyOut(window->class_name, buffer, static_cast<std::size_t>(capacity));
}

BOOL GetWindowRect(HWND handle, RECT* rectangle) {
    const Window* window = WindowOf(handle, __func__);
    if (window == nullptr) {
        return FALSE;
    }
    *rectangle = window->place;
    return TRUE;
}

BOOL MapDialogRect(HWND handle, RECT* rectangle) {
    if (WindowOf(handle, __func__) == nullptr) {
        return FALSE;
    }
    *rectangle = {sim::PixelsAcross(rectangle->left), sim::PixelsDown(rectangle->top),
                  sim::PixelsAcross(rectangle->right), sim::PixelsDown(rectangle->bottom)};
    return TRUE;
}

BOOL IsChild(HWND above, HWND handle) {
    const Window* window = sim::FindWindow(handle);
    while (window != nullptr && window->parent != nullptr && window->parent->handle != above) {
        window = window->parent;
    }
    return window != nullptr && window->parent != nullptr;
}

BOOL IsWindow(HWND handle) {
    return sim::FindWindow(handle) != nullptr;
}

BOOL IsWindowVisible(HWND handle) {
    const Window* window = WindowOf(handle, __func__);
    return window != nullptr && window->IsShown();
}

BOOL IsWindowEnabled(HWND handle) {
    const Window* window = WindowOf(handle, __func__);
    return window != nullptr && (window->style & WS_DISABLED) == 0;
}

BOOL EnableWindow(HWND handle, BOOL enable) {
    Window* window = WindowOf(handle, __func__);
    if (Operation(Reach::Screen, __func__, [=] { return NumberOf(window) + (enable ? " on" : " off"); }) ||
        window == nullptr) {
        return FALSE;
    }
    const bool was_disabled = (window->style & WS_DISABLED) != 0;
    window->Enable(enable != FALSE);
    return was_disabled;
}

HWND SetFocus(HWND handle) {
    const Window* window = handle == nullptr ? nullptr : WindowOf(handle, __func__);
    const bool is_refused = handle != nullptr && (window == nullptr || !window->IsOpenToInput());
    if (Operation(Reach::Screen, __func__, [=] { return NumberOf(window); }) || is_refused) {
        return nullptr;
    }
    return sim::PassFocus(handle);
}

HWND GetFocus() {
    return sim::Focus();
}

int GetWindowTextW(HWND handle, LPWSTR buffer, int capacity) {
    Window* window = WindowOf(handle, __func__);
    if (Operation(Reach::Screen, __func__, [=] { return NumberOf(window); }) || window == nullptr ||
        capacity <= 0) {
        return 0;
    }
    return static_cast<int>(
        window->Answer(WM_GETTEXT, static_cast<WPARAM>(capacity), reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthW(HWND handle) {
    Window* window = WindowOf(handle, __func__);
    if (Operation(Reach::Screen, __func__, [=] { return NumberOf(window); }) || window == nullptr) {
        return 0;
    }
    return static_cast<int>(window->Answer(WM_GETTEXTLENGTH, 0, 0));
}

BOOL SetWindowTextW(HWND handle, LPCWSTR text) {
    Window* window = WindowOf(handle, __func__);
    if (Operation(Reach::Screen, __func__, [=] { return NumberOf(window); }) || window == nullptr) {
        return FALSE;
    }
    return window->Answer(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) >= 0;
}
