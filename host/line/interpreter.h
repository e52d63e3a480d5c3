// The interpreter: reads commands, one per line, and carries them out on a world. While a modal window waits,
// the world calls back and the same loop goes on with that window in front, however deeply windows are
// nested. So the commands of a script run in one sequence, whatever opens and closes meanwhile.
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
        std::string machine = "the sample machine"; // what a patch says it was made from
        bool stop = false;                          // at the first command that fails
    };

    // The world, the lines and the stream must outlive this. A line that no person typed is echoed before its
    // output.
    Interpreter(World& world, LineSource& lines, std::ostream& out)
        : Interpreter(world, lines, out, Options()) {}
    Interpreter(World& world, LineSource& lines, std::ostream& out, const Options& options);

    // Runs to the end of the lines or to `quit`, whichever comes first. Windows that are still open then are
    // cancelled, and questions are answered with No. A person who ends with changes that were not exported is
    // asked once. Returns the number of commands that failed; one that fails changes nothing.
    int Run();

    // Whether there was any line at all.
    bool had_input() const { return had_input_; }

    // --- for the commands

    World& world() { return world_; }
    Bench& bench() { return bench_; }

    // The only way to write output. It lets no control character through, whatever a device or a file
    // contains.
    void Tell(std::string_view line);
    void Write(const std::vector<std::string>& lines, const char* before = "");

    // How wide a line may be; 0 for any width.
    int Width() const { return lines_.Width(); }

    // Finds a device by its number in the list, COM5, or its instance id; throws Refusal if there is none or
    // more than one.
    Device FindDevice(const std::string& name);

    // Runs the sheet of a device until it has closed. Throws Refusal if another is open or there is no sheet.
    void Open(const Device& device);

    // The lines that announced the open windows, from the backmost to the frontmost.
    std::vector<std::string> OpenWindows() const;
    // The window in front; throws Refusal if none is open.
    Window Front();
    // A control of it by its name; throws Refusal.
    const Control& InFront(const Window& front, const std::string& name);
    void Press(const Control& button);
    void Show();
    void TellBehind(); // the windows behind it, one per line

    // Goes on with the lines of a file, and returns at its end. Throws Refusal.
    void Source(const std::string& file);

    void End();

private:
    struct OpenWindow {
        HWND handle;
        std::string told; // the line that announced it
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
    std::vector<std::unique_ptr<LineSource>> files_; // opened by Source, the innermost last
    std::vector<OpenWindow> windows_;                // from the backmost to the frontmost
    int failed_ = 0;
    bool sheet_opened_ = false; // since the last `open`
    bool had_input_ = false;
    int commands_ = 0;     // given so far
    int asked_at_ = -1;    // the command at which a person was asked whether to end without an export
    bool ending_ = false;  // no more commands: what is open gets closed
    bool pressed_ = false; // a button was pressed; the world will show whether its window has ended
};

} // namespace host
