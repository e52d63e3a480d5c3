#include "host/full_screen/device_list.h"

#include <algorithm>

#include "host/diagnosis/published_values.h"
#include "host/text.h"

namespace host {
namespace {

constexpr auto one_word = std::chrono::seconds(1); // letters within this time are of one word

bool Has(const std::string& text, const std::string& folded) {
    return Folded(text).find(folded) != std::string::npos;
}

} // namespace

void DeviceList::Read(World& world) {
    devices_.clear();
    for (const DeviceRecord& device : world.Describe().devices) {
        if (device.listed == 0) {
            break;
        }
        const std::string reason = WhyNoPage(device.role, device.store);
        devices_.push_back({device.role == Role::Port ? StoredText(device.store, "PortName") : std::string(),
                            NameOf(device), reason.empty(),
                            !reason.empty()                                ? "no page: " + reason
                            : !device.present                              ? "absent"
                            : StoredNumber(device.store, "ChlOpened") != 0 ? "open"
                                                                           : ""});
    }
    selected_ = std::min(selected_, devices_.empty() ? 0 : devices_.size() - 1);
}

void DeviceList::Draw(Canvas& canvas, const Cells& within, bool is_active) {
    if (devices_.empty()) {
        constexpr const char* reason = "This file has no boards and no ports. F7 says what it does not hold.";
        int row = within.top;
        for (const std::string& line : BrokenAt(reason, within.columns - 2)) {
            canvas.Write(row++, within.left + 1, line, within.columns - 2);
        }
        return;
    }
    const int all = static_cast<int>(devices_.size()), selected = static_cast<int>(selected_);
    first_ = std::clamp(first_, std::max(0, selected - within.rows + 1), selected);
    first_ = std::clamp(first_, 0, std::max(0, all - within.rows));
    for (int row = 0; row < within.rows && first_ + row < all; ++row) {
        const int index = first_ + row;
        const auto& [port, name, has_page, state] = devices_[static_cast<std::size_t>(index)];
        const bool is_selected = index == selected;
        const std::string number = std::to_string(index + 1);
        const std::string line =
            (is_selected ? ">" : " ") + std::string(number.size() < 3 ? 3 - number.size() : 0, ' ') + number +
            ' ' + (port.empty() ? "" : PaddedTo(port, 7)) + name + (state.empty() ? "" : "  (" + state + ')');
        canvas.Write(within.top + row, within.left, line, within.columns - 2,
                     {is_selected && is_active, is_selected, !state.empty(), 0});
        if (is_selected && is_active) {
            canvas.PointAt(within.top + row, within.left);
        }
    }
    const int right = within.left + within.columns - 1;
    if (first_ > 0) {
        canvas.Write(within.top, right, "^", 1);
    }
    if (first_ + within.rows < all) {
        canvas.Write(within.top + within.rows - 1, right, "v", 1);
    }
}

bool DeviceList::Take(const Event& event, const Cells& within) {
    const int last = static_cast<int>(devices_.size()) - 1, page = within.rows - 1;
    int wanted = static_cast<int>(selected_);
    if (event.kind == Event::Kind::Press) {
        const int row = event.row - within.top + first_;
        if (!within.Has(event.column, event.row) || row > last) {
            return false;
        }
        if (row == wanted) {
            return true;
        }
        wanted = row;
    } else if (event.kind == Event::Kind::WheelUp || event.kind == Event::Kind::WheelDown) {
        wanted += event.kind == Event::Kind::WheelUp ? -wheel_step : wheel_step;
    } else if (event.kind == Event::Kind::Key && event.key.letter != 0) {
        const auto now = std::chrono::steady_clock::now();
        const std::string letter = ToUtf8(Text(1, event.key.letter));
        typed_ = now - std::exchange(typed_at_, now) > one_word ? letter : typed_ + letter;
        if (!FindBegun(typed_)) {
            typed_ = letter;
            FindBegun(typed_);
        }
        return false;
    } else if (event.kind == Event::Kind::Key) {
        if (event.key.code == VK_RETURN) {
            return !devices_.empty();
        }
        const std::pair<UINT, int> moves[] = {
            {VK_UP, wanted - 1},      {VK_DOWN, wanted + 1}, {VK_PRIOR, wanted - page},
            {VK_NEXT, wanted + page}, {VK_HOME, 0},          {VK_END, last}};
        if (const auto move = std::ranges::find(moves, event.key.code, &std::pair<UINT, int>::first);
            move != std::end(moves)) {
            wanted = move->second;
        }
    }
    typed_.clear();
    selected_ = static_cast<std::size_t>(std::clamp(wanted, 0, std::max(0, last)));
    return false;
}

// The letters of one word go on from the device that they have found so far.
bool DeviceList::FindBegun(const std::string& begun) {
    const std::string wanted = Folded(begun);
    const std::size_t from = begun.size() > 1 ? selected_ : selected_ + 1;
    for (std::size_t step = 0; step < devices_.size(); ++step) {
        const std::size_t index = (from + step) % devices_.size();
        const Listed& device = devices_[index];
        if (Folded(device.port).starts_with(wanted) || Folded(device.name).starts_with(wanted)) {
            selected_ = index;
            return true;
        }
    }
    return false;
}

bool DeviceList::Find(const std::string& text) {
    const std::string wanted = Folded(text);
    for (std::size_t step = 1; step <= devices_.size(); ++step) {
        const std::size_t index = (selected_ + step) % devices_.size();
        const Listed& device = devices_[index];
        if (Has(device.port, wanted) || Has(device.name, wanted) || Has(device.state, wanted)) {
            selected_ = index;
            return true;
        }
    }
    return false;
}

} // namespace host
