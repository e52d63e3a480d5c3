// The keyboard of a dialog: which control gets a key, where Tab, the arrows and the hot keys lead, and what
// Enter and Esc press.
#include <algorithm>
#include <array>

#include "simulated/window.h"

namespace sim {
namespace {

std::array<BYTE, 256> keys_down{};

bool IsLive(const Window& window) {
    return (window.style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

// The controls of a top-level window in tab order, with those of a page in the page's place. Hidden and
// disabled controls are included, but not those on a hidden or disabled page.
void Collect(const Window& parent, std::vector<Window*>& controls) {
    for (const auto& child : parent.children) {
        if (child->children.empty()) {
            controls.push_back(child.get());
        } else if (IsLive(*child)) {
            Collect(*child, controls);
        }
    }
}

std::vector<Window*> ControlsOf(const Window& top_level) {
    std::vector<Window*> controls;
    Collect(top_level, controls);
    return controls;
}

// All the controls, starting after `from` and ending with it; starting with the first if `from` is not among
// them.
std::vector<Window*> After(std::vector<Window*> controls, const Window* from, bool backwards) {
    if (backwards) {
        std::ranges::reverse(controls);
    }
    const auto place = std::ranges::find(controls, from);
    if (place != controls.end()) {
        std::rotate(controls.begin(), std::next(place), controls.end());
    }
    return controls;
}

// The next stop of the Tab key; null if there is none.
Window* NextStop(const Window& top_level, const Window* from, bool backwards) {
    const auto around = After(ControlsOf(top_level), from, backwards);
    const auto stop = std::ranges::find_if(
        around, [](const Window* one) { return (one->style & WS_TABSTOP) != 0 && IsLive(*one); });
    return stop == around.end() ? nullptr : *stop;
}

// The next control of the same group. A group runs from a control with WS_GROUP to the one before the next
// such control, and wraps around at the end of the window.
Window* NextInGroup(const Window& top_level, const Window& from, bool backwards) {
    const auto controls = ControlsOf(top_level);
    const auto starts = [](const Window* one) { return (one->style & WS_GROUP) != 0; };
    const auto before = After(controls, &from, true);
    const auto found = std::ranges::find_if(before, starts);
    const Window* start = starts(&from) || found == before.end() ? &from : *found;
    auto group = After(controls, start, false);
    std::rotate(group.begin(), std::prev(group.end()), group.end());
    group.erase(std::find_if(std::next(group.begin()), group.end(), starts), group.end());
    const auto around = After(std::move(group), &from, backwards);
    const auto next = std::ranges::find_if(around, [](const Window* one) { return IsLive(*one); });
    return next == around.end() ? nullptr : *next;
}

LRESULT CodeOf(Window& window) {
    return window.Answer(WM_GETDLGCODE, 0, 0);
}

bool IsPushButton(Window& window) {
    return (CodeOf(window) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

// The letter after the single & of a caption; 0 if there is none.
char16_t HotKey(std::u16string_view caption) {
    for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
        if (caption[at] == u'&') {
            if (caption[++at] != u'&') {
                return Upper(caption[at]);
            }
        }
    }
    return 0;
}

void Press(Window& button) {
    TellParent(button, WM_COMMAND, MAKEWPARAM(button.id, BN_CLICKED));
}

// A label passes the key on to the stop after it. If several controls share a letter, the focus moves to the
// next of them and nothing is pressed.
bool TakeHotKey(const Window& top_level, const Window& from, WPARAM letter) {
    auto around = After(ControlsOf(top_level), &from, false);
    std::erase_if(around, [&](Window* one) {
        return !IsLive(*one) || (CodeOf(*one) & (DLGC_BUTTON | DLGC_STATIC)) == 0 ||
               HotKey(one->text) != Upper(static_cast<char16_t>(letter));
    });
    if (around.empty()) {
        return false;
    }
    Window& first = *around.front();
    if (CodeOf(first) & DLGC_STATIC) {
        if (Window* stop = NextStop(top_level, &first, false)) {
            MoveFocus(*stop);
        }
    } else if (around.size() > 1) {
        MoveFocus(first);
    } else if (IsPushButton(first)) {
        MoveFocus(first);
        Press(first);
    } else {
        first.Answer(BM_CLICK, 0, 0);
    }
    return true;
}

// The button that Enter presses: the one with the focus, or else the dialog's own.
Window* DefaultButton(const Window& top_level) {
    Window* focus = FindWindow(Focus());
    if (focus != nullptr && &focus->TopLevel() == &top_level && IsPushButton(*focus)) {
        return focus;
    }
    const auto* dialog = dynamic_cast<const Dialog*>(&top_level);
    return dialog == nullptr ? nullptr : dialog->Child(dialog->default_id);
}

void TakeEnter(Window& top_level) {
    Window* button = DefaultButton(top_level);
    if (button == nullptr) {
        top_level.Answer(WM_COMMAND, IDOK, 0);
    } else if (IsLive(*button)) {
        Press(*button);
    }
}

void TakeEscape(Window& top_level) {
    const Window* cancel = top_level.Child(IDCANCEL);
    top_level.Answer(WM_COMMAND, IDCANCEL,
                     reinterpret_cast<LPARAM>(cancel == nullptr ? nullptr : cancel->handle));
}

// Returns whether the dialog itself took the message.
bool TakeKey(Window& top_level, Window& target, const MSG& message) {
    const LRESULT wanted = target.Answer(WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
    if ((wanted & DLGC_WANTMESSAGE) != 0) {
        return false;
    }
    if (message.message == WM_SYSCHAR || (message.message == WM_CHAR && (wanted & DLGC_WANTCHARS) == 0)) {
        return TakeHotKey(top_level, target, message.wParam);
    }
    if (message.message != WM_KEYDOWN) {
        return false;
    }
    switch (message.wParam) {
    case VK_TAB:
        top_level.Answer(WM_NEXTDLGCTL, keys_down[VK_SHIFT] >> 7, FALSE);
        return true;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
        if ((wanted & DLGC_WANTARROWS) != 0 || target.parent == nullptr) {
            return false;
        }
        if (Window* next =
                NextInGroup(top_level, target, message.wParam == VK_LEFT || message.wParam == VK_UP)) {
            MoveFocus(*next);
        }
        return true;
    case VK_RETURN:
        TakeEnter(top_level);
        return true;
    case VK_ESCAPE:
        TakeEscape(top_level);
        return true;
    default:
        return false;
    }
}

// Marks the button that Enter would press now.
void MarkDefaultButton(const Window& top_level) {
    const Window* marked = DefaultButton(top_level);
    for (Window* control : ControlsOf(top_level)) {
        if (IsPushButton(*control)) {
            control->style = (control->style & ~static_cast<DWORD>(BS_TYPEMASK)) |
                             (control == marked ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
        }
    }
}

} // namespace

void MoveFocus(Window& control) {
    PassFocus(control.handle);
    MarkDefaultButton(control.TopLevel());
}

void Dialog::GoTo(WPARAM to, bool is_handle) {
    Window* next = is_handle ? FindWindow(reinterpret_cast<HWND>(to))
                             : NextStop(TopLevel(), FindWindow(Focus()), to != 0);
    if (next != nullptr && next->IsOpenToInput()) {
        MoveFocus(*next);
    }
}

} // namespace sim

BOOL IsDialogMessageW(HWND dialog, MSG* message) {
    sim::Window* top_level = sim::FindWindow(dialog);
    sim::Window* target = sim::FindWindow(message->hwnd);
    if (top_level == nullptr || target == nullptr || &target->TopLevel() != top_level) {
        return FALSE;
    }
    if (!sim::TakeKey(*top_level, *target, *message)) {
        target->Answer(message->message, message->wParam, message->lParam);
    }
    return TRUE;
}

BOOL SetKeyboardState(BYTE* keys) {
    std::copy_n(keys, sim::keys_down.size(), sim::keys_down.begin());
    return TRUE;
}

SHORT GetKeyState(int key) {
    return static_cast<SHORT>(sim::keys_down[static_cast<BYTE>(key)] << 8);
}
