// Dialogs: how they are made from their templates, how their procedures are called and how they run.
#include <algorithm>
#include <utility>

#include "simulated/stage.h"
#include "simulated/window.h"

namespace sim {
namespace {

constexpr int most_calls = 10'000; // calls of an operator for one window
constexpr LONG first_corner =
    40; // pixels, for a window without an owner; an owned one lies this much further in

std::unique_ptr<Window> MakeLabel() {
    return std::make_unique<Window>(u"Static");
}

constexpr struct {
    std::u16string_view name;
    std::unique_ptr<Window> (*make)();
} classes[] = {
    {u"BUTTON", MakeButton},
    {u"STATIC", MakeLabel},
    {u"COMBOBOX", MakeComboBox},
    {u"LISTBOX", MakeListBox},
    {u"SysListView32", MakeListView},
    {u"msctls_trackbar32", MakeTrackBar},
    {u"SysTabControl32", MakeTabControl},
};

std::unique_ptr<Window> MakeControl(const ControlTemplate& form, Dialog& dialog) {
    const auto found =
        std::ranges::find_if(classes, [&](const auto& one) { return one.name == form.class_name; });
    auto control = found->make();
    control->id = form.id;
    control->style = form.style;
    control->text = form.text;
    const LONG left = dialog.place.left + PixelsAcross(form.x);
    const LONG top = dialog.place.top + PixelsDown(form.y);
    control->place = {left, top, left + PixelsAcross(form.cx), top + PixelsDown(form.cy)};
    control->parent = &dialog;
    return control;
}

} // namespace

Dialog::Dialog() : Window(u"#32770") {}

Dialog::~Dialog() {
    if (top_level_) {
        if (!ended) {
            End(0);
        }
        Closed("window");
    }
}

void Dialog::OpenOver(Window* above) {
    top_level_ = true;
    Opened("window");
    focus_before_ = PassFocus(nullptr);
    place = {first_corner, first_corner, first_corner, first_corner};
    if (above == nullptr) {
        return;
    }
    owner = &above->TopLevel();
    place.left += owner->place.left;
    place.top += owner->place.top;
    if (owner->IsOpenToInput()) {
        owner->Enable(false);
        disabled_ = owner;
    }
}

void Dialog::Furnish(const DialogTemplate& form) {
    text = form.title;
    style = form.style;
    place.right = place.left + PixelsAcross(form.cx);
    place.bottom = place.top + PixelsDown(form.cy);
    const auto& missing = Current().missing_controls;
    const bool is_of_library = procedure != nullptr;
    for (const ControlTemplate& control : form.controls) {
        if (!is_of_library || std::ranges::find(missing, control.id) == missing.end()) {
            children.push_back(MakeControl(control, *this));
        }
    }
    const auto by_default = std::ranges::find_if(children, [](const auto& child) {
        return (child->Answer(WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
    });
    default_id = by_default == children.end() ? IDOK : (*by_default)->id;
}

void Dialog::Initialise(LPARAM parameter) {
    const auto first = std::ranges::find_if(children, [](const auto& child) {
        return (child->style & (WS_TABSTOP | WS_VISIBLE | WS_DISABLED)) == (WS_TABSTOP | WS_VISIBLE);
    });
    Window* control = first == children.end() ? nullptr : first->get();
    const HWND number = control == nullptr ? nullptr : control->handle;
    const bool is_left_to_system =
        procedure == nullptr || Answer(WM_INITDIALOG, reinterpret_cast<WPARAM>(number), parameter) != FALSE;
    if (is_left_to_system && !ended && control != nullptr && control->IsOpenToInput()) {
        PassFocus(number);
    }
}

LRESULT Dialog::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
    if (procedure != nullptr) {
        message_result = 0;
        const INT_PTR handled = [&] {
            const LogicAtWork at_work;
            return procedure(handle, message, wParam, lParam);
        }();
        if (message == WM_INITDIALOG) {
            return handled;
        }
        if (handled != FALSE) {
            return message_result;
        }
    }
    switch (message) {
    case DM_GETDEFID:
        return static_cast<LRESULT>(MAKELONG(default_id, DC_HASDEFID));
    case WM_NEXTDLGCTL:
        GoTo(wParam, LOWORD(lParam) != 0);
        return 0;
    case WM_GETDLGCODE:
        return 0;
    case WM_CLOSE: {
        const Window* cancel = Child(IDCANCEL);
        return Answer(WM_COMMAND, IDCANCEL,
                      reinterpret_cast<LPARAM>(cancel == nullptr ? nullptr : cancel->handle));
    }
    default:
        return Window::Answer(message, wParam, lParam);
    }
}

void Dialog::Run(INT_PTR if_left) {
    if (!ended) {
        style |= WS_VISIBLE;
    }
    const OperatorAtWork at_work;
    for (int calls = 0; !ended && Current().user; ++calls) {
        if (calls == most_calls) {
            Misuse("the operator did not end \"" + ToUtf8(text) + "\"");
            break;
        }
        const Operator user = Current().user; // a copy: it may replace itself
        user(handle);
    }
    if (!ended) {
        Answer(WM_CLOSE, 0, 0);
    }
    if (!ended) {
        End(if_left);
    }
}

// The focus goes back to where it was, or to the first stop of the window below if that can't take it.
void Dialog::End(INT_PTR value) {
    ended = true;
    result = value;
    if (disabled_ != nullptr) {
        std::exchange(disabled_, nullptr)->Enable(true);
    }
    style &= ~static_cast<DWORD>(WS_VISIBLE);
    const Window* before = FindWindow(focus_before_);
    PassFocus(before == nullptr || !before->IsOpenToInput() ? nullptr : focus_before_);
    if (auto* below = dynamic_cast<Dialog*>(owner); below != nullptr && Focus() == nullptr) {
        below->GoTo(0, false);
    }
}

Dialog* DialogOf(HWND handle, std::string_view operation) {
    Window* window = WindowOf(handle, operation);
    auto* dialog = dynamic_cast<Dialog*>(window);
    if (window != nullptr && dialog == nullptr) {
        MisuseOfHandle(operation, "dialog", handle);
    }
    return dialog;
}

namespace {

// A slot that a dialog procedure may use; null for any other index.
LONG_PTR* SlotOf(HWND handle, int index, std::string_view operation) {
    Dialog* dialog = DialogOf(handle, operation);
    if (dialog == nullptr || (index != DWLP_USER && index != DWLP_MSGRESULT && index != DWLP_DLGPROC)) {
        return nullptr;
    }
    return index == DWLP_USER        ? &dialog->user
           : index == DWLP_MSGRESULT ? &dialog->message_result
                                     : reinterpret_cast<LONG_PTR*>(&dialog->procedure);
}

} // namespace
} // namespace sim

using sim::Operation;
using sim::Reach;

INT_PTR DialogBoxParamW(HINSTANCE instance, LPCWSTR name, HWND parent, DLGPROC procedure, LPARAM parameter) {
    const sim::DialogTemplate* form = sim::FindDialog(instance, name);
    sim::Window* above = parent == nullptr ? nullptr : sim::WindowOf(parent, __func__);
    const auto number = [=] { return std::to_string(reinterpret_cast<ULONG_PTR>(name)); };
    if (Operation(Reach::Screen, __func__, number) || form == nullptr) {
        return -1;
    }
    if (parent != nullptr && above == nullptr) {
        return 0;
    }
    sim::Dialog dialog;
    dialog.procedure = procedure;
    dialog.OpenOver(above);
    dialog.Furnish(*form);
    dialog.Initialise(parameter);
    dialog.Run(IDCANCEL);
    return dialog.result;
}

// For a page this hides the page, as on Windows, and the sheet stays open.
BOOL EndDialog(HWND handle, INT_PTR result) {
    sim::Dialog* dialog = sim::DialogOf(handle, __func__);
    if (Operation(Reach::Screen, __func__, [=] { return std::to_string(result); }) || dialog == nullptr) {
        return FALSE;
    }
    dialog->End(result);
    return TRUE;
}

HWND GetDlgItem(HWND handle, int id) {
    const sim::Window* dialog = sim::WindowOf(handle, __func__);
    if (Operation(Reach::Screen, __func__, [=] { return std::to_string(id); }) || dialog == nullptr) {
        return nullptr;
    }
    const sim::Window* control = dialog->Child(id);
    return control == nullptr ? nullptr : control->handle;
}

BOOL CheckDlgButton(HWND handle, int id, UINT state) {
    const sim::Window* dialog = sim::WindowOf(handle, __func__);
    sim::Window* button = dialog == nullptr ? nullptr : dialog->Child(id);
    const auto detail = [=] { return std::to_string(id) + (state == BST_UNCHECKED ? " off" : " on"); };
    if (Operation(Reach::Screen, __func__, detail) || button == nullptr) {
        return FALSE;
    }
    button->Answer(BM_SETCHECK, state, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND handle, int id) {
    const sim::Window* dialog = sim::WindowOf(handle, __func__);
    sim::Window* button = dialog == nullptr ? nullptr : dialog->Child(id);
    if (Operation(Reach::Screen, __func__, [=] { return std::to_string(id); }) || button == nullptr) {
        return BST_UNCHECKED;
    }
    return static_cast<UINT>(button->Answer(BM_GETCHECK, 0, 0));
}

LONG_PTR SetWindowLongPtrW(HWND handle, int index, LONG_PTR value) {
    LONG_PTR* slot = sim::SlotOf(handle, index, __func__);
    return slot == nullptr ? 0 : std::exchange(*slot, value);
}

LONG_PTR GetWindowLongPtrW(HWND handle, int index) {
    if (index >= 0) {
        const LONG_PTR* slot = sim::SlotOf(handle, index, __func__);
        return slot == nullptr ? 0 : *slot;
    }
    const sim::Window* window = sim::WindowOf(handle, __func__);
    if (window == nullptr || (index != GWLP_ID && index != GWL_STYLE)) {
        return 0; // no window here has an extended style
    }
    return index == GWLP_ID ? window->id : static_cast<LONG>(window->style);
}
