// The standard input on Windows. A person who types sees the windows live meanwhile and can also operate them
// by hand: while a line is awaited, this thread's messages are dispatched.
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <iostream>
#include <thread>

#include "host/line/line_source.h"
#include "host/worlds/windows/attendance.h"

namespace host {
namespace {

class Console : public LineSource {
public:
    Console() {
        // Ctrl-C discards the line and ends nothing.
        SetConsoleCtrlHandler([](DWORD event) -> BOOL { return event == CTRL_C_EVENT; }, TRUE);
        // Reads a line each time it is asked to. It may still be waiting for one when the program ends.
        std::thread([this] {
            for (bool open = true; open;) {
                WaitForSingleObject(wanted_, INFINITE);
                line_.clear();
                open = static_cast<bool>(std::getline(std::cin, line_));
                if (!open && GetLastError() == ERROR_OPERATION_ABORTED) {
                    std::cin.clear();
                    open = true;
                }
                at_end_ = !open;
                SetEvent(typed_);
            }
        }).detach();
    }
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    std::optional<std::string> Next(const std::string& prompt) override {
        const HWND front = FrontWindow();
        if (!waiting_) {
            std::cout << prompt << std::flush;
            waiting_ = true;
            SetEvent(wanted_);
        }
        while (MsgWaitForMultipleObjects(1, &typed_, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                if (!front || !IsDialogMessageW(front, &message)) {
                    TranslateMessage(&message);
                    DispatchMessageW(&message);
                }
            }
            // A window was opened or closed by hand, so the line would no longer be for the window in front.
            if (FrontWindow() != front) {
                return std::string{};
            }
        }
        waiting_ = false;
        if (at_end_) {
            return {};
        }
        return line_;
    }
    bool IsPerson() const override { return true; }

private:
    HANDLE wanted_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HANDLE typed_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    std::string line_;
    bool at_end_ = false;
    bool waiting_ = false; // a line has been asked for and has not come yet
};

} // namespace

std::unique_ptr<LineSource> OpenConsole() {
    if (_isatty(_fileno(stdin)) && _isatty(_fileno(stdout))) {
        return std::make_unique<Console>();
    }
    return LinesOf(std::cin);
}

} // namespace host
