#include "host/full_screen/terminal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#define NCURSES_NOMACROS // move and erase are also names in the standard library
#include <curses.h>
#include <term.h>
#undef columns // term.h makes macros of these
#undef lines
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include "host/text.h"

namespace host {
namespace {

constexpr int escape_wait = 400; // milliseconds in which a letter after Esc counts as a hot key
constexpr const char* follow_the_mouse = "\033[?1002h";
constexpr const char* leave_the_mouse = "\033[?1006l\033[?1002l\033[?1000l";

termios before;
sigset_t signals_before; // the mask, which also applies during the wait for input
std::array<char, 256> restoring{};
volatile std::sig_atomic_t ending = 0;

// Everything that it calls may be called from a signal handler.
void Restore() {
    [[maybe_unused]] const auto written =
        write(STDOUT_FILENO, restoring.data(), std::strlen(restoring.data()));
    tcsetattr(STDIN_FILENO, TCSANOW, &before);
}

void OnEnd(int) {
    ending = 1;
}

void OnCrash(int signal) {
    Restore();
    raise(signal); // the handler has been removed by now
}

void Handle(int signal, void (*handler)(int), int flags) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    sigaction(signal, &action, nullptr);
}

void Say(const char* sequence) {
    std::fputs(sequence, stdout);
    std::fflush(stdout);
}

std::string Capability(const char* name) {
    const char* const text = tigetstr(name);
    return text == nullptr || text == reinterpret_cast<const char*>(-1) ? "" : text;
}

constexpr std::pair<int, Key> keys[] = {
    {KEY_UP, {VK_UP}},        {KEY_DOWN, {VK_DOWN}},
    {KEY_LEFT, {VK_LEFT}},    {KEY_RIGHT, {VK_RIGHT}},
    {KEY_HOME, {VK_HOME}},    {KEY_END, {VK_END}},
    {KEY_PPAGE, {VK_PRIOR}},  {KEY_NPAGE, {VK_NEXT}},
    {KEY_ENTER, {VK_RETURN}}, {KEY_BTAB, {VK_TAB, 0, true}},
    {KEY_F(4), {VK_F4}},      {KEY_BACKSPACE, {VK_BACK}},
    {KEY_DC, {VK_DELETE}},
};
constexpr std::pair<wint_t, Key> controls[] = {
    {L'\t', {VK_TAB}}, {L'\r', {VK_RETURN}}, {L'\n', {VK_RETURN}}, {L' ', {VK_SPACE}}, {0x7F, {VK_BACK}}};

std::optional<Event> OfKey(Key key) {
    Event event;
    event.kind = Event::Kind::Key;
    event.key = key;
    return event;
}

Event EndEvent() {
    Event event;
    event.kind = Event::Kind::End;
    return event;
}

} // namespace

std::optional<std::string> WhyNoFullScreen() {
    const char* const name = std::getenv("TERM");
    if (name == nullptr || *name == '\0' || std::strcmp(name, "dumb") == 0) {
        return "the terminal can't be filled (TERM is " +
               std::string(name == nullptr ? "not set" : Quoted(name)) + ')';
    }
    int error = 0;
    const bool known = setupterm(nullptr, STDOUT_FILENO, &error) == OK;
    const bool can_move = known && !Capability("cup").empty();
    if (known) {
        del_curterm(cur_term);
    }
    if (!can_move) {
        return "the terminal " + Quoted(name) + " can't be filled, or is not known here";
    }
    return {};
}

