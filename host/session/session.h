// One machine under one roof: its world and name, what was changed and can be undone, the open windows, the
// journal and the trace. Every interface is a seat before a session: a command does the same and refuses the
// same in each.
//
// While a modal window waits, the world calls back and the same loop goes on with that window in front,
// however deeply windows are nested. So the commands of a script run in one sequence, whatever opens and
// closes meanwhile.
#pragma once

#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/screen/naming.h"
#include "host/session/history.h"
#include "host/session/seat.h"
#include "host/worlds/world.h"

namespace host {

using Lines = std::vector<std::string>;

// What one command, key or click has changed outside the library, in the lines of `World::Journal`.
struct Action {
    std::string name;
    Lines changes;
};

class Session {
public:
    // The world and the seat must outlive this. With `stop`, the first command that fails ends the session.
    Session(World& world, Seat& seat, bool stop = false);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Runs until its user leaves. Windows that are still open then are cancelled, and questions are answered
    // with No. Returns the number of commands that failed; one that fails changes nothing.
    int Run();

    // Asks the user whether changes may be lost if there are any, and ends if he agrees.
    void End();
    // Ends whatever is not saved.
    void Abandon() { ending_ = true; }

    // --- The machine

    World& world() { return world_; }
    // As it was read.
    const Records& original() const { return original_; }
    History& history() { return history_; }
    // Whether that is the file that the machine was read from.
    bool IsReadFrom(const std::string& file) const;
    // As of the last action.
    bool IsUnsaved() const { return unsaved_; }

    // Finds a device by its number in the list, COM5, or its instance id; throws Refusal if there is none or
    // more than one.
    DeviceRecord FindDevice(const std::string& name);

    // --- Actions

    // Carries out what the user does to the windows with a key or the mouse. What it changes is an action of
    // its own.
    void Act(const std::string& name, const std::function<void()>& act);
    // Carries out a command. One that is refused says so.
    void Execute(const std::string& line);

    // All actions that have changed something.
    const std::vector<Action>& actions() const { return actions_; }
    // The changes since the last call, of whatever action.
    Lines News();

    // Lines of the trace of the last action that had one, kept from the first call on; a change has "* "
    // before it, any other line two blanks.
    const Lines& Trace();
    // From now on `hear` gets each line of the trace too; null for none. False if this library traces
    // nothing.
    bool HearTrace(World::TraceListener hear);
    // The files that this session has begun to trace to.
    Lines& trace_files() { return trace_files_; }

    // --- Windows

    struct OpenWindow {
        HWND handle;
        std::string told; // `sheet: "Title"`
    };
    // From the backmost to the frontmost.
    const std::vector<OpenWindow>& windows() const { return windows_; }
    // Throws Refusal if a window is open.
    void MustHaveNoWindow() const;
    Window Read(HWND window);
    // The window in front; throws Refusal if none is open.
    Window Front();
    // A control of it by its name; throws Refusal.
    const Control& InFront(const Window& front, const std::string& name);
    void Press(const Control& button);

    // Runs the sheet of a device until it has closed. Throws Refusal if a window is open or there is no
    // sheet.
    void Open(const DeviceRecord& device);

    // --- Output

    // No control character gets through, whatever a machine contains.
    void Tell(std::string_view line);
    void Tell(const Lines& lines, const char* before = "");
    // The window in front as a picture, and those behind it by their names.
    void Show();
    void TellBehind();
    int Width() const { return seat_.Width(); }
    // The same, and those of a usual screen where there are any number.
    int Columns() const { return Width() != 0 ? Width() : 80; }

    // Goes on with the lines of a file, and returns at its end. Throws Refusal.
    void Source(const std::string& file);

private:
    void Step();
    std::optional<std::string> NextLine();
    void Attend(HWND front);
    void Announce(HWND front);
    void NoteClosed(bool all);
    std::string Prompt() const;
    void Fail(const std::string& reason);
    bool IsBoxInFront();
    void Collect(const std::string& name);
    void NoteState();
    bool ListenToTrace();

    World& world_;
    Seat& seat_;
    bool stop_;
    Records original_;
    History history_;
    bool unsaved_ = false;

    std::vector<std::ifstream> files_; // opened by Source, the innermost last
    std::vector<OpenWindow> windows_;
    bool sheet_opened_ = false; // since the last Open
    bool pressed_ = false;      // a button was pressed; the world will show whether its window has ended
    bool ending_ = false;       // no more commands: what is open gets closed
    int failed_ = 0;

    std::vector<Action> actions_;
    std::size_t told_ = 0; // lines of the actions that News has returned
    Lines trace_;
    bool keeps_trace_ = false;
    bool trace_is_old_ = true;
    World::TraceListener trace_listener_;
    Lines trace_files_;
};

} // namespace host
