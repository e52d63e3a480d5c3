// The interpreter: reads commands, a line each, and does them on a world. While a modal window waits, the
// world calls back and the same loop goes on with that window in front, as deep as the windows lie over each
// other. So the commands of a script run in one order, whatever opens and closes meanwhile.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "host/line/console.h"
#include "host/screen/screen.h"
#include "host/worlds/world.h"

namespace host {

class Interpreter {
public:
    // All three must outlive it. What a person does not type is written out before its output.
    Interpreter(World& world, LineSource& lines, std::ostream& out);

    // Runs to the end of the lines or to `quit`, whichever comes first; windows still open then are
    // cancelled, and questions answered with No. The number of commands that failed; one that fails changes
    // nothing.
    int Run();

    // Whether there was any line at all.
    bool had_input() const { return had_input_; }

private:
    using Words = std::vector<std::string>;
    struct Command {
        const char* name;
        const char* arguments; // a word each, in [] what may be left out
        const char* help;
        void (Interpreter::*run)(const Words& words);
    };
    struct OpenWindow {
        HWND handle;
        std::string told; // what it was announced as
    };
    static const Command commands_[];

    // --- the loop
    void Step();
    void Execute(const std::string& line);
    void Fail(const std::string& reason);
    void Attend(HWND front);
    void Announce(HWND front);
    void NoteClosed(bool all);
    void CloseFront();
    std::string Prompt() const;

    // --- what a command works on
    Window Read(HWND window);
    Window Front();
    const Control& InFront(const Window& front, const std::string& name);
    Device FindDevice(const std::string& name);
    Words Continue(const Words& words);

    // --- the commands
    void Help(const Words& words);
    void Devices(const Words& words);
    void Open(const Words& words);
    void Show(const Words& words);
    void Controls(const Words& words);
    void PickItem(const Words& words);
    void CheckOn(const Words& words);
    void CheckOff(const Words& words);
    void SlideTo(const Words& words);
    void ClickOn(const Words& words);
    void Answer(const Words& words);
    void Sheet(const Words& words);
    void Store(const Words& words);
    void Ports(const Words& words);
    void Journal(const Words& words);
    void Export(const Words& words);
    void Quit(const Words& words);

    void Press(const Control& button);
    // The only way out: what it writes holds no control character, whatever a device or a file brought.
    void Tell(std::string_view line);
    void Write(const std::vector<std::string>& lines, const char* before = "");

    World& world_;
    LineSource& lines_;
    std::ostream& out_;
    std::vector<OpenWindow> windows_; // from the backmost to the one in front
    int failed_ = 0;
    bool sheet_opened_ = false; // since the last `open`
    bool had_input_ = false;
    bool ending_ = false;  // no more commands: what is open is closed
    bool pressed_ = false; // a button was pressed: whether its window has ended is for the world to find out
};

} // namespace host
