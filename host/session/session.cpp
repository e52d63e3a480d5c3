#include "host/session/session.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>

#include "host/screen/hand.h"
#include "host/screen/listing.h"
#include "host/screen/painter.h"
#include "host/session/command.h"
#include "host/text.h"
#include "host/whole_file.h"

namespace host {
namespace {

const char* KindOf(const Window& window) {
    return window.kind == WindowKind::Sheet ? "sheet" : window.kind == WindowKind::Box ? "box" : "dialog";
}

} // namespace

Session::Session(World& world, Seat& seat, bool stop)
    : world_(world), seat_(seat), stop_(stop), original_(world.Describe()), history_(world.File()) {
    world_.Journal(); // what happened before is not news
    seat_.SitBefore(*this);
}

Session::~Session() {
    world_.HearTrace(nullptr);
}

// --- The loop ---

int Session::Run() {
    while (!ending_) {
        Step();
    }
    return failed_;
}

void Session::End() {
    ending_ = !unsaved_ || seat_.MayDiscard();
}

void Session::Source(const std::string& file) {
    constexpr std::size_t deepest = 16;
    if (files_.size() == deepest) {
        throw Refusal("files are sourced no deeper than " + std::to_string(deepest));
    }
    std::ifstream lines(PathOf(file), std::ios::binary);
    if (!lines) {
        throw Refusal("can't open " + file);
    }
    files_.push_back(std::move(lines));
}

bool Session::IsReadFrom(const std::string& file) const {
    std::error_code none;
    return world_.File() != nullptr && std::filesystem::equivalent(PathOf(world_.Name()), PathOf(file), none);
}

// The next line of the innermost file, or else of the user; nothing if there is none at the moment.
std::optional<std::string> Session::NextLine() {
    if (files_.empty()) {
        std::optional<std::string> line = seat_.Next(Prompt());
        if (!line) {
            End();
        }
        return line;
    }
    std::string line;
    if (!std::getline(files_.back(), line)) {
        const bool is_broken = files_.back().bad();
        files_.pop_back();
        if (is_broken) {
            Fail("the file can't be read to its end");
        }
    }
    return line;
}

void Session::Step() {
    const bool echoes = !files_.empty() || !seat_.IsPerson();
    std::string line = ToUtf8(FromUtf8(NextLine().value_or("")));
    line.erase(line.find_last_not_of(" \t\r") + 1);
    line.erase(0, std::min(line.size(), line.find_first_not_of(" \t")));
    if (line.empty()) {
        return;
    }
    const bool is_comment = line.front() == '#';
    if (echoes) {
        Tell((is_comment ? "" : "> ") + line);
    }
    if (!is_comment) {
        Execute(line);
    }
    if (files_.empty()) {
        seat_.Done(line);
    }
}

// --- Actions ---

// What happens around a message box belongs to the action that brought it up.
void Session::Act(const std::string& name, const std::function<void()>& act) {
    const bool answers = IsBoxInFront();
    trace_is_old_ = trace_is_old_ || !answers;
    act();
    if (!answers) {
        Collect(name);
    }
}

void Session::Execute(const std::string& line) {
    Words words;
    if (!SplitWords(line, words)) {
        return Fail("a \" is not closed");
    }
    Act(line, [&] {
        try {
            RunCommand(*this, words);
        } catch (const Refusal& refusal) {
            Fail(refusal.what());
        }
    });
    NoteState();
}

void Session::NoteState() {
    unsaved_ = world_.File() != nullptr && world_.File()->IsUnsaved();
}

void Session::Fail(const std::string& reason) {
    ++failed_;
    ending_ = ending_ || stop_;
    Tell("error: " + reason);
}

// Ends an action. The machine changes only by operations that the journal has.
void Session::Collect(const std::string& name) {
    Lines changes = world_.Journal();
    if (!changes.empty()) {
        actions_.push_back({name, std::move(changes)});
        history_.Note(name);
        NoteState();
    }
}

Lines Session::News() {
    if (Lines changes = world_.Journal(); !changes.empty()) {
        actions_.push_back({"", std::move(changes)});
    }
    Lines all;
    for (const Action& action : actions_) {
        all.insert(all.end(), action.changes.begin(), action.changes.end());
    }
    all.erase(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(std::exchange(told_, all.size())));
    return all;
}

const Lines& Session::Trace() {
    if (!std::exchange(keeps_trace_, true)) {
        ListenToTrace();
    }
    return trace_;
}

bool Session::HearTrace(World::TraceListener hear) {
    trace_listener_ = std::move(hear);
    return ListenToTrace();
}

bool Session::ListenToTrace() {
    if (!keeps_trace_ && !trace_listener_) {
        return world_.HearTrace(nullptr);
    }
    return world_.HearTrace([this](const std::string& line, bool change) {
        if (keeps_trace_) {
            if (std::exchange(trace_is_old_, false)) {
                trace_.clear();
            }
            trace_.push_back((change ? "* " : "  ") + line);
        }
        if (trace_listener_) {
            trace_listener_(line, change);
        }
    });
}

// --- Windows ---

void Session::Attend(HWND front) {
    NoteClosed(false);
    if (windows_.empty() || windows_.back().handle != front) {
        Announce(front);
    }
    pressed_ = false;
    while (!pressed_ && !windows_.empty() && windows_.back().handle == front) {
        if (ending_) {
            Dismiss(Front());
            return NoteClosed(false);
        }
        Step();
        NoteClosed(false);
    }
}

void Session::Announce(HWND front) {
    const Window window = Read(front);
    std::string told = KindOf(window) + (": " + Quoted(window.title)), of_box;
    if (window.kind == WindowKind::Box) {
        char style[16];
        std::snprintf(style, sizeof style, "0x%04X", world_.BoxStyle(front));
        of_box = " | " + Quoted(BoxText(window)) + " | style " + style + " | buttons " + ButtonNames(window);
    }
    windows_.push_back({front, told});
    sheet_opened_ = sheet_opened_ || window.kind == WindowKind::Sheet;
    if (seat_.SeesWindows()) {
        return;
    }
    Tell("-- " + told + of_box);
    if (window.kind == WindowKind::Sheet || seat_.IsPerson()) {
        Show();
    }
}

void Session::NoteClosed(bool all) {
    while (!windows_.empty() && (all || !IsOpen(windows_.back().handle))) {
        if (!seat_.SeesWindows()) {
            Tell("-- closed: " + windows_.back().told);
        }
        windows_.pop_back();
    }
}

std::string Session::Prompt() const {
    return windows_.empty() ? "> " : windows_.back().told.substr(0, windows_.back().told.find(':')) + "> ";
}

bool Session::IsBoxInFront() {
    return !windows_.empty() && world_.BoxStyle(windows_.back().handle) != 0;
}

void Session::MustHaveNoWindow() const {
    if (!windows_.empty()) {
        throw Refusal(windows_.back().told + " is open; close it first");
    }
}

Window Session::Read(HWND window) {
    return ReadWindow(window, world_.BoxStyle(window) != 0);
}

Window Session::Front() {
    if (windows_.empty()) {
        throw Refusal("no window is open; open DEVICE opens one");
    }
    return Read(windows_.back().handle);
}

const Control& Session::InFront(const Window& front, const std::string& name) {
    try {
        return FindControl(front, name);
    } catch (const Refusal& refusal) {
        if (front.kind == WindowKind::Box) {
            throw Refusal("a message box is in front and blocks the rest: answer it first");
        }
        throw;
    }
}

void Session::Press(const Control& button) {
    Click(button);
    pressed_ = true;
}

void Session::Open(const DeviceRecord& device) {
    MustHaveNoWindow();
    sheet_opened_ = false;
    if (!world_.RunSheet(device.id, [this](HWND front) { Attend(front); })) {
        throw Refusal("the device has gone");
    }
    NoteClosed(true);
    if (!sheet_opened_) {
        throw Refusal(device.provider_fault.empty() ? "the device's provider gave no page"
                                                    : "no page: " + device.provider_fault);
    }
}

void Session::Show() {
    constexpr std::string_view before = "  |";
    if (seat_.IsPlain()) {
        Tell(ListWindow(Front()));
    } else {
        Tell(Picture(Front(), Columns() - static_cast<int>(before.size()), seat_.Letters()), before.data());
    }
    TellBehind();
}

void Session::TellBehind() {
    for (std::size_t below = windows_.size() - 1; below-- > 0;) {
        Tell("  behind: " + windows_[below].told);
    }
}

// --- Output ---

void Session::Tell(std::string_view line) {
    seat_.Tell(Escaped(line));
}

void Session::Tell(const Lines& lines, const char* before) {
    for (const std::string& line : lines) {
        Tell(before + line);
    }
}

// --- What a command works on ---

DeviceRecord Session::FindDevice(const std::string& name) {
    const Records records = world_.Describe();
    const std::size_t count = CountListed(records);
    long number = 0;
    if (ParseNumber(name, number) && number >= 1 && static_cast<unsigned long>(number) <= count) {
        return records.devices[static_cast<std::size_t>(number) - 1];
    }
    const std::string wanted = Folded(name);
    const DeviceRecord* found = nullptr;
    for (const DeviceRecord& device : records.devices) {
        if (device.listed == 0) {
            continue;
        }
        if (Folded(device.id) == wanted) {
            return device;
        }
        if (device.role == Role::Port && !wanted.empty() &&
            Folded(StoredText(device.store, "PortName")) == wanted) {
            if (found != nullptr) {
                throw Refusal("more than one device is called " + Quoted(name) + ": name it by its number");
            }
            found = &device;
        }
    }
    if (found == nullptr) {
        throw Refusal("no device " + Quoted(name) + "; devices lists the " + std::to_string(count) +
                      " there are");
    }
    return *found;
}

} // namespace host
