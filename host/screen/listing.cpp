#include "host/screen/listing.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>

#include "host/screen/naming.h"
#include "host/text.h"

namespace host {
namespace {

std::string Hexadecimal(const std::vector<BYTE>& data) {
    std::string result;
    for (const BYTE byte : data) {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%s%02x", result.empty() ? "" : " ",
                      static_cast<unsigned>(byte));
        result += digits;
    }
    return result;
}

std::string TypeName(DWORD type) {
    static constexpr std::pair<DWORD, const char*> names[] = {
        {REG_NONE, "none"},     {REG_SZ, "text"},     {REG_EXPAND_SZ, "text, expanding"},
        {REG_BINARY, "binary"}, {REG_DWORD, "dword"}, {REG_MULTI_SZ, "texts"},
        {REG_QWORD, "qword"}};
    for (const auto& [number, name] : names) {
        if (type == number) {
            return name;
        }
    }
    return "type " + std::to_string(type);
}

std::string Told(const StoreValue& value) {
    const bool dword = value.type == REG_DWORD && value.data.size() == 4;
    if (dword || (value.type == REG_QWORD && value.data.size() == 8)) {
        std::uint64_t number = 0;
        std::memcpy(&number, value.data.data(), value.data.size());
        char text[48];
        std::snprintf(text, sizeof text, "%" PRIu64 " (0x%" PRIX64 ")", number, number);
        return text;
    }
    // A text is told as such only if nothing of it is lost by that.
    const Text text = TextIn(value.data);
    if ((value.type == REG_SZ || value.type == REG_EXPAND_SZ) &&
        value.data.size() == (text.size() + 1) * sizeof(WCHAR)) {
        return Quoted(ToUtf8(text));
    }
    return Hexadecimal(value.data);
}

std::string StateOf(const Control& control) {
    std::string state = control.enabled ? "enabled" : "disabled";
    if (control.kind == Kind::Check) {
        state += control.checked ? ", checked" : ", not checked";
    }
    if (control.kind == Kind::Combo || control.kind == Kind::List) {
        const auto selected = static_cast<std::size_t>(control.selection);
        if (control.selection < 0 || selected >= control.items.size()) {
            state += ", nothing of " + std::to_string(control.items.size());
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

std::string NameOf(const Device& device) {
    return !device.friendly_name.empty() ? ToUtf8(device.friendly_name)
           : !device.description.empty() ? ToUtf8(device.description)
                                         : device.id;
}

const StoreValue* FindValue(const std::vector<StoreValue>& store, std::string_view name) {
    const std::string wanted = Folded(name);
    for (const StoreValue& value : store) {
        if (Folded(ToUtf8(value.name)) == wanted) {
            return &value;
        }
    }
    return nullptr;
}

Text TextIn(const std::vector<BYTE>& data) {
    Text text(data.size() / sizeof(WCHAR), 0);
    if (!text.empty()) {
        std::memcpy(text.data(), data.data(), text.size() * sizeof(WCHAR));
    }
    return text.substr(0, text.find(WCHAR{0}));
}

std::string TextOf(const StoreValue& value) {
    return ToUtf8(TextIn(value.data));
}

bool NumberOf(const StoreValue& value, unsigned long& number) {
    std::uint32_t bytes = 0;
    if (value.data.size() != sizeof bytes) {
        return false;
    }
    std::memcpy(&bytes, value.data.data(), sizeof bytes);
    number = bytes;
    return true;
}

Lines ListDevices(const std::vector<Device>& devices) {
    int widest = 0;
    for (const Device& device : devices) {
        widest = std::max(widest, Columns(NameOf(device)));
    }
    Lines lines;
    for (std::size_t index = 0; index < devices.size(); ++index) {
        const Device& device = devices[index];
        const std::string number = std::to_string(index + 1);
        lines.push_back(std::string(number.size() < 3 ? 3 - number.size() : 0, ' ') + number + "  " +
                        (device.kind == DeviceKind::Board ? "board  " : "port   ") +
                        PaddedTo(NameOf(device), widest) + "  " + device.id +
                        (device.present ? "" : "  (absent)"));
    }
    return lines;
}

Lines ListStore(const std::vector<StoreValue>& store) {
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
