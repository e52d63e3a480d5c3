#include "host/full_screen/full_screen.h"

#include <algorithm>

#include "host/diagnosis/published_values.h"
#include "host/screen/hand.h"
#include "host/screen/keyboard.h"
#include "host/text.h"
#include "host/worlds/store_values.h"

namespace host {
namespace {

constexpr int small_screen = 100; // columns
constexpr int low_screen = 40;    // rows

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
        return control->dropped ? "Up/Down choose  Enter close" : "Up/Down choose  F4 list";
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
    world_.Journal(); // what happened before is not news
    HearTrace();
}

FullScreen::~FullScreen() {
    world_.HearTrace(nullptr);
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

void FullScreen::HearTrace() {
    world_.HearTrace([this](const std::string& line, bool change) {
        if (trace_is_old_) {
            trace_.clear();
            trace_is_old_ = false;
        }
        trace_.push_back((change ? "* " : "  ") + line);
    });
}

void FullScreen::ReadDevices() {
    devices_.clear();
    for (Device& device : world_.Devices()) {
        const std::vector<StoreValue> store = world_.Store(device.id);
        ListedDevice listed;
        if (const StoreValue* const name = FindValue(store, "PortName");
            name != nullptr && device.kind == DeviceKind::Port) {
            listed.port = TextOf(*name);
        }
        const StoreValue* const opened = FindValue(store, "ChlOpened");
        unsigned long times = 0;
        if (const std::string reason = WhyNoPage(device.kind, store); !reason.empty()) {
            listed.state = "no page: " + reason;
        } else if (!device.present.value_or(true)) {
            listed.state = "absent";
        } else if (opened != nullptr && NumberOf(*opened, times) && times != 0) {
            listed.state = "open";
        }
        listed.device = std::move(device);
        devices_.push_back(std::move(listed));
    }
}

void FullScreen::Open() {
    if (selected_ >= devices_.size()) {
        return;
    }
    bool opened = false;
    const std::string id = devices_[selected_].device.id;
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

void FullScreen::TakeDeviceEvent(const Event& event) {
    const int last = static_cast<int>(devices_.size()) - 1,
              page = terminal_.rows() - 3 - PaneRows(terminal_.rows());
    int wanted = static_cast<int>(selected_);
    if (event.kind == Event::Kind::Press) {
        const int row = event.row - 1 + first_device_;
        if (event.row < 1 || event.row > page + 1 || row > last) {
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

// --- The screen ---

void FullScreen::Draw() {
    const int columns = terminal_.columns(), rows = terminal_.rows();
    canvas_ = Canvas(terminal_.columns(), terminal_.rows());
    DrawDevices(windows_.empty() ? columns : PaneColumns(columns), rows - 1 - PaneRows(rows));
    DrawPane(rows - 1 - PaneRows(rows), PaneRows(rows));
    DrawWindows();
    DrawKeys();
    terminal_.Show(canvas_);
}

void FullScreen::DrawDevices(int columns, int rows) {
    const int in_sight = std::max(1, rows - 1), all = static_cast<int>(devices_.size());
    first_device_ = std::clamp(first_device_, std::max(0, static_cast<int>(selected_) - in_sight + 1),
                               static_cast<int>(selected_));
    canvas_.Write(0, 0, " Devices", columns, {false, true, false, colour_title});
    for (int row = 0; row < in_sight && first_device_ + row < all; ++row) {
        const auto index = static_cast<std::size_t>(first_device_ + row);
        const auto& [device, port, state] = devices_[index];
        const bool selected = index == selected_;
        const std::string number = std::to_string(index + 1);
        const std::string line = (selected ? ">" : " ") +
                                 std::string(number.size() < 3 ? 3 - number.size() : 0, ' ') + number + ' ' +
                                 (port.empty() ? "" : PaddedTo(port, 7)) + NameOf(device) +
                                 (state.empty() ? "" : "  (" + state + ')');
        canvas_.Write(1 + row, 0, line, columns - 1,
                      {selected && windows_.empty(), selected, !state.empty(), 0});
        if (selected && windows_.empty()) {
            canvas_.PointAt(1 + row, 0);
        }
    }
}

void FullScreen::DrawPane(int top, int rows) {
    // The journal from the start of the last action, or the end of the trace, where its results are.
    const Lines& lines = tracing_ ? trace_ : journal_;
    const std::size_t seen = static_cast<std::size_t>(std::max(0, rows - 1)),
                      first = tracing_ ? trace_.size() - std::min(seen, trace_.size()) : news_,
                      count = tracing_ ? trace_.size() : journal_.size() - news_;
    std::string title = tracing_ ? " The trace of the last action: " : " The last change outside: ";
    if (lines.empty()) {
        title = tracing_ ? " Nothing has been traced" : " Nothing has been changed outside";
    } else {
        title += std::to_string(count) + (tracing_ ? " line" : " operation") + (count == 1 ? "" : "s") +
                 ", F5 shows all";
    }
    canvas_.Write(top, 0, title + (tracing_ ? ", F9 the changes" : ", F9 the trace"), terminal_.columns(),
                  {false, true, false, colour_title});
    for (std::size_t row = 0; row < seen; ++row) {
        canvas_.Write(top + 1 + static_cast<int>(row), 0,
                      first + row < lines.size() ? ' ' + lines[first + row] : "", terminal_.columns());
    }
}

void FullScreen::DrawKeys() {
    std::string keys = "Up/Down choose  Enter open  F1 help  F2 ports  F3 store  F5 journal  F10 end";
    if (!windows_.empty()) {
        keys = KeysOf(FocusedOf(front_.window));
        // As many as fit, the most needed first.
        for (const char* const key :
             {"Tab next", "Esc cancel", "F1 help", "F10 end", "Alt+letter", "F2 ports"}) {
            const std::string more = keys + (keys.empty() ? "" : "  ") + key;
            keys = Columns(more) < terminal_.columns() ? more : keys;
        }
    }
    canvas_.Write(terminal_.rows() - 1, 0, ' ' + (message_.empty() ? keys : message_), terminal_.columns(),
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
        // Beside the devices and above the changes if there is room, otherwise over them.
        for (const auto& [most_columns, most_rows] :
             {std::pair{all_columns - pane, rows}, {all_columns, rows}, {all_columns, all_rows}}) {
            painted.placement = Place(painted.window, most_columns, most_rows);
            if (painted.placement.columns <= most_columns && painted.placement.rows <= most_rows) {
                break;
            }
        }
        const Placement& placement = painted.placement;
        Cells& place = painted.place;
        place.columns = std::min(placement.columns, all_columns);
        place.rows = std::min(placement.rows, all_rows);
        place.left = place.columns > all_columns - pane ? all_columns - place.columns
                                                        : pane + (all_columns - pane - place.columns) / 2;
        place.top = ((place.rows > rows ? all_rows : rows) - place.rows) / 2;
        const bool front = window == windows_.back();
        Paint(canvas_, painted, front, turned_);
        if (front) {
            front_ = std::move(painted);
        }
    }
}

} // namespace host
