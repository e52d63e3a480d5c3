// What the function keys show over the whole screen, and the command line that one of them opens.
#include <algorithm>
#include <iterator>

#include "host/full_screen/full_screen.h"
#include "host/text.h"

namespace host {
namespace {

// It fits on the smallest terminal.
constexpr const char* help[] = {
    "Tab, Shift-Tab     the next or the previous control",
    "Alt and a letter   the control whose letter is underlined",
    "Space              checks a box, presses a button",
    "Enter              presses the button <in these>",
    "Esc                cancels",
    "arrows             move within a list, a slider, a group",
    "F4, Alt-Down       opens and closes a combo's list",
    "letters            find the item that begins with them",
    "mouse              click, drag a slider, turn the wheel over a list",
    "",
    "F2  all places that hold a port's number   F3  the store of the device",
    "F5  everything that the pane below shows   F6  a typed command",
    "F7  what is wrong with the machine         F8  what has changed since",
    "F9  switches the pane between what the last action changed outside and its",
    "    trace: what the pages decided and, after a *, what they changed",
    "F10, Ctrl-C  ends and cancels all open windows",
    "Ctrl-L       repaints the screen",
    "",
    "> stands before the focus, ~ before what is disabled, * after what is not stored.",
};

} // namespace

bool FullScreen::TakeCommon(const Event& event) {
    message_.clear();
    trace_is_old_ = true;
    if (event.kind == Event::Kind::End) {
        ending_ = true;
    }
    if (event.kind != Event::Kind::Function) {
        return event.kind == Event::Kind::End || event.kind == Event::Kind::Resize;
    }
    switch (event.function) {
    case 1:
        View("Keys", {std::begin(help), std::end(help)});
        return true;
    case 2:
        View("Ports", Do("ports"));
        return true;
    case 3:
        View("The store of device " + std::to_string(selected_ + 1),
             Do("store " + std::to_string(selected_ + 1)));
        return true;
    case 5:
        if (tracing_) {
            View("The trace of the last action", trace_.empty() ? Lines{"nothing"} : trace_);
        } else {
            View("Changed outside so far", journal_.empty() ? Lines{"nothing"} : journal_);
        }
        return true;
    case 6:
        AskCommand();
        return true;
    case 7:
        View("What is wrong", Do("diagnose"));
        return true;
    case 8:
        View("What differs from the machine as it was read", Do("changes"));
        return true;
    case 9:
        tracing_ = !tracing_;
        return true;
    case 10:
        ending_ = true;
        return true;
    default:
        return true;
    }
}

void FullScreen::View(const std::string& title, const Lines& lines) {
    int first = 0, shift = 0;
    for (;;) {
        const int columns = terminal_.columns(), rows = terminal_.rows() - 3;
        first = std::clamp(first, 0, std::max(0, static_cast<int>(lines.size()) - rows));
        canvas_ = Canvas(terminal_.columns(), terminal_.rows());
        canvas_.Write(0, 0, ' ' + title, columns, {false, true, false, colour_title});
        for (int row = 0; row < rows && first + row < static_cast<int>(lines.size()); ++row) {
            std::string_view line = lines[static_cast<std::size_t>(first + row)];
            for (int cut = 0; cut < shift && !line.empty(); ++cut) {
                TakeUtf8(line);
            }
            canvas_.Write(1 + row, 0, line, columns);
        }
        canvas_.Write(terminal_.rows() - 1, 0,
                      " arrows, PgUp, PgDn move  Esc back   " + std::to_string(first + 1) + " of " +
                          std::to_string(lines.size()),
                      columns, {true, false, false, 0});
        terminal_.Show(canvas_);
        const Event event = terminal_.Next();
        if (event.kind == Event::Kind::End) {
            ending_ = true;
            return;
        }
        const int steps = event.kind == Event::Kind::WheelUp     ? -wheel_step
                          : event.kind == Event::Kind::WheelDown ? wheel_step
                          : event.kind != Event::Kind::Key       ? 0
                          : event.key.code == VK_UP              ? -1
                          : event.key.code == VK_DOWN            ? 1
                          : event.key.code == VK_PRIOR           ? -rows
                          : event.key.code == VK_NEXT            ? rows
                          : event.key.code == VK_HOME            ? -first
                          : event.key.code == VK_END             ? static_cast<int>(lines.size())
                                                                 : 0;
        first += steps;
        if (event.kind == Event::Kind::Key) {
            shift = std::max(0, shift + (event.key.code == VK_RIGHT  ? 8
                                         : event.key.code == VK_LEFT ? -8
                                                                     : 0));
            if (event.key.code == VK_ESCAPE || event.key.code == VK_RETURN || event.key.letter == 'q') {
                return;
            }
        }
    }
}

Lines FullScreen::Do(const std::string& line) {
    Lines said = command_(line);
    HearTrace(); // commands stop the trace when they end
    return said;
}

void FullScreen::AskCommand() {
    Text line;
    for (;;) {
        Draw();
        const std::string shown = " command: " + ToUtf8(line);
        canvas_.Write(terminal_.rows() - 1, 0, shown, terminal_.columns(), {true, false, false, 0});
        canvas_.PointAt(terminal_.rows() - 1, Columns(shown));
        terminal_.Show(canvas_);
        const Event event = terminal_.Next();
        if (event.kind == Event::Kind::End) {
            ending_ = true;
            return;
        }
        if (event.kind != Event::Kind::Key) {
            continue;
        }
        if (event.key.code == VK_ESCAPE) {
            return;
        }
        if (event.key.code == VK_RETURN) {
            if (!line.empty()) {
                View(ToUtf8(line), Do(ToUtf8(line)));
                NoteChanges();
            }
            return;
        }
        if (event.key.code == VK_BACK && !line.empty()) {
            line.pop_back();
        } else if (event.key.letter != 0 || event.key.code == VK_SPACE) {
            line += event.key.letter != 0 ? event.key.letter : WCHAR{' '};
        }
    }
}

} // namespace host
