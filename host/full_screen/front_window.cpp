#include "host/full_screen/front_window.h"

#include <algorithm>

#include "host/screen/hand.h"
#include "host/screen/keyboard.h"
#include "host/text.h"

namespace host {
namespace {

const Control* FocusedOf(const Window& window) {
    const auto found = std::ranges::find_if(window.controls, &Control::focused);
    return found == window.controls.end() ? nullptr : &*found;
}

std::string NameIn(const Window& window, const Control& control) {
    const std::string name = CallName(window, control);
    return name.empty() ? std::string{"the "} + KindName(control.kind) : Quoted(name);
}

// The name of a key for the list of actions.
std::string KeyName(const Key& key) {
    static constexpr std::pair<UINT, const char*> names[] = {
        {VK_RETURN, "Enter"}, {VK_SPACE, "Space"}, {VK_ESCAPE, "Esc"}, {VK_TAB, "Tab"},
        {VK_UP, "Up"},        {VK_DOWN, "Down"},   {VK_LEFT, "Left"},  {VK_RIGHT, "Right"},
        {VK_HOME, "Home"},    {VK_END, "End"},     {VK_PRIOR, "PgUp"}, {VK_NEXT, "PgDn"}};
    if (key.letter != 0) {
        return (key.alt ? "Alt+" : "") + ToUtf8(Text(1, key.letter));
    }
    const auto found = std::ranges::find(names, key.code, &std::pair<UINT, const char*>::first);
    return found == std::end(names) ? "a key" : found->second;
}

// The button with the focus, even before its looks say so.
void MarkWhatEnterPresses(Window& window) {
    const Control* const focused = FocusedOf(window);
    if (focused != nullptr && focused->kind == Kind::Button) {
        for (Control& control : window.controls) {
            control.is_default = control.focused;
        }
    }
}

// The most useful first: a small terminal has no room for more. `is_cut`: the text is longer than its place.
std::vector<Hint> HintsOfBox(const Window& box, bool is_cut) {
    std::vector<Hint> hints;
    const auto buttons = std::ranges::count(box.controls, Kind::Button, &Control::kind);
    bool can_cancel = false;
    for (const Control& button : box.controls) {
        const std::size_t mark = button.text.find('&');
        if (button.kind == Kind::Button && mark != std::string::npos && mark + 1 < button.text.size()) {
            const WCHAR letter = FromUtf8(Folded(button.text.substr(mark + 1)))[0];
            hints.push_back({ToUtf8(Text(1, letter)), Shown(button.text), OfLetter(letter)});
        }
        can_cancel = can_cancel || button.id == IDCANCEL || (button.id == IDOK && buttons == 1);
    }
    if (is_cut) {
        AddPair(hints, "PgUp", VK_PRIOR, "PgDn", VK_NEXT, "read");
    }
    hints.push_back({"Enter", "press", OfCode(VK_RETURN)});
    if (can_cancel) {
        hints.push_back({"Esc", "close", OfCode(VK_ESCAPE)});
    }
    if (buttons > 1) {
        hints.push_back({"Tab", "next", OfCode(VK_TAB)});
    }
    return hints;
}

// What the keys do to the control with the focus, and to the dialog.
std::vector<Hint> HintsOfDialog(const Window& window) {
    std::vector<Hint> hints;
    const Control* const focused = FocusedOf(window);
    const Kind kind = focused != nullptr ? focused->kind : Kind::Label;
    const bool is_list = kind == Kind::Combo || kind == Kind::List;
    if (is_list && focused->items.size() > 1) {
        AddPair(hints, "Up", VK_UP, "Down", VK_DOWN, "choose");
    }
    if (kind == Kind::Combo && focused->dropped) {
        AddPair(hints, "Enter", VK_RETURN, "Esc", VK_ESCAPE, "close the list");
        return hints;
    }
    if (kind == Kind::Combo) {
        hints.push_back({"F4", "list", OfCode(VK_F4)});
    } else if (kind == Kind::Check) {
        hints.push_back({"Space", focused->checked ? "uncheck" : "check", OfCode(VK_SPACE)});
    } else if (kind == Kind::Slider) {
        AddPair(hints, "Left", VK_LEFT, "Right", VK_RIGHT,
                "move " + std::to_string(focused->position) + " of " + std::to_string(focused->minimum) +
                    ".." + std::to_string(focused->maximum));
    }
    for (const Control& button : window.controls) {
        if (button.kind == Kind::Button && button.is_default && button.enabled) {
            hints.push_back({"Enter", Shown(button.text), OfCode(VK_RETURN)});
        }
    }
    hints.push_back({"Tab", "next", OfCode(VK_TAB)});
    hints.push_back({"Esc", "cancel", OfCode(VK_ESCAPE)});
    return hints;
}

} // namespace

void FrontWindow::Read(Session& session) {
    // What has been stored is no longer a change.
    if (std::exchange(actions_, session.actions().size()) != session.actions().size()) {
        stored_.clear();
    }
    std::erase_if(stored_, [](const auto& window) { return !IsOpen(window.first); });
    windows_.clear();
    for (const Session::OpenWindow& window : session.windows()) {
        if (IsOpen(window.handle)) {
            windows_.emplace_back().window = session.Read(window.handle);
            MarkChanged(windows_.back().window, stored_[window.handle]);
            MarkWhatEnterPresses(windows_.back().window);
        }
    }
}

bool FrontWindow::Draw(Canvas& canvas, const Cells& within, int beside) {
    bool is_free = true;
    const int most_rows = canvas.rows() - within.top;
    for (Painted& painted : windows_) {
        // Beside the devices and above the journal if there is room, otherwise over them.
        Placement& placement = painted.placement;
        for (const auto& [columns, rows] : {std::pair{within.columns - beside, within.rows},
                                            {within.columns, within.rows},
                                            {within.columns, most_rows}}) {
            placement = PlaceWindow(painted.window, columns, rows);
            if (placement.columns <= columns && placement.rows <= rows) {
                break;
            }
        }
        const bool fits = placement.columns <= within.columns - beside;
        is_free = is_free && fits;
        const int room = placement.rows <= within.rows ? within.rows : most_rows;
        Cells& place = painted.place;
        place.columns = std::min(placement.columns, within.columns);
        place.rows = std::min(placement.rows, most_rows);
        place.left = fits ? beside + (within.columns - beside - place.columns) / 2
                          : (within.columns - place.columns) / 2;
        place.top = within.top + (room - place.rows) / 2;
    }
    for (Painted& painted : windows_) {
        Paint(canvas, painted, &painted == &windows_.back(), turned_);
    }
    return is_free;
}

std::vector<Hint> FrontWindow::Hints(int columns, int rows) const {
    if (windows_.empty()) {
        return {};
    }
    const Window& window = Front().window;
    return window.kind == WindowKind::Box ? HintsOfBox(window, PlaceWindow(window, columns, rows).rows > rows)
                                          : HintsOfDialog(window);
}

void FrontWindow::Take(Session& session, Event event) {
    const HWND front = session.windows().back().handle;
    const Control* const focused = FocusedOf(Front().window);
    const bool turns_page = event.key.code == VK_PRIOR || event.key.code == VK_NEXT;
    if (event.kind == Event::Kind::Key && Front().window.kind == WindowKind::Box && turns_page) {
        Scroll(event.key.code == VK_PRIOR ? -wheel_step : wheel_step);
    } else if (event.kind == Event::Kind::Key) {
        const bool takes_letters =
            focused != nullptr && (focused->kind == Kind::Combo || focused->kind == Kind::List);
        if (event.key.code == VK_SPACE && takes_letters) {
            event.key = {0, ' '};
        }
        turned_.clear();
        std::string name = KeyName(event.key);
        if (focused != nullptr && !event.key.alt) {
            name += " on " + NameIn(Front().window, *focused);
        }
        session.Act(name, [&] { PressKey(front, event.key); });
    } else if (event.kind == Event::Kind::Press) {
        if (const Placed* const pressed = At(event)) {
            session.Act("click on " + NameIn(Front().window, *pressed->control),
                        [&] { Click(*pressed, event); });
        }
    } else if (event.kind == Event::Kind::Drag) {
        Drag(event.column);
    } else if (event.kind == Event::Kind::Release) {
        dragged_ = nullptr;
    } else {
        Turn(event);
    }
}

// --- The mouse ---

const Placed* FrontWindow::At(const Event& event) const {
    for (const bool is_list : {true, false}) { // an open list lies over the rest
        for (const Placed& placed : Front().placement.controls) {
            const Control& control = *placed.control;
            if (is_list ? control.dropped && Front().open_list.Has(event.column, event.row)
                        : control.enabled && control.kind != Kind::Label && control.kind != Kind::Group &&
                              Front().Shows(placed, event.column, event.row)) {
                return &placed;
            }
        }
    }
    return nullptr;
}

// What is done may open a window, and then all are read anew.
void FrontWindow::Click(const Placed& placed, const Event& event) {
    const Control control = *placed.control;
    const Cells cells = Front().On(placed), open_list = Front().open_list;
    if (control.dropped && open_list.Has(event.column, event.row)) {
        return ClickList(control, event.row - open_list.top - 1, open_list.rows - 2);
    }
    if (control.kind == Kind::Button || control.kind == Kind::Check) {
        return host::Click(control);
    }
    FocusOn(Front().window, control);
    if (control.kind == Kind::Combo) {
        SendMessageW(control.window, CB_SHOWDROPDOWN, control.dropped ? FALSE : TRUE, 0);
    } else if (control.kind == Kind::List) {
        ClickList(control, event.row - cells.top - 1, cells.rows - 2);
    } else if (control.kind == Kind::Slider) {
        dragged_ = control.window;
        Drag(event.column);
    }
}

void FrontWindow::ClickList(const Control& list, int row, int rows) {
    const int item = FirstInSight(list, rows, turned_) + row;
    if (row >= 0 && row < rows && item < static_cast<int>(list.items.size())) {
        turned_[list.window] = item - row; // the list stays where it was clicked
        PickItem(list, item);
        if (list.kind == Kind::Combo) {
            SendMessageW(list.window, CB_SHOWDROPDOWN, FALSE, 0);
        }
    }
}

// Moves the slider in hand to where the mouse is.
void FrontWindow::Drag(int column) {
    for (const Placed& placed : Front().placement.controls) {
        const Control slider = *placed.control; // as what is done may open a window
        if (slider.window == dragged_ && slider.kind == Kind::Slider && slider.enabled) {
            return Slide(slider, PositionAt(slider, Front().On(placed), column));
        }
    }
}

void FrontWindow::Turn(const Event& event) {
    const int step = event.kind == Event::Kind::WheelUp ? -wheel_step : wheel_step;
    for (const Placed& placed : Front().placement.controls) {
        const Control& list = *placed.control;
        const Cells cells = list.dropped ? Front().open_list : Front().On(placed);
        const bool is_at_it = list.dropped ? cells.Has(event.column, event.row)
                                           : Front().Shows(placed, event.column, event.row);
        if ((list.kind == Kind::List || list.kind == Kind::Table || list.dropped) && is_at_it) {
            const int rows = RowsIn(list, cells);
            turned_[list.window] = FirstInSight(list, rows, turned_) + step;
            turned_[list.window] = FirstInSight(list, rows, turned_);
            return;
        }
    }
    Scroll(step);
}

// Moves what the window shows of itself, until the next key shows the focus again.
void FrontWindow::Scroll(int step) {
    turned_[Front().window.handle] = std::max(0, Front().down + step);
}

} // namespace host
