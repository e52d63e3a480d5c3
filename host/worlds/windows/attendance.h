// Takes the place of the person at this thread's screen: whenever a modal window waits for its user, a
// function is called with it, from within that window's own message loop. Windows that open meanwhile are
// attended to inside that call.
#pragma once

#include <functional>
#include <vector>

#include "platform/platform.h"

namespace host {

// The dialog, sheet or message box of this thread that takes input; null if there is none.
HWND FrontWindow();

// Attends to the thread's windows while it lives; only one may exist at a time. An empty function leaves them
// to the person at the screen.
class Attendance {
public:
    explicit Attendance(const std::function<void(HWND front)>& attend);
    ~Attendance();
    Attendance(const Attendance&) = delete;
    Attendance& operator=(const Attendance&) = delete;

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);

    const std::function<void(HWND)>& attend_;
    std::vector<HWND> attended_; // from the backmost to the frontmost
    UINT_PTR timer_ = 0;
};

} // namespace host
