#include "host/screen/listing.h"

#include <algorithm>

#include "host/screen/naming.h"
#include "host/text.h"

namespace host {
namespace {

// What it holds, after a comma; empty if it holds nothing.
std::string ContentOf(const Control& control) {
    std::string state;
    if (control.kind == Kind::Check) {
        state += control.checked ? ", checked" : ", not checked";
    }
    if (control.kind == Kind::Combo || control.kind == Kind::List) {
        const auto selected = static_cast<std::size_t>(control.selection);
        if (control.selection < 0 || selected >= control.items.size()) {
            state += ", none of " + std::to_string(control.items.size());
        } else {
            state += ", " + std::to_string(selected + 1) + " of " + std::to_string(control.items.size()) +
                     ": " + control.items[selected];
        }
    }
    if (control.kind == Kind::Slider) {
        state += ", " + std::to_string(control.position) + " in " + std::to_string(control.minimum) + ".." +
                 std::to_string(control.maximum);
    }
    if (control.kind == Kind::Table) {
        state += ", " + std::to_string(control.rows.size()) + (control.rows.size() == 1 ? " row" : " rows");
    }
    return state;
}

// The lines below a control's own.
Lines RowsOf(const Control& control) {
    Lines lines;
    if (control.kind == Kind::List) {
        lines = control.items;
    }
    for (const auto& cells : control.rows) {
        std::string& row = lines.emplace_back();
        for (std::size_t cell = 0; cell < cells.size(); ++cell) {
            row += (cell ? " | " : "") + cells[cell];
        }
    }
    return lines;
}

} // namespace

Lines ListDevices(const Records& records) {
    int widest = 0;
    for (const DeviceRecord& device : records.devices) {
        widest = std::max(widest, device.listed != 0 ? Columns(NameOf(device)) : 0);
    }
    Lines lines;
    for (const DeviceRecord& device : records.devices) {
        if (device.listed != 0) {
            const std::string number = std::to_string(device.listed);
            lines.push_back(std::string(number.size() < 3 ? 3 - number.size() : 0, ' ') + number + "  " +
                            (device.role == Role::Board ? "board  " : "port   ") +
                            PaddedTo(NameOf(device), widest) + "  " + device.id +
                            (device.present ? "" : "  (absent)"));
        }
    }
    return lines;
}

Lines ListStore(const StoreValues& store) {
    int widest = 0;
    for (const StoreValue& value : store) {
        widest = std::max(widest, Columns(ToUtf8(value.name)));
    }
    Lines lines;
    for (const StoreValue& value : store) {
        lines.push_back("  " + PaddedTo(ToUtf8(value.name), widest) + "  " +
                        PaddedTo(TypeName(value.type), 6) + "  " + Told(value));
    }
    return lines;
}

Lines ListControls(const Window& window) {
    Lines lines;
    for (const Control& control : window.controls) {
        const std::string id = control.id < 0 ? "-" : std::to_string(control.id);
        const std::string name = CallName(window, control);
        lines.push_back(std::string(id.size() < 6 ? 6 - id.size() : 0, ' ') + id + "  " +
                        PaddedTo(KindName(control.kind), 6) + "  " + PaddedTo(Quoted(name), 30) + "  " +
                        (control.enabled ? "enabled" : "disabled") + ContentOf(control));
        for (const std::string& row : RowsOf(control)) {
            lines.push_back(std::string(16, ' ') + row);
        }
    }
    return lines;
}

Lines ListWindow(const Window& window) {
    Lines lines = {window.title + (window.page.empty() ? "" : ", page " + window.page)};
    if (window.kind == WindowKind::Box) {
        lines.push_back(BoxText(window));
    }
    const Control* group = nullptr;
    for (const Control& control : window.controls) {
        const auto around = std::ranges::find_if(
            window.controls, [&](const Control& other) { return IsInside(control, other); });
        const Control* const own = around != window.controls.end() ? &*around : nullptr;
        const bool told = control.kind == Kind::Label &&
                          (window.kind == WindowKind::Box || LabelledBy(window, control) != nullptr);
        if (control.kind == Kind::Group || told) {
            continue;
        }
        if (own != group && own != nullptr) {
            lines.push_back("group" + (own->text.empty() ? "" : ' ' + Shown(own->text)));
        }
        group = own;
        const std::string indent(group != nullptr ? 2 : 0, ' ');
        std::string name = CallName(window, control);
        name.resize(name.size() - (name.ends_with(':') ? 1 : 0));
        lines.push_back(indent + KindName(control.kind) + (name.empty() ? "" : ' ' + name) +
                        ContentOf(control) + (control.enabled ? "" : ", disabled") +
                        (control.changed ? ", not stored" : ""));
        for (const std::string& row : RowsOf(control)) {
            lines.push_back(indent + "  " + row);
        }
    }
    return lines;
}

} // namespace host
