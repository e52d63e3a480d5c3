#include "host/worlds/windows/attendance.h"

namespace host {
namespace {

Attendance* current = nullptr;

} // namespace

HWND FrontWindow() {
    HWND front = nullptr;
    // The system lists the windows from the front to the back.
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM found) -> BOOL {
            WCHAR name[16];
            if (!IsWindowVisible(window) || !IsWindowEnabled(window) ||
                GetClassNameW(window, name, ARRAYSIZE(name)) == 0 || lstrcmpW(name, TEXT("#32770")) != 0) {
                return TRUE;
            }
            *reinterpret_cast<HWND*>(found) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&front));
    return front;
}
Attendance::Attendance(const std::function<void(HWND front)>& attend) : attend_(attend) {
    current = this;
    if (attend_) {
        timer_ = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &Tick);
    }
}

Attendance::~Attendance() {
    if (timer_ != 0) {
        KillTimer(nullptr, timer_);
    }
    current = nullptr;
}

void CALLBACK Attendance::Tick(HWND, UINT, UINT_PTR, DWORD) {
    const HWND front = FrontWindow();
    auto& attended = current->attended_;
    if (front == nullptr || (!attended.empty() && attended.back() == front)) {
        return;
    }
    attended.push_back(front);
    current->attend_(front);
    attended.pop_back();
}

} // namespace host
