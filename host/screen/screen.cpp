#include "host/screen/screen.h"

#include <algorithm>

#include "host/text.h"
#include "host/worlds/world.h"

namespace host {
namespace {

LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(window, message, wParam, lParam);
}

std::string WindowText(HWND window) {
    Text text(static_cast<std::size_t>(std::max(0, GetWindowTextLengthW(window))) + 1, 0);
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return ToUtf8({text.data(), static_cast<std::size_t>(std::max(0, length))});
}

std::string ClassName(HWND window) {
    WCHAR name[64];
    const int length = GetClassNameW(window, name, ARRAYSIZE(name));
    return Folded(ToUtf8({name, static_cast<std::size_t>(std::max(0, length))}));
}

// Pages and modal dialogs are windows of this class.
constexpr const char* dialog_class = "#32770";
constexpr const char* tab_class = "systabcontrol32";

// The height reported for a combo may include the list that it drops down.
constexpr int closed_combo = 14;

// The pixels of 4,000 by 8,000 dialog units.
RECT Scale(HWND dialog) {
    RECT scale{0, 0, 4000, 8000};
    if (!MapDialogRect(dialog, &scale) || scale.right <= 0 || scale.bottom <= 0) {
        scale = {0, 0, 4000, 8000};
    }
    return scale;
}

int Rounded(long long value, long long times, long long by) {
    return static_cast<int>((value * times * 2 + (value < 0 ? -by : by)) / (by * 2));
}

Area AreaOn(const RECT& place, const RECT& origin, const RECT& scale) {
    return {Rounded(place.left - origin.left, 4000, scale.right),
            Rounded(place.top - origin.top, 8000, scale.bottom),
            Rounded(place.right - place.left, 4000, scale.right),
            Rounded(place.bottom - place.top, 8000, scale.bottom)};
}

std::vector<std::string> ReadItems(HWND list, UINT count, UINT length_of, UINT text_of) {
    std::vector<std::string> items;
    const LRESULT all = Ask(list, count);
    for (LRESULT item = 0; item < all; ++item) {
        const LRESULT length = Ask(list, length_of, static_cast<WPARAM>(item));
        Text text(static_cast<std::size_t>(std::max<LRESULT>(0, length)) + 1, 0);
        const LRESULT got =
            Ask(list, text_of, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(text.data()));
        items.push_back(ToUtf8({text.data(), static_cast<std::size_t>(std::max<LRESULT>(0, got))}));
    }
    return items;
}

void ReadTable(Control& table, const RECT& scale) {
    WCHAR text[260];
    for (int index = 0;; ++index) {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = text;
        column.cchTextMax = ARRAYSIZE(text);
        text[0] = 0;
        if (!Ask(table.window, LVM_GETCOLUMNW, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&column))) {
            break;
        }
        table.columns.push_back({ToUtf8(column.pszText), Rounded(column.cx, 4000, scale.right)});
    }
    const LRESULT rows = Ask(table.window, LVM_GETITEMCOUNT);
    for (LRESULT row = 0; row < rows; ++row) {
        auto& cells = table.rows.emplace_back();
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            LVITEMW item{};
            item.iSubItem = static_cast<int>(column);
            item.pszText = text;
            item.cchTextMax = ARRAYSIZE(text);
            text[0] = 0;
            Ask(table.window, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
            cells.push_back(ToUtf8(item.pszText));
        }
    }
}

std::optional<Kind> KindOf(const std::string& class_name, DWORD style) {
    if (class_name == "button") {
        switch (style & BS_TYPEMASK) {
        case BS_GROUPBOX:
            return Kind::Group;
        case BS_AUTOCHECKBOX:
            return Kind::Check;
        default:
            return Kind::Button;
        }
    }
    constexpr DWORD label_type = 0x1F;
    if (class_name == "static" && (style & label_type) != SS_ICON) {
        return Kind::Label;
    }
    static constexpr std::pair<const char*, Kind> classes[] = {{"combobox", Kind::Combo},
                                                               {"listbox", Kind::List},
                                                               {"syslistview32", Kind::Table},
                                                               {"msctls_trackbar32", Kind::Slider}};
    for (const auto& [name, kind] : classes) {
        if (class_name == name) {
            return kind;
        }
    }
    return {};
}

