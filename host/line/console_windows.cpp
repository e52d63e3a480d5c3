// The standard input on Windows. A person who types sees the windows live meanwhile and can operate them by
// hand as well: while a line is awaited, the messages of this thread go their way.
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <iostream>
#include <sstream>
#include <thread>

#include "host/line/console.h"
#include "host/worlds/windows/attendance.h"
#include "host/worlds/windows/standins/faults.h"

namespace host {
namespace {

class Console : public LineSource {
public:
    Console() {
        SetConsoleCP(CP_UTF8);
        // Reads a line each time it is asked to; it may still wait for one when the program ends.
        std::thread([this] {
            for (bool open = true; open;) {
                WaitForSingleObject(wanted_, INFINITE);
                open = static_cast<bool>(std::getline(std::cin, line_));
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
            // A window opened or closed by hand: what is in front is no longer what the line would be for.
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
    bool waiting_ = false; // a line has been asked for and not yet come
};

// A script can say what trouble it wants: "# fail: DefineDosDeviceW 2" makes the second call of that
// operation from there on fail, "# remote" puts its devices on another machine.
class Script : public LineSource {
public:
    std::optional<std::string> Next(const std::string& prompt) override {
        std::optional<std::string> line = lines_->Next(prompt);
        if (line && line->starts_with("# fail: ")) {
            std::istringstream words(line->substr(8));
            std::string operation;
            int count = 1;
            words >> operation >> count;
            if (!FailCall(operation, std::max(count, 1))) {
                std::cerr << "kvrhost: nothing makes " << operation << " fail\n";
            }
        } else if (line == "# remote") {
            PretendRemote();
        }
        return line;
    }

private:
    std::unique_ptr<LineSource> lines_ = LinesOf(std::cin);
};

} // namespace

std::unique_ptr<LineSource> OpenConsole() {
    if (_isatty(_fileno(stdin)) && _isatty(_fileno(stdout))) {
        return std::make_unique<Console>();
    }
    return std::make_unique<Script>();
}

// The lines end as they do everywhere else.
void OpenOutput() {
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}

} // namespace host
