#include "host/full_screen/full_screen.h"

#include <algorithm>
#include <array>

#include "host/screen/hand.h"
#include "host/screen/keyboard.h"
#include "host/text.h"
#include "host/worlds/store_values.h"

namespace host {
namespace {

constexpr int small_screen = 100; // columns
constexpr int low_screen = 40;    // rows
constexpr int wheel_step = 3;     // items

int PaneColumns(int columns) {
    return columns < small_screen ? 26 : 34;
}
int PaneRows(int rows) {
    return rows < low_screen ? 4 : 10;
}

const Control* FocusedOf(const Window& window) {
    const auto found = std::ranges::find_if(window.controls, &Control::focused);
    return found == window.controls.end() ? nullptr : &*found;
}

// What the keys do to the control with the focus.
std::string KeysOf(const Control* control) {
    if (control == nullptr) {
        return "";
    }
    switch (control->kind) {
    case Kind::Button:
        return "Enter press";
    case Kind::Check:
        return "Space check";
    case Kind::Combo:
        return control->dropped ? "Up/Down choose  Enter shut" : "Up/Down choose  F4 open the list";
    case Kind::List:
        return "Up/Down choose";
    case Kind::Slider:
        return "Left/Right PgUp/PgDn move: " + std::to_string(control->position) + " of " +
               std::to_string(control->minimum) + ".." + std::to_string(control->maximum);
    default:
        return "";
    }
}

} // namespace

FullScreen::FullScreen(World& world, Command command) : world_(world), command_(std::move(command)) {
    ReadDevices();
    world_.Journal(); // what was before is no news
}

void FullScreen::Run() {
    while (!ending_) {
        Draw();
        const Event event = terminal_.Next();
        if (!TakeCommon(event)) {
            TakeDeviceEvent(event);
        }
    }
}

// --- While a window waits ---

void FullScreen::Attend(HWND front) {
    std::erase_if(windows_, [](HWND window) { return !IsOpen(window); });
    if (windows_.empty() || windows_.back() != front) {
        windows_.push_back(front);
    }
    while (IsOpen(front)) {
        if (ending_) {
            Dismiss(ReadWindow(front, world_.BoxStyle(front) != 0));
            continue;
        }
        Draw();
        Event event = terminal_.Next();
        if (TakeCommon(event)) {
            continue;
        }
        if (event.kind == Event::Kind::Key) {
            const Control* const focused = FocusedOf(front_.window);
            const bool typed =
                focused != nullptr && (focused->kind == Kind::Combo || focused->kind == Kind::List);
            if (event.key.code == VK_SPACE && typed) {
                event.key = {0, ' '};
            }
            turned_.clear();
            PressKey(front, event.key);
        } else if (event.kind == Event::Kind::Press) {
            TakeClick(event);
        } else if (event.kind == Event::Kind::Drag) {
            Drag(event.column);
        } else if (event.kind == Event::Kind::Release) {
            dragged_ = nullptr;
        } else {
            TakeWheel(event);
        }
        NoteChanges();
    }
    std::erase_if(windows_, [](HWND window) { return !IsOpen(window); });
}

void FullScreen::NoteChanges() {
    const Lines news = world_.Journal();
    if (!news.empty()) {
        news_ = journal_.size();
        journal_.insert(journal_.end(), news.begin(), news.end());
        ReadDevices();
    }
}

void FullScreen::ReadDevices() {
    devices_ = world_.Devices();
    port_names_.clear();
    for (const Device& device : devices_) {
        const std::vector<StoreValue> store = world_.Store(device.id);
        const StoreValue* const name =
            device.kind == DeviceKind::Port ? FindValue(store, "PortName") : nullptr;
        port_names_.push_back(name == nullptr ? "" : TextOf(*name));
    }
}

void FullScreen::Open() {
    if (selected_ >= devices_.size()) {
        return;
    }
    bool opened = false;
    const std::string id = devices_[selected_].id;
    world_.RunSheet(id, [&](HWND front) {
        opened = true;
        Attend(front);
    });
    windows_.clear();
    NoteChanges();
    if (!opened) {
        message_ = "the device's provider gave no page";
    }
}

// --- Events ---

bool FullScreen::TakeCommon(const Event& event) {
    message_.clear();
    if (event.kind == Event::Kind::End) {
        ending_ = true;
    }
    if (event.kind != Event::Kind::Function) {
        return event.kind == Event::Kind::End || event.kind == Event::Kind::Resize;
    }
    switch (event.function) {
    case 1:
        View("Keys", {"Tab, Shift-Tab     to the next control, to the one before",
                      "Alt and a letter   to the control whose letter is underlined; where the terminal "
                      "keeps Alt, Esc and then",
                      "                   the letter", "Space              checks a box, presses a button",
                      "Enter              presses the button <in these>", "Esc                cancels",
                      "arrows             within a list, a slider, a group",
                      "F4, Alt-Down       opens and shuts a combo's list",
                      "letters            find the item that begins so",
                      "mouse              click, drag a slider, turn the wheel over a list", "",
                      "F2 all places that hold a port's number    F3 the store of the device",
                      "F5 all that was changed outside            F6 a command of the line (help tells them)",
                      "F7 what is wrong with the machine          F8 what differs from it as it was read",
                      "F10, Ctrl-C  ends; what is open is cancelled", "Ctrl-L paints the screen anew", "",
                      "~ stands before what is disabled, < > around the button that Enter presses."});
        return true;
    case 2:
        View("Ports", command_("ports"));
        return true;
    case 3:
        View("Store", command_("store " + std::to_string(selected_ + 1)));
        return true;
    case 5:
        View("Changed outside so far", journal_.empty() ? Lines{"nothing"} : journal_);
        return true;
    case 6:
        AskCommand();
        return true;
    case 7:
        View("What is wrong", command_("diagnose"));
        return true;
    case 8:
        View("What differs from the machine as it was read", command_("changes"));
        return true;
    case 10:
        ending_ = true;
        return true;
    default:
        return true;
    }
}

void FullScreen::TakeDeviceEvent(const Event& event) {
    const int last = static_cast<int>(devices_.size()) - 1,
              page = terminal_.rows() - 3 - PaneRows(terminal_.rows());
    int wanted = static_cast<int>(selected_);
    if (event.kind == Event::Kind::Press) {
        const int row = event.row - 1 + first_device_;
        if (event.column >= PaneColumns(terminal_.columns()) || event.row < 1 || row > last) {
            return;
        }
        if (row == wanted) {
            return Open();
        }
        wanted = row;
    } else if (event.kind == Event::Kind::WheelUp || event.kind == Event::Kind::WheelDown) {
        wanted += event.kind == Event::Kind::WheelUp ? -wheel_step : wheel_step;
    } else if (event.kind == Event::Kind::Key) {
        const Key& key = event.key;
        if (key.code == VK_RETURN) {
            return Open();
        }
        const std::pair<UINT, int> moves[] = {
            {VK_UP, wanted - 1},      {VK_DOWN, wanted + 1}, {VK_PRIOR, wanted - page},
            {VK_NEXT, wanted + page}, {VK_HOME, 0},          {VK_END, last}};
        const auto move = std::ranges::find(moves, key.code, &std::pair<UINT, int>::first);
        if (key.letter == 'q') {
            ending_ = true;
        }
        if (move != std::end(moves)) {
            wanted = move->second;
        }
    }
    selected_ = static_cast<std::size_t>(std::clamp(wanted, 0, std::max(0, last)));
}

void FullScreen::TakeClick(const Event& event) {
    const auto of_front = [&](const Cells& cells) {
        return Cells{cells.left + front_.left, cells.top + front_.top, cells.columns, cells.rows};
    };
    for (const Placed& placed : front_.placement.controls) {
        if (placed.control->dropped && front_.open_list.Has(event.column, event.row)) {
            return TakeListClick(*placed.control, event.row - front_.open_list.top - 1,
                                 front_.open_list.rows - 2);
        }
    }
    for (const Placed& placed : front_.placement.controls) {
        const Control& control = *placed.control;
        const Cells cells = of_front(placed.cells);
        if (!control.enabled || !cells.Has(event.column, event.row) || control.kind == Kind::Label ||
            control.kind == Kind::Group) {
            continue;
        }
        if (control.kind == Kind::Button || control.kind == Kind::Check) {
            return Click(control);
        }
        FocusOn(front_.window, control);
        if (control.kind == Kind::Combo) {
            SendMessageW(control.window, CB_SHOWDROPDOWN, control.dropped ? FALSE : TRUE, 0);
        } else if (control.kind == Kind::List) {
            TakeListClick(control, event.row - cells.top - 1, cells.rows - 2);
        } else if (control.kind == Kind::Slider) {
            dragged_ = control.window;
            Drag(event.column);
        }
        return;
    }
}

void FullScreen::TakeListClick(const Control& list, int row, int rows) {
    const int item = FirstInSight(list, rows, turned_) + row;
    if (row >= 0 && row < rows && item < static_cast<int>(list.items.size())) {
        turned_[list.window] = item - row; // it stays where it was clicked
        Pick(list, '#' + std::to_string(item));
        if (list.kind == Kind::Combo) {
            SendMessageW(list.window, CB_SHOWDROPDOWN, FALSE, 0);
        }
    }
}

// The slider in hand to where the mouse is.
void FullScreen::Drag(int column) {
    for (const Placed& placed : front_.placement.controls) {
        const Control& slider = *placed.control;
        if (slider.window == dragged_ && slider.kind == Kind::Slider && slider.enabled) {
            const int last = std::max(1, placed.cells.columns - 3), range = slider.maximum - slider.minimum;
            const int at = std::clamp(column - front_.left - placed.cells.left - 1, 0, last);
            Slide(slider, slider.minimum + (at * range + last / 2) / last);
        }
    }
}

void FullScreen::TakeWheel(const Event& event) {
    for (const Placed& placed : front_.placement.controls) {
        const Control& list = *placed.control;
        Cells cells{placed.cells.left + front_.left, placed.cells.top + front_.top, placed.cells.columns,
                    placed.cells.rows};
        if (list.dropped) {
            cells = front_.open_list;
        }
        if ((list.kind == Kind::List || list.dropped) && cells.Has(event.column, event.row)) {
            const int step = event.kind == Event::Kind::WheelUp ? -wheel_step : wheel_step;
            const int first = FirstInSight(list, cells.rows - 2, turned_);
            turned_[list.window] = first + step;
            turned_[list.window] = FirstInSight(list, cells.rows - 2, turned_);
            return;
        }
    }
}

// --- The screen ---

void FullScreen::Draw() {
    const int columns = terminal_.columns(), rows = terminal_.rows();
    terminal_.Clear();
    DrawDevices(PaneColumns(columns), rows - 1 - PaneRows(rows));
    DrawJournal(rows - 1 - PaneRows(rows), PaneRows(rows));
    DrawWindows();
    DrawKeys();
    terminal_.Show();
}

void FullScreen::DrawDevices(int columns, int rows) {
    const int in_sight = std::max(1, rows - 1), all = static_cast<int>(devices_.size());
    first_device_ = std::clamp(first_device_, std::max(0, static_cast<int>(selected_) - in_sight + 1),
                               static_cast<int>(selected_));
    terminal_.Write(0, 0, " Devices", columns, {false, true, false, colour_title});
    for (int row = 0; row < in_sight && first_device_ + row < all; ++row) {
        const auto index = static_cast<std::size_t>(first_device_ + row);
        const Device& device = devices_[index];
        const bool selected = index == selected_;
        const std::string number = std::to_string(index + 1);
        const bool absent = device.present && !*device.present;
        const std::string line =
            (selected ? ">" : " ") + std::string(number.size() < 3 ? 3 - number.size() : 0, ' ') + number +
            ' ' + (absent ? "(absent) " : "") +
            (port_names_[index].empty() ? "" : PaddedTo(port_names_[index], 7)) + NameOf(device);
        terminal_.Write(1 + row, 0, line, columns - 1, {selected && windows_.empty(), selected, absent, 0});
        if (selected && windows_.empty()) {
            terminal_.PointAt(1 + row, 0);
        }
    }
}

void FullScreen::DrawJournal(int top, int rows) {
    const std::size_t news = journal_.size() - news_;
    terminal_.Write(top, 0,
                    journal_.empty() ? " Nothing has been changed outside"
                                     : " The last change outside: " + std::to_string(news) +
                                           (news == 1 ? " operation" : " operations, F5 shows all"),
                    terminal_.columns(), {false, true, false, colour_title});
    for (int row = 1; row < rows; ++row) {
        const std::size_t line = news_ + static_cast<std::size_t>(row - 1);
        terminal_.Write(top + row, 0, line < journal_.size() ? ' ' + journal_[line] : "",
                        terminal_.columns());
    }
}

void FullScreen::DrawKeys() {
    std::string keys = "Up/Down choose  Enter open  F1 help  F2 ports  F3 store  F5 journal  F10 end";
    if (!windows_.empty()) {
        keys = KeysOf(FocusedOf(front_.window));
        keys += (keys.empty() ? "" : "  ") +
                std::string("Tab next  Alt+letter  Esc cancel  F1 help  F2 ports  F10 end");
    }
    terminal_.Write(terminal_.rows() - 1, 0, ' ' + (message_.empty() ? keys : message_), terminal_.columns(),
                    {true, false, false, 0});
}

void FullScreen::DrawWindows() {
    const int all_columns = terminal_.columns(), all_rows = terminal_.rows() - 1;
    const int pane = PaneColumns(all_columns), rows = all_rows - PaneRows(terminal_.rows());
    for (const HWND window : windows_) {
        if (!IsOpen(window)) {
            continue;
        }
        Painted painted;
        painted.window = ReadWindow(window, world_.BoxStyle(window) != 0);
        // Beside the devices and above the changes if there is room, else over them.
        for (const auto& [most_columns, most_rows] :
             {std::pair{all_columns - pane, rows}, {all_columns, rows}, {all_columns, all_rows}}) {
            painted.placement = Place(painted.window, most_columns, most_rows);
            if (painted.placement.columns <= most_columns && painted.placement.rows <= most_rows) {
                break;
            }
        }
        const Placement& placement = painted.placement;
        painted.left = placement.columns > all_columns - pane
                           ? std::max(0, all_columns - placement.columns)
                           : pane + (all_columns - pane - placement.columns) / 2;
        painted.top = std::max(0, ((placement.rows > rows ? all_rows : rows) - placement.rows) / 2);
        const bool front = window == windows_.back();
        Paint(terminal_, painted, front, turned_);
        if (front) {
            front_ = std::move(painted);
        }
    }
}

// --- Views ---

void FullScreen::View(const std::string& title, const Lines& lines) {
    int first = 0, shift = 0;
    for (;;) {
        const int columns = terminal_.columns(), rows = terminal_.rows() - 3;
        first = std::clamp(first, 0, std::max(0, static_cast<int>(lines.size()) - rows));
        terminal_.Clear();
        terminal_.Write(0, 0, ' ' + title, columns, {false, true, false, colour_title});
        for (int row = 0; row < rows && first + row < static_cast<int>(lines.size()); ++row) {
            std::string line = lines[static_cast<std::size_t>(first + row)];
            for (int cut = 0; cut < shift && !line.empty(); ++cut) {
                do {
                    line.erase(0, 1);
                } while (!line.empty() && (line.front() & 0xC0) == 0x80);
            }
            terminal_.Write(1 + row, 0, line, columns);
        }
        terminal_.Write(terminal_.rows() - 1, 0,
                        " arrows, PgUp, PgDn move  Esc back   " + std::to_string(first + 1) + " of " +
                            std::to_string(lines.size()),
                        columns, {true, false, false, 0});
        terminal_.Show();
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

void FullScreen::AskCommand() {
    Text line;
    for (;;) {
        Draw();
        const std::string shown = " command: " + ToUtf8(line);
        terminal_.Write(terminal_.rows() - 1, 0, shown, terminal_.columns(), {true, false, false, 0});
        terminal_.PointAt(terminal_.rows() - 1, Columns(shown));
        terminal_.Show();
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
                View(ToUtf8(line), command_(ToUtf8(line)));
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
