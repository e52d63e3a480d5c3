#include "host/line/interpreter.h"

#include <algorithm>
#include <iterator>

#include "host/line/ports_table.h"
#include "host/screen/drawing.h"
#include "host/screen/hand.h"
#include "host/screen/listing.h"
#include "host/text.h"
#include "host/worlds/store_values.h"

namespace host {

const Interpreter::Command Interpreter::commands_[] = {
    {"devices", "", "lists the devices: number, kind, name, instance id", &Interpreter::Devices},
    {"open", "DEVICE", "opens the sheet of a device: its number in the list, COM5, or its instance id",
     &Interpreter::Open},
    {"show", "", "draws the screen", &Interpreter::Show},
    {"controls", "", "lists the controls of the window in front: number, kind, caption, state",
     &Interpreter::Controls},
    {"pick", "CONTROL ITEM", "picks an item of a list: by its text, its first word, or #n counted from 0",
     &Interpreter::PickItem},
    {"check", "CONTROL", "checks a box", &Interpreter::CheckOn},
    {"uncheck", "CONTROL", "takes the check from a box", &Interpreter::CheckOff},
    {"slide", "CONTROL POSITION", "moves a slider", &Interpreter::SlideTo},
    {"click", "CONTROL", "presses a button of the window in front", &Interpreter::ClickOn},
    {"answer", "yes|no|ok", "answers a message box", &Interpreter::Answer},
    {"sheet", "ok|apply|cancel", "presses a button of the sheet itself", &Interpreter::Sheet},
    {"store", "DEVICE", "lists what the device store holds", &Interpreter::Store},
    {"ports", "", "lists all places that hold a port's number; ! marks what disagrees", &Interpreter::Ports},
    {"journal", "", "tells what was changed outside the library since the last time", &Interpreter::Journal},
    {"export", "FILE", "writes the machine as a registry file", &Interpreter::Export},
    {"help", "[COMMAND]", "tells the commands", &Interpreter::Help},
    {"quit", "", "cancels what is open and ends", &Interpreter::Quit},
};

namespace {

constexpr int apply_now = 0x3021; // the sheet's own Apply button, on every Windows

constexpr struct {
    const char* word;
    int id;
} answers[] = {{"yes", IDYES}, {"no", IDNO}, {"ok", IDOK}},
  sheet_buttons[] = {{"ok", IDOK}, {"apply", apply_now}, {"cancel", IDCANCEL}};

// Whether the command can be done to such a control.
bool IsFor(const std::string& command, Kind kind) {
    switch (kind) {
    case Kind::Button:
        return command == "click";
    case Kind::Check:
        return command == "click" || command == "check" || command == "uncheck";
    case Kind::Combo:
    case Kind::List:
        return command == "pick";
    case Kind::Slider:
        return command == "slide";
    default:
        return false;
    }
}

int IdOf(const auto& table, const std::string& word) {
    std::string words;
    for (const auto& entry : table) {
        if (Folded(word) == entry.word) {
            return entry.id;
        }
        words += std::string{words.empty() ? "" : ", "} + entry.word;
    }
    throw Refusal(Quoted(word) + " is none of " + words);
}

} // namespace

void Interpreter::Execute(const std::string& line) {
    Words words;
    if (!SplitWords(line, words)) {
        return Fail("a \" is not closed");
    }
    const std::string name = Folded(words[0]);
    const auto command = std::find_if(std::begin(commands_), std::end(commands_),
                                      [&](const Command& entry) { return name == entry.name; });
    if (command == std::end(commands_)) {
        return Fail("no command " + Quoted(words[0]) + "; help lists them");
    }
    Words arguments;
    SplitWords(command->arguments, arguments);
    const std::size_t optional = std::string_view{command->arguments}.find('[') != std::string_view::npos;
    if (words.size() > arguments.size() + 1 || words.size() + optional < arguments.size() + 1) {
        return Fail(std::string{"right is: "} + command->name + ' ' + command->arguments);
    }
    try {
        (this->*command->run)(words);
    } catch (const Refusal& refusal) {
        Fail(refusal.what());
    }
}

// --- The commands ---

void Interpreter::Help(const Words& words) {
    bool found = false;
    for (const Command& command : commands_) {
        if (words.size() > 1 && Folded(words[1]) != command.name) {
            continue;
        }
        found = true;
        Tell("  " + PaddedTo(std::string{command.name} + ' ' + command.arguments, 24) + command.help);
    }
    if (!found) {
        throw Refusal("no command " + Quoted(words[1]));
    }
    if (words.size() == 1) {
        Tell("A CONTROL is named by its caption, by the label before it, or by its number. A caption with "
             "blanks");
        Tell("stands in \"...\". Lines that begin with # are comments.");
    }
}

void Interpreter::Devices(const Words&) {
    Write(ListDevices(world_.Devices()));
}

void Interpreter::Open(const Words& words) {
    if (!windows_.empty()) {
        throw Refusal(windows_.back().told + " is open; close it first");
    }
    const Device device = FindDevice(words[1]);
    sheet_opened_ = false;
    if (!world_.RunSheet(device.id, [this](HWND front) { Attend(front); })) {
        throw Refusal("the device has gone");
    }
    NoteClosed(true);
    if (!sheet_opened_) {
        throw Refusal("the device's provider gave no page");
    }
}

void Interpreter::Show(const Words&) {
    if (windows_.empty()) {
        throw Refusal("no window is open; open DEVICE opens one");
    }
    std::vector<Window> windows;
    for (const OpenWindow& window : windows_) {
        windows.push_back(Read(window.handle));
    }
    Write(Draw(windows), "  |");
}

void Interpreter::Controls(const Words&) {
    Write(ListControls(Front()));
    for (std::size_t below = windows_.size() - 1; below-- > 0;) {
        Tell("  behind: " + windows_[below].told);
    }
}

void Interpreter::PickItem(const Words& words) {
    const Window front = Front();
    Pick(InFront(front, words[1]), words[2]);
}

void Interpreter::CheckOn(const Words& words) {
    const Window front = Front();
    SetCheck(InFront(front, words[1]), true);
}

void Interpreter::CheckOff(const Words& words) {
    const Window front = Front();
    SetCheck(InFront(front, words[1]), false);
}

void Interpreter::SlideTo(const Words& words) {
    const Window front = Front();
    const Control& slider = InFront(front, words[1]);
    long position = 0;
    if (!ParseNumber(words[2], position)) {
        throw Refusal(Quoted(words[2]) + " is no number");
    }
    Slide(slider, position);
}

void Interpreter::Press(const Control& button) {
    Click(button);
    pressed_ = true;
}

void Interpreter::ClickOn(const Words& words) {
    const Window front = Front();
    Press(InFront(front, words[1]));
}

void Interpreter::Answer(const Words& words) {
    const Window front = Front();
    const int id = IdOf(answers, words[1]);
    if (front.kind != WindowKind::Box) {
        throw Refusal("no message box is in front");
    }
    for (const Control& control : front.controls) {
        if (control.kind == Kind::Button && control.id == id) {
            return Press(control);
        }
    }
    throw Refusal("the box has only: " + ButtonNames(front));
}

void Interpreter::Sheet(const Words& words) {
    const Window front = Front();
    const int id = IdOf(sheet_buttons, words[1]);
    if (front.kind != WindowKind::Sheet) {
        throw Refusal(windows_.back().told + " is in front and blocks the sheet");
    }
    Press(FindButton(front, id));
}

void Interpreter::Store(const Words& words) {
    Write(ListStore(world_.Store(FindDevice(words[1]).id)));
}

void Interpreter::Ports(const Words&) {
    Write(PortsTable(world_));
}

void Interpreter::Journal(const Words&) {
    const std::vector<std::string> lines = world_.Journal();
    Write(lines, "  ");
    if (lines.empty()) {
        Tell("  nothing");
    }
}

void Interpreter::Export(const Words& words) {
    std::string error;
    if (!world_.Export(words[1], error)) {
        throw Refusal(error);
    }
}

void Interpreter::Quit(const Words&) {
    ending_ = true;
}

// --- Completion ---

Interpreter::Words Interpreter::Continue(const Words& words) {
    Words result;
    if (words.empty() || (words.size() == 1 && words[0] == "help")) {
        for (const Command& command : commands_) {
            result.push_back(command.name);
        }
        return result;
    }
    const auto command = std::find_if(std::begin(commands_), std::end(commands_),
                                      [&](const Command& entry) { return words[0] == entry.name; });
    Words arguments;
    if (command != std::end(commands_)) {
        SplitWords(command->arguments, arguments);
    }
    if (words.size() > arguments.size()) {
        return result;
    }
    const std::string& argument = arguments[words.size() - 1];
    try {
        if (argument == "DEVICE") {
            const std::vector<Device> devices = world_.Devices();
            for (std::size_t index = 0; index < devices.size(); ++index) {
                result.push_back(std::to_string(index + 1));
                const std::vector<StoreValue> store = world_.Store(devices[index].id);
                if (const StoreValue* name = FindValue(store, "PortName")) {
                    result.push_back(TextOf(*name));
                }
            }
        } else if (argument == "CONTROL") {
            const Window front = Front();
            for (const Control& control : front.controls) {
                if (IsFor(words[0], control.kind)) {
                    if (const std::string name = CallName(front, control); !name.empty()) {
                        result.push_back(name);
                    }
                    result.push_back(std::to_string(control.id));
                }
            }
        } else if (argument == "ITEM") {
            const Window front = Front();
            result = FindControl(front, words[1]).items;
        } else if (argument.find('|') != std::string::npos) {
            for (std::size_t from = 0; from <= argument.size();) {
                const std::size_t end = std::min(argument.find('|', from), argument.size());
                result.push_back(argument.substr(from, end - from));
                from = end + 1;
            }
        }
    } catch (const Refusal&) {
        result.clear();
    }
    return result;
}

} // namespace host
