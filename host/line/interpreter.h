// The interpreter: reads commands, a line each, and does them on a world. While a modal window waits, the
// world calls back and the same loop goes on with that window in front, as deep as the windows lie over each
// other. So the commands of a script run in one order, whatever opens and closes meanwhile.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "host/line/bench.h"
#include "host/line/command.h"
#include "host/line/console.h"
#include "host/screen/naming.h"
#include "host/worlds/world.h"

namespace host {

class Interpreter {
public:
    struct Options {
        std::string machine = "the sample machine"; // what a patch says that it was made from
        bool stop = false;                          // at the first command that fails
    };

    // The world, the lines and the stream must outlive it. What a person does not type is written out before
    // its output.
    Interpreter(World& world, LineSource& lines, std::ostream& out)
        : Interpreter(world, lines, out, Options()) {}
    Interpreter(World& world, LineSource& lines, std::ostream& out, const Options& options);

    // Runs to the end of the lines or to `quit`, whichever comes first; windows still open then are
    // cancelled, and questions answered with No. A person who ends with changes that were not exported is
    // asked once. The number of commands that failed; one that fails changes nothing.
    int Run();

    // Whether there was any line at all.
    bool had_input() const { return had_input_; }

    // --- for the commands

    World& world() { return world_; }
    Bench& bench() { return bench_; }

    // The only way out: what it writes holds no control character, whatever a device or a file brought.
    void Tell(std::string_view line);
    void Write(const std::vector<std::string>& lines, const char* before = "");

    // How wide a line may be; 0 for any width.
    int Width() const { return lines_.Width(); }

    // By its number in the list, COM5, or its instance id; throws Refusal if that is none or more than one.
    Device FindDevice(const std::string& name);

    // Runs the sheet of a device to its end. Throws Refusal if another is open, or it has none.
    void Open(const Device& device);

    // What the open windows were announced as, from the backmost to the one in front.
    std::vector<std::string> OpenWindows() const;
    // The window in front; throws Refusal if none is open.
    Window Front();
    // A control of it by its name; throws Refusal.
    const Control& InFront(const Window& front, const std::string& name);
    void Press(const Control& button);
    void Show();

    // Goes on with the lines of a file, and comes back at its end. Throws Refusal.
    void Source(const std::string& file);

    void End();

private:
    struct OpenWindow {
        HWND handle;
        std::string told; // what it was announced as
    };

    void Step();
    LineSource& Innermost();
    void Execute(const std::string& line);
    void Fail(const std::string& reason);
    void Attend(HWND front);
    void Announce(HWND front);
    void NoteClosed(bool all);
    void CloseFront();
    std::string Prompt() const;
    Window Read(HWND window);

    World& world_;
    LineSource& lines_;
    std::ostream& out_;
    Bench bench_;
    bool stop_;
    std::vector<std::unique_ptr<LineSource>> files_; // that Source has opened, the innermost last
    std::vector<OpenWindow> windows_;                // from the backmost to the one in front
    int failed_ = 0;
    bool sheet_opened_ = false; // since the last `open`
    bool had_input_ = false;
    int commands_ = 0;     // that were given
    int asked_at_ = -1;    // at which of them a person was asked whether to end without an export
    bool ending_ = false;  // no more commands: what is open is closed
    bool pressed_ = false; // a button was pressed: whether its window has ended is for the world to find out
};

} // namespace host
