#include "host/screen/listing.h"

#include <algorithm>

#include "host/screen/naming.h"
#include "host/text.h"

namespace host {
namespace {

std::string StateOf(const Control& control) {
    std::string state = control.enabled ? "enabled" : "disabled";
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
                        StateOf(control));
        const auto row_of = [&](const std::vector<std::string>& cells) {
            std::string row = std::string(16, ' ');
            for (std::size_t cell = 0; cell < cells.size(); ++cell) {
                row += (cell ? " | " : "") + cells[cell];
            }
            lines.push_back(row);
        };
        if (control.kind == Kind::List) {
            for (const std::string& item : control.items) {
                row_of({item});
            }
        }
        for (const auto& row : control.rows) {
            row_of(row);
        }
    }
    return lines;
}

} // namespace host