Terminal::Terminal() {
    tcgetattr(STDIN_FILENO, &before);
    std::setlocale(LC_CTYPE, "");
    if (MB_CUR_MAX == 1) {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
    set_escdelay(25);
    initscr();
    raw(); // Ctrl-C and Ctrl-Z come as keys, so that no window is torn away in the middle of a step
    noecho();
    nonl();
    keypad(stdscr, TRUE);
    nodelay(stdscr, TRUE);
    if (has_colors() && std::getenv("NO_COLOR") == nullptr) {
        start_color();
        use_default_colors();
        init_pair(colour_frame, COLOR_CYAN, -1);
        init_pair(colour_title, COLOR_WHITE, COLOR_BLUE);
        init_pair(colour_mark, COLOR_BLACK, COLOR_CYAN);
        init_pair(colour_hot_key, COLOR_YELLOW, -1);
    }
    std::string sequences;
    if (!Capability("kmous").empty()) {
        mouseinterval(0);
        mousemask(BUTTON1_PRESSED | BUTTON1_RELEASED | BUTTON4_PRESSED | BUTTON5_PRESSED |
                      REPORT_MOUSE_POSITION,
                  nullptr);
        Say(follow_the_mouse);
        sequences = leave_the_mouse;
    }
    sequences += Capability("sgr0") + Capability("cnorm") + Capability("rmkx") + Capability("rmcup");
    sequences.copy(restoring.data(), restoring.size() - 1);
    // These signals come only while input is awaited, so none is lost between the last check and the wait.
    sigset_t awaited;
    sigemptyset(&awaited);
    sigaddset(&awaited, SIGWINCH);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGQUIT}) {
        Handle(signal, OnEnd, 0);
        sigaddset(&awaited, signal);
    }
    sigprocmask(SIG_BLOCK, &awaited, &signals_before);
    for (const int signal : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL}) {
        Handle(signal, OnCrash, static_cast<int>(SA_RESETHAND | SA_NODEFER));
    }
}

Terminal::~Terminal() {
    endwin();
    Restore();
    sigprocmask(SIG_SETMASK, &signals_before, nullptr); // signals that waited now only set `ending`
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL}) {
        Handle(signal, SIG_DFL, 0);
    }
}

int Terminal::columns() const {
    return COLS;
}
int Terminal::rows() const {
    return LINES;
}

void Terminal::Clear() {
    erase();
    cursor_ = false;
}

void Terminal::Write(int row, int column, std::string_view text, int columns, const Look& look) {
    columns = std::min(columns, COLS - column);
    if (row < 0 || row >= LINES || column < 0 || columns <= 0) {
        return;
    }
    const attr_t attributes = (look.reversed ? A_REVERSE : A_NORMAL) | (look.bold ? A_BOLD : A_NORMAL) |
                              (look.dim ? A_DIM : A_NORMAL);
    attr_set(attributes, has_colors() ? static_cast<short>(look.colour) : 0, nullptr);
    mvaddstr(row, column, PaddedTo(CutTo(Escaped(text), columns), columns).c_str());
    attr_set(A_NORMAL, 0, nullptr);
}

void Terminal::Underline(int row, int column, int columns) {
    for (int cell = column; cell < column + columns && row >= 0 && row < LINES && cell >= 0 && cell < COLS;
         ++cell) {
        cchar_t there;
        wchar_t letters[CCHARW_MAX + 1];
        attr_t attributes;
        short colour;
        mvin_wch(row, cell, &there);
        if (getcchar(&there, letters, &attributes, &colour, nullptr) == OK) {
            mvchgat(row, cell, 1, attributes | A_UNDERLINE,
                    colour != 0    ? colour
                    : has_colors() ? colour_hot_key
                                   : 0,
                    nullptr);
        }
    }
}

void Terminal::PointAt(int row, int column) {
    cursor_ = true;
    move(std::clamp(row, 0, LINES - 1), std::clamp(column, 0, COLS - 1));
}

void Terminal::Show() {
    curs_set(cursor_ ? 1 : 0);
    refresh();
}

// What Ctrl-Z asks for. Returns when the shell brings the program to the foreground again.
Event Terminal::Suspend() {
    endwin();
    if (restoring[0] != 0) {
        Say(leave_the_mouse);
    }
    raise(SIGTSTP);
    refresh();
    if (!Capability("kmous").empty()) {
        Say(follow_the_mouse);
    }
    return {};
}

