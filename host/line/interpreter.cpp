#include "host/line/interpreter.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "host/screen/hand.h"
#include "host/screen/listing.h"
#include "host/screen/painter.h"
#include "host/text.h"
#include "host/worlds/store_values.h"

namespace host {
namespace {

const char* KindOf(const Window& window) {
    return window.kind == WindowKind::Sheet ? "sheet" : window.kind == WindowKind::Box ? "box" : "dialog";
}

} // namespace

Interpreter::Interpreter(World& world, LineSource& lines, std::ostream& out, const Options& options)
    : world_(world), lines_(lines), out_(out), bench_(world, options.machine), stop_(options.stop) {
    lines_.CompleteBy([this](const Words& words) { return Completions(*this, words); });
}

// --- The loop ---

int Interpreter::Run() {
    ending_ = false;
    while (!ending_) {
        Step();
    }
    world_.HearTrace(nullptr);
    return failed_;
}

LineSource& Interpreter::Innermost() {
    return files_.empty() ? lines_ : *files_.back();
}

void Interpreter::Source(const std::string& file) {
    constexpr std::size_t deepest = 16;
    if (files_.size() == deepest) {
        throw Refusal("files are sourced no deeper than " + std::to_string(deepest));
    }
    std::unique_ptr<LineSource> lines = LinesOfFile(file);
    if (!lines) {
        throw Refusal("can't open " + file);
    }
    files_.push_back(std::move(lines));
}

void Interpreter::Step() {
    const std::optional<std::string> bytes = Innermost().Next(Prompt());
    if (!bytes && !files_.empty()) {
        return files_.pop_back();
    }
    if (!bytes) {
        return End();
    }
    had_input_ = true;
    std::string line = ToUtf8(FromUtf8(*bytes));
    line.erase(line.find_last_not_of(" \t\r") + 1);
    line.erase(0, std::min(line.size(), line.find_first_not_of(" \t")));
    if (line.empty()) {
        return;
    }
    const bool comment = line.front() == '#';
    if (!Innermost().IsPerson()) {
        Tell((comment ? "" : "> ") + line);
    }
    if (!comment) {
        ++commands_;
        // What happens around a message box belongs to the command that brought it up.
        const bool answers = !windows_.empty() && world_.BoxStyle(windows_.back().handle) != 0;
        Execute(line);
        if (!answers) {
            bench_.history().Note(line);
        }
    }
    out_.flush();
}

void Interpreter::Tell(std::string_view line) {
    out_ << Escaped(line) << '\n';
}

void Interpreter::Write(const std::vector<std::string>& lines, const char* before) {
    for (const std::string& line : lines) {
        Tell(before + line);
    }
}

void Interpreter::Fail(const std::string& reason) {
    ++failed_;
    ending_ = ending_ || stop_;
    Tell("error: " + reason);
}

void Interpreter::Execute(const std::string& line) {
    Words words;
    if (!SplitWords(line, words)) {
        return Fail("a \" is not closed");
    }
    try {
        const Command& command = FindCommand(words[0]);
        Words arguments;
        SplitWords(command.arguments, arguments);
        const auto optional = static_cast<std::size_t>(
            std::ranges::count_if(arguments, [](const std::string& each) { return each.starts_with('['); }));
        if (words.size() > arguments.size() + 1 || words.size() + optional < arguments.size() + 1) {
            return Fail(std::string{"usage: "} + command.name + ' ' + command.arguments);
        }
        command.run(*this, words);
    } catch (const Refusal& refusal) {
        Fail(refusal.what());
    }
}

void Interpreter::End() {
    const bool was_asked = asked_at_ >= 0 && commands_ - asked_at_ <= 1;
    if (lines_.IsPerson() && !was_asked && world_.HasUnsavedChanges()) {
        asked_at_ = commands_;
        return Tell("The machine has changed and was not exported: export FILE saves it, quit again discards "
                    "the changes.");
    }
    ending_ = true;
}

void Interpreter::Attend(HWND front) {
    NoteClosed(false);
    if (windows_.empty() || windows_.back().handle != front) {
        Announce(front);
    }
    pressed_ = false;
    while (!pressed_ && !windows_.empty() && windows_.back().handle == front) {
        if (ending_) {
            return CloseFront();
        }
        Step();
        NoteClosed(false);
    }
}

void Interpreter::Announce(HWND front) {
    const UINT style = world_.BoxStyle(front);
    const Window window = ReadWindow(front, style != 0);
    std::string told = KindOf(window) + (": " + Quoted(window.title)), of_box;
    if (window.kind == WindowKind::Box) {
        char number[16];
        std::snprintf(number, sizeof number, "0x%04X", style);
        of_box = " | " + Quoted(BoxText(window)) + " | style " + number + " | buttons " + ButtonNames(window);
    }
    Tell("-- " + told + of_box);
    windows_.push_back({front, std::move(told)});
    sheet_opened_ = sheet_opened_ || window.kind == WindowKind::Sheet;
    if (window.kind == WindowKind::Sheet || lines_.IsPerson()) {
        Show();
    }
}

void Interpreter::NoteClosed(bool all) {
    while (!windows_.empty() && (all || !IsOpen(windows_.back().handle))) {
        Tell("-- closed: " + windows_.back().told);
        windows_.pop_back();
    }
}

void Interpreter::CloseFront() {
    Dismiss(Front());
    NoteClosed(false);
}

std::string Interpreter::Prompt() const {
    return windows_.empty() ? "> " : windows_.back().told.substr(0, windows_.back().told.find(':')) + "> ";
}

// --- What a command works on ---

Window Interpreter::Read(HWND window) {
    return ReadWindow(window, world_.BoxStyle(window) != 0);
}

Window Interpreter::Front() {
    if (windows_.empty()) {
        throw Refusal("no window is open; open DEVICE opens one");
    }
    return Read(windows_.back().handle);
}

const Control& Interpreter::InFront(const Window& front, const std::string& name) {
    try {
        return FindControl(front, name);
    } catch (const Refusal& refusal) {
        if (front.kind == WindowKind::Box) {
            throw Refusal("a message box is in front and blocks the rest: answer it first");
        }
        throw;
    }
}

void Interpreter::Open(const Device& device) {
    if (!windows_.empty()) {
        throw Refusal(windows_.back().told + " is open; close it first");
    }
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

void Interpreter::Show() {
    if (windows_.empty()) {
        throw Refusal("no window is open; open DEVICE opens one");
    }
    constexpr std::string_view before = "  |";
    const int width = Width() != 0 ? Width() : 80;
    Write(Picture(Front(), width - static_cast<int>(before.size()), lines_.Letters()), before.data());
    TellBehind();
}

void Interpreter::TellBehind() {
    for (std::size_t below = windows_.size() - 1; below-- > 0;) {
        Tell("  behind: " + windows_[below].told);
    }
}

void Interpreter::Press(const Control& button) {
    Click(button);
    pressed_ = true;
}

std::vector<std::string> Interpreter::OpenWindows() const {
    std::vector<std::string> told;
    for (const OpenWindow& window : windows_) {
        told.push_back(window.told);
    }
    return told;
}

Device Interpreter::FindDevice(const std::string& name) {
    const std::vector<Device> devices = world_.Devices();
    long number = 0;
    if (ParseNumber(name, number) && number >= 1 && static_cast<unsigned long>(number) <= devices.size()) {
        return devices[static_cast<std::size_t>(number) - 1];
    }
    const std::string wanted = Folded(name);
    const Device* found = nullptr;
    for (const Device& device : devices) {
        if (Folded(device.id) == wanted) {
            return device;
        }
        if (device.kind != DeviceKind::Port) {
            continue;
        }
        const std::vector<StoreValue> store = world_.Store(device.id);
        const StoreValue* const stored = FindValue(store, "PortName");
        if (stored == nullptr || Folded(TextOf(*stored)) != wanted) {
            continue;
        }
        if (found != nullptr) {
            throw Refusal("more than one device is called " + Quoted(name) + ": name it by its number");
        }
        found = &device;
    }
    if (found == nullptr) {
        throw Refusal("no device " + Quoted(name) + "; devices lists the " + std::to_string(devices.size()) +
                      " there are");
    }
    return *found;
}

} // namespace host