void ReadState(Control& control, DWORD style, const RECT& scale) {
    switch (control.kind) {
    case Kind::Check:
        control.checked = Ask(control.window, BM_GETCHECK) == BST_CHECKED;
        break;
    case Kind::Combo:
        control.selection = static_cast<int>(Ask(control.window, CB_GETCURSEL));
        control.dropped = Ask(control.window, CB_GETDROPPEDSTATE) != 0;
        control.items = ReadItems(control.window, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
        break;
    case Kind::List:
        control.selection = static_cast<int>(Ask(control.window, LB_GETCURSEL));
        control.items = ReadItems(control.window, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
        break;
    case Kind::Table:
        ReadTable(control, scale);
        break;
    case Kind::Slider:
        control.ticks = (style & TBS_AUTOTICKS) != 0;
        control.position = static_cast<int>(Ask(control.window, TBM_GETPOS));
        control.minimum = static_cast<int>(Ask(control.window, TBM_GETRANGEMIN));
        control.maximum = static_cast<int>(Ask(control.window, TBM_GETRANGEMAX));
        break;
    case Kind::Label:
        control.right_aligned = (style & 0x1F) == SS_RIGHT;
        break;
    case Kind::Button:
        control.is_default = (style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
        break;
    case Kind::Group:
        break;
    }
}

void ReadControls(HWND parent, bool of_frame, std::vector<Control>& controls) {
    const RECT scale = Scale(parent);
    RECT origin{};
    GetWindowRect(parent, &origin);
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        const DWORD style = static_cast<DWORD>(GetWindowLongPtrW(child, GWL_STYLE));
        const auto kind = KindOf(ClassName(child), style);
        if (!kind || !IsWindowVisible(child)) {
            continue;
        }
        Control control;
        control.window = child;
        control.kind = *kind;
        const int id = GetDlgCtrlID(child);
        control.id = id == 0xFFFF ? -1 : id;
        control.text = WindowText(child);
        RECT place{};
        GetWindowRect(child, &place);
        control.area = AreaOn(place, origin, scale);
        if (control.kind == Kind::Combo) {
            control.area.cy = std::min(control.area.cy, closed_combo);
        }
        control.enabled = IsWindowEnabled(child) != FALSE;
        control.focused = GetFocus() == child;
        control.of_frame = of_frame;
        ReadState(control, style, scale);
        for (const std::string& item : control.items) {
            control.widest_item = std::max(control.widest_item, Columns(item));
        }
        controls.push_back(std::move(control));
    }
}

} // namespace

const char* KindName(Kind kind) {
    static constexpr const char* names[] = {"group", "label", "button", "check",
                                            "combo", "list",  "table",  "slider"};
    return names[static_cast<std::size_t>(kind)];
}

Window ReadWindow(HWND handle, bool box) {
    Window window;
    window.handle = handle;
    window.title = WindowText(handle);
    HWND page = nullptr;
    for (HWND child = GetWindow(handle, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        if (ClassName(child) == dialog_class && IsWindowVisible(child) != 0) {
            page = child;
        }
        window.page_focused = window.page_focused || (ClassName(child) == tab_class && GetFocus() == child);
    }
    if (page != nullptr) {
        window.page = WindowText(page);
        ReadControls(page, false, window.controls);
    }
    window.kind = box ? WindowKind::Box : page != nullptr ? WindowKind::Sheet : WindowKind::Dialog;
    ReadControls(handle, page != nullptr, window.controls);
    RECT place{};
    const HWND inner = page != nullptr ? page : handle;
    GetWindowRect(inner, &place);
    const Area area = AreaOn(place, place, Scale(inner));
    window.cx = area.cx;
    window.cy = area.cy;
    return window;
}

std::string SelectedItem(const Control& control) {
    const auto selected = static_cast<std::size_t>(control.selection);
    return control.selection >= 0 && selected < control.items.size() ? control.items[selected] : "";
}

void MarkChanged(Window& window, std::optional<Window>& stored) {
    const auto same = [](const Control& one, const Control& other) {
        return one.checked == other.checked && one.position == other.position &&
               SelectedItem(one) == SelectedItem(other);
    };
    if (stored) {
        for (Control& control : window.controls) {
            const auto before = std::ranges::find(stored->controls, control.window, &Control::window);
            const bool changed = before != stored->controls.end() && !same(*before, control);
            if (changed && control.kind == Kind::List) {
                stored.reset();
                break;
            }
            control.changed = changed;
        }
    }
    if (!stored) {
        std::ranges::for_each(window.controls, [](Control& control) { control.changed = false; });
        stored = window;
    }
}

bool IsInside(const Control& control, const Control& group) {
    return group.kind == Kind::Group && &control != &group && control.area.x >= group.area.x &&
           control.area.x < group.area.x + group.area.cx && control.area.Middle() > group.area.y &&
           control.area.Middle() < group.area.y + group.area.cy;
}

std::string BoxText(const Window& box) {
    std::string text;
    for (const Control& control : box.controls) {
        if (control.kind == Kind::Label) {
            text += control.text;
        }
    }
    return text;
}

std::string ButtonNames(const Window& window) {
    std::string names;
    for (const Control& control : window.controls) {
        if (control.kind == Kind::Button) {
            names += (names.empty() ? "" : ", ") + Shown(control.text);
        }
    }
    return names;
}

bool IsOpen(HWND window) {
    return IsWindow(window) != 0 && IsWindowVisible(window) != 0;
}

} // namespace host