// Esc alone is a key. A letter after it makes a hot key, whether the terminal sends the two for Alt or a
// person types them.
Event Terminal::OfEscape() {
    pending_ = Read(escape_wait);
    const bool is_key = pending_ && pending_->kind == Event::Kind::Key;
    if (is_key &&
        (pending_->key.letter != 0 || pending_->key.code == VK_DOWN || pending_->key.code == VK_UP)) {
        Event event = *std::exchange(pending_, {});
        event.key.alt = true;
        return event;
    }
    return *OfKey({VK_ESCAPE});
}

std::optional<Event> Terminal::OfMouse() {
    MEVENT mouse;
    if (getmouse(&mouse) != OK) {
        return {};
    }
    Event event;
    event.column = mouse.x;
    event.row = mouse.y;
    if (mouse.bstate & BUTTON4_PRESSED) {
        event.kind = Event::Kind::WheelUp;
    } else if (mouse.bstate & BUTTON5_PRESSED) {
        event.kind = Event::Kind::WheelDown;
    } else if (mouse.bstate & BUTTON1_PRESSED) {
        pressed_ = true;
        event.kind = Event::Kind::Press;
    } else if (mouse.bstate & BUTTON1_RELEASED) {
        pressed_ = false;
        event.kind = Event::Kind::Release;
    } else if (pressed_) {
        event.kind = Event::Kind::Drag;
    } else {
        return {};
    }
    return event;
}

// The event of a key with a code of its own; nothing if it has no meaning here.
std::optional<Event> Terminal::OfCode(std::wint_t code) {
    if (code == KEY_RESIZE) {
        clearok(curscr, TRUE); // the contents are gone even if the size is the same as before
        return Event{};
    }
    if (code == KEY_MOUSE) {
        return OfMouse();
    }
    for (const auto& [known, meant] : keys) {
        if (code == static_cast<wint_t>(known)) {
            return OfKey(meant);
        }
    }
    if (code >= KEY_F(1) && code <= KEY_F(12)) {
        Event event;
        event.kind = Event::Kind::Function;
        event.function = static_cast<int>(code - KEY_F0);
        return event;
    }
    const char* const name = keyname(static_cast<int>(code));
    if (name != nullptr && (std::strcmp(name, "kDN3") == 0 || std::strcmp(name, "kUP3") == 0)) {
        return OfKey({static_cast<UINT>(name[1] == 'D' ? VK_DOWN : VK_UP), 0, false, true});
    }
    return {};
}

// The event of a character; nothing if it has no meaning here.
std::optional<Event> Terminal::OfCharacter(std::wint_t character) {
    switch (character) {
    case 0x0C:
        clearok(curscr, TRUE);
        return Event{};
    case 0x1A:
        return Suspend();
    case 0x1B:
        return OfEscape();
    default:
        break;
    }
    for (const auto& [code, meant] : controls) {
        if (character == code) {
            return OfKey(meant);
        }
    }
    if (character < 0x20) {
        Event event;
        event.kind = Event::Kind::Control;
        event.key.letter = static_cast<WCHAR>(character + '@');
        return event;
    }
    if (character <= 0xFFFF) {
        return OfKey({0, static_cast<WCHAR>(character)});
    }
    return {};
}

// The next event; nothing if there is none within that time. A negative time waits for ever.
std::optional<Event> Terminal::Read(int milliseconds) {
    if (pending_) {
        return std::exchange(pending_, {});
    }
    while (!ending) {
        wint_t key = 0;
        const int kind = get_wch(&key);
        if (kind != ERR) {
            if (const auto event = kind == KEY_CODE_YES ? OfCode(key) : OfCharacter(key)) {
                return event;
            }
            continue;
        }
        pollfd input{STDIN_FILENO, POLLIN, 0};
        const timespec time{milliseconds / 1000, milliseconds % 1000 * 1'000'000L};
        const int ready = ppoll(&input, 1, milliseconds < 0 ? nullptr : &time, &signals_before);
        if (ready == 0) {
            return {};
        }
        if (ready > 0 && (input.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0) {
            break;
        }
    }
    return EndEvent();
}

Event Terminal::Next() {
    return Read(-1).value_or(Event{});
}

} // namespace host
