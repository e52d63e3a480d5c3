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
#include <vector>

#define NCURSES_NOMACROS // move and erase are also names in the standard library
#include <curses.h>
#include <term.h>
#undef columns // term.h makes macros of these
#undef lines
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include "host/languages.h"
#include "host/text.h"

namespace host {
namespace {

constexpr int escape_wait = 20; // milliseconds within which what follows an Esc belongs to it
constexpr const char* follow_the_mouse = "\033[?1002h";
constexpr const char* leave_the_mouse = "\033[?1006l\033[?1002l\033[?1000l";

termios before;
sigset_t signals_before;           // the mask, which also applies during the wait for input
std::array<char, 256> restoring{}; // what the terminal is told at the end
std::size_t restoring_length = 0;
volatile std::sig_atomic_t ending = 0; // the signal

// Everything that it calls may be called from a signal handler.
void Restore() {
    [[maybe_unused]] const auto written = write(STDOUT_FILENO, restoring.data(), restoring_length);
    tcsetattr(STDIN_FILENO, TCSANOW, &before);
}

void OnEnd(int signal) {
    ending = signal;
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

int Remember(int character) {
    if (restoring_length < restoring.size()) {
        restoring[restoring_length++] = static_cast<char>(character);
    }
    return character;
}

// Prepares what restores a terminal of this size.
void PrepareRestoring() {
    restoring_length = 0;
    const std::string last_line =
        Capability("rmcup").empty() ? tiparm(Capability("cup").c_str(), LINES - 1, 0) : "";
    const std::string mouse = Capability("kmous").empty() ? "" : leave_the_mouse;
    for (const std::string& sequence :
         {mouse, Capability("sgr0"), Capability("cnorm"), Capability("rmkx"), last_line,
          last_line.empty() ? "" : Capability("el"), Capability("rmcup")}) {
        tputs(sequence.c_str(), 1, Remember); // which takes out the time that a terminal needs for it
    }
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

// The next character of a sequence; 0 if the terminal sends no more of it.
wint_t NextOfSequence() {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    wint_t character = 0;
    for (const int wait : {0, escape_wait}) {
        if (wait != 0) {
            poll(&input, 1, wait);
        }
        if (const int kind = get_wch(&character); kind != ERR) {
            return kind == OK ? character : 0;
        }
    }
    return 0;
}

// A key that the terminal's description does not have, after "ESC [" or "ESC O". What it ends with is read
// whatever it means: nobody typed its letters.
std::optional<Event> OfSequence(WCHAR begun) {
    static constexpr std::pair<std::string_view, Key> known[] = {
        {"A", {VK_UP}},     {"B", {VK_DOWN}},  {"C", {VK_RIGHT}},   {"D", {VK_LEFT}},        {"H", {VK_HOME}},
        {"F", {VK_END}},    {"1~", {VK_HOME}}, {"7~", {VK_HOME}},   {"4~", {VK_END}},        {"8~", {VK_END}},
        {"5~", {VK_PRIOR}}, {"6~", {VK_NEXT}}, {"3~", {VK_DELETE}}, {"Z", {VK_TAB, 0, true}}};
    std::string sequence;
    for (wint_t next = NextOfSequence(); next > ' ' && next < 0x7F; next = NextOfSequence()) {
        sequence += static_cast<char>(next);
        if (next >= '@' && sequence != "[") { // the console of Linux has a second bracket
            break;
        }
    }
    if (sequence.empty()) {
        return OfKey({0, begun, false, true}); // was typed with Alt
    }
    const auto* const key = std::ranges::find(known, sequence, &std::pair<std::string_view, Key>::first);
    return key != std::end(known) ? std::optional(OfKey(key->second)) : std::nullopt;
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

Terminal::Terminal() : charset_(HasUnicode() ? Charset::Utf8 : Charset::Ascii) {
    tcgetattr(STDIN_FILENO, &before);
    std::setlocale(LC_CTYPE, "");
    if (MB_CUR_MAX == 1) {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
    set_escdelay(escape_wait);
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
        init_pair(colour_hot_key, COLOR_YELLOW, -1);
    }
    if (!Capability("kmous").empty()) {
        mouseinterval(0);
        mousemask(BUTTON1_PRESSED | BUTTON1_RELEASED | BUTTON4_PRESSED | BUTTON5_PRESSED |
                      REPORT_MOUSE_POSITION,
                  nullptr);
        Say(follow_the_mouse);
    }
    PrepareRestoring();
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
    sigprocmask(SIG_SETMASK, &signals_before, nullptr); // a signal that waited now only sets `ending`
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL}) {
        Handle(signal, SIG_DFL, 0);
    }
    if (ending != 0) {
        raise(ending);
    }
}

int Terminal::columns() const {
    return COLS;
}
int Terminal::rows() const {
    return LINES;
}

void Terminal::Show(const Canvas& canvas) {
    erase();
    const int columns = std::min(COLS, canvas.columns());
    for (int row = 0; row < std::min(LINES, canvas.rows()); ++row) {
        for (int column = 0; column < columns;) {
            // Cells of one look are written together, but none behind a character of which the terminal may
            // think that it is wider or narrower.
            const int first = column;
            const Look& look = canvas.At(row, first).look;
            std::string run;
            for (bool is_plain = true; is_plain && column < columns && canvas.At(row, column).look == look;
                 ++column) {
                const std::string& glyph = canvas.At(row, column).glyph;
                is_plain = glyph.size() == 1 || GlyphIn(Charset::Ascii, glyph) != glyph;
                run += GlyphIn(charset_, glyph);
            }
            attr_set((look.reversed ? A_REVERSE : A_NORMAL) | (look.bold ? A_BOLD : A_NORMAL) |
                         (look.dim ? A_DIM : A_NORMAL) | (look.underlined ? A_UNDERLINE : A_NORMAL),
                     has_colors() ? static_cast<short>(look.colour) : 0, nullptr);
            mvaddnstr(row, first, run.data(), static_cast<int>(run.size()));
        }
    }
    attr_set(A_NORMAL, 0, nullptr);
    curs_set(canvas.cursor() ? 1 : 0);
    if (canvas.cursor()) {
        move(std::clamp(canvas.cursor()->row, 0, LINES - 1),
             std::clamp(canvas.cursor()->column, 0, COLS - 1));
    }
    refresh();
}

// What Ctrl-Z asks for. Returns when the shell brings the program to the foreground again.
Event Terminal::Suspend() {
    endwin();
    if (!Capability("kmous").empty()) {
        Say(leave_the_mouse);
    }
    raise(SIGTSTP);
    refresh();
    if (!Capability("kmous").empty()) {
        Say(follow_the_mouse);
    }
    return {};
}

// Esc alone is a key. A letter that is there already makes a hot key: a terminal sends the two for Alt, but
// nobody types them so fast.
std::optional<Event> Terminal::OfEscape() {
    wint_t character = 0;
    const int kind = get_wch(&character);
    if (kind == OK && (character == '[' || character == 'O')) {
        return OfSequence(static_cast<WCHAR>(character));
    }
    if (kind != ERR) {
        kind == OK ? unget_wch(static_cast<wchar_t>(character)) : ungetch(static_cast<int>(character));
    }
    std::optional<Event> next = Read(0);
    const bool is_key = next && next->kind == Event::Kind::Key;
    if (is_key && !next->key.alt &&
        (next->key.letter != 0 || next->key.code == VK_DOWN || next->key.code == VK_UP)) {
        next->key.alt = true;
        return next;
    }
    if (next) {
        pending_.push_front(*next);
    }
    return OfKey({VK_ESCAPE});
}

// A slow line brings several events at once. The library then tells of one key, and has the last event first.
std::optional<Event> Terminal::OfMouse() {
    std::vector<MEVENT> all;
    for (MEVENT mouse; getmouse(&mouse) == OK;) {
        all.push_back(mouse);
    }
    for (auto mouse = all.rbegin(); mouse != all.rend(); ++mouse) {
        Event event;
        event.column = mouse->x;
        event.row = mouse->y;
        if (mouse->bstate & BUTTON4_PRESSED) {
            event.kind = Event::Kind::WheelUp;
        } else if (mouse->bstate & BUTTON5_PRESSED) {
            event.kind = Event::Kind::WheelDown;
        } else if (mouse->bstate & BUTTON1_PRESSED) {
            pressed_ = true;
            event.kind = Event::Kind::Press;
        } else if (mouse->bstate & BUTTON1_RELEASED) {
            pressed_ = false;
            event.kind = Event::Kind::Release;
        } else if (pressed_) {
            event.kind = Event::Kind::Drag;
        } else {
            continue;
        }
        pending_.push_back(event);
    }
    return TakePending();
}

std::optional<Event> Terminal::TakePending() {
    if (pending_.empty()) {
        return {};
    }
    const Event event = pending_.front();
    pending_.pop_front();
    return event;
}

// The event of a key with a code of its own; nothing if it has no meaning here.
std::optional<Event> Terminal::OfCode(std::wint_t code) {
    if (code == KEY_RESIZE) {
        PrepareRestoring();
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
        return OfFunction(static_cast<int>(code - KEY_F0));
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
        return OfControl(static_cast<char>(character + '@'));
    }
    if (character <= 0xFFFF) {
        return OfLetter(static_cast<WCHAR>(character));
    }
    return {};
}

// The next event; nothing if there is none within that time. A negative time waits for ever.
std::optional<Event> Terminal::Read(int milliseconds) {
    if (const auto event = TakePending()) {
        return event;
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
    return Event{Event::Kind::End};
}

Event Terminal::Next() {
    return Read(-1).value_or(Event{});
}

} // namespace host
