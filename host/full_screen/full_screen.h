// The machine on the full screen of a terminal: its devices, the windows that are open over them, what the
// last action changed outside, and a line that says what the keys do at the moment.
//
// While a modal window waits, the world calls back and events go to that window until it has ended, however
// deeply windows are nested. A key becomes the messages of that key, and a click does what a hand does.
// Nothing is known here about a dialog except what is read from it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/full_screen/terminal.h"
#include "host/screen/listing.h"
#include "host/screen/painter.h"
#include "host/worlds/world.h"

namespace host {

constexpr int wheel_step = 3; // items or lines that the mouse's wheel moves by

class FullScreen {
public:
    // Produces the output of a command of the line, for views to show.
    using Command = std::function<Lines(const std::string& line)>;

    // Both must outlive this. The terminal must be one that can be filled.
    FullScreen(World& world, Command command);
    ~FullScreen();
    FullScreen(const FullScreen&) = delete;
    FullScreen& operator=(const FullScreen&) = delete;

    // Runs until its user leaves or the terminal is gone. Windows that are still open then are cancelled, and
    // questions are answered with No.
    void Run();

private:
    void Attend(HWND front);
    void Draw();
    void DrawDevices(int columns, int rows);
    void DrawPane(int top, int rows);
    void DrawKeys();
    void DrawWindows();

    // Null if the event has been dealt with and does not concern the window in front.
    bool TakeCommon(const Event& event);
    void TakeDeviceEvent(const Event& event);
    void TakeClick(const Event& event);
    void TakeListClick(const Control& list, int row, int rows);
    void TakeWheel(const Event& event);
    void Drag(int column);
    void Open();
    void View(const std::string& title, const Lines& lines);
    Lines Do(const std::string& line);
    void AskCommand();
    void NoteChanges();
    void HearTrace();
    void ReadDevices();

    World& world_;
    Command command_;
    Terminal terminal_;
    Canvas canvas_{0, 0}; // what it shows
    struct ListedDevice {
        Device device;
        std::string port;  // COM5; empty if it is not a port
        std::string state; // absent, no page and why, open; empty if none of these
    };
    std::vector<ListedDevice> devices_;
    std::size_t selected_ = 0;
    int first_device_ = 0;
    std::vector<HWND> windows_; // from the backmost to the frontmost
    Painted front_;
    Turned turned_;
    HWND dragged_ = nullptr; // the slider that the mouse holds
    Lines journal_;          // all of it
    std::size_t news_ = 0;   // where the last action begins in it
    Lines trace_;            // of the last action that had one; changes are in it after a *
    bool trace_is_old_ = true;
    bool tracing_ = false; // the pane shows the trace, not the journal
    std::string message_;  // shown once, in the line of the keys
    bool ending_ = false;
};

} // namespace host
