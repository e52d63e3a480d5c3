#include "host/screen/naming.h"

#include <algorithm>
#include <cstdlib>

#include "host/text.h"

namespace host {
namespace {

bool HasOwnCaption(const Control& control) {
    return control.kind == Kind::Button || control.kind == Kind::Check;
}
bool IsCalledByLabel(const Control& control) {
    return control.kind == Kind::Combo || control.kind == Kind::Slider || control.kind == Kind::List ||
           control.kind == Kind::Table;
}

std::string Numbered(const Window& window, const std::vector<const Control*>& controls) {
    std::string list;
    for (const Control* control : controls) {
        const std::string name = CallName(window, *control);
        list += (list.empty() ? "" : ", ") +
                (control->id < 0 ? std::string{"-"} : std::to_string(control->id)) +
                (name.empty() ? "" : " (" + name + ")");
    }
    return list;
}

} // namespace

const Control* LabelledBy(const Window& window, const Control& label) {
    constexpr int line = 6; // dialog units between the middles of controls on one line
    const Control* nearest = nullptr;
    for (const Control& control : window.controls) {
        if (!control.of_frame && IsCalledByLabel(control) && control.area.x > label.area.x &&
            std::abs(control.area.Middle() - label.area.Middle()) <= line &&
            (nearest == nullptr || control.area.x < nearest->area.x)) {
            nearest = &control;
        }
    }
    return nearest;
}

std::string CallName(const Window& window, const Control& control) {
    if (!IsCalledByLabel(control)) {
        return Shown(control.text);
    }
    const Control* first = nullptr;
    for (const Control& label : window.controls) {
        if (label.kind == Kind::Label && LabelledBy(window, label) == &control &&
            (first == nullptr || label.area.x < first->area.x)) {
            first = &label;
        }
    }
    return first != nullptr ? Shown(first->text) : std::string{};
}

const Control& FindControl(const Window& window, std::string_view name) {
    const std::string wanted = NameOf(name);
    long number = 0;
    const bool is_number = ParseNumber(name, number);
    std::vector<const Control*> found, all;
    for (const Control& control : window.controls) {
        const Control* meant = control.kind == Kind::Label ? LabelledBy(window, control) : &control;
        if (HasOwnCaption(control) || IsCalledByLabel(control)) {
            all.push_back(&control);
        }
        if (is_number && control.id >= 0 && control.id == number) {
            meant = &control;
        } else if (wanted.empty() || IsCalledByLabel(control) || NameOf(control.text) != wanted ||
                   meant == nullptr) {
            continue;
        }
        if (control.of_frame && !found.empty()) {
            continue;
        }
        if (std::find(found.begin(), found.end(), meant) == found.end()) {
            found.push_back(meant);
        }
    }
    if (found.size() == 1) {
        return *found.front();
    }
    const std::string quoted = Quoted(name);
    if (found.empty()) {
        throw Refusal("no control " + quoted + " in front; there are: " + Numbered(window, all));
    }
    throw Refusal(quoted + " means more than one control: " + Numbered(window, found));
}

int FindItem(const Control& list, std::string_view name) {
    const std::string in_list =
        Quoted(name) + " is not among the " + std::to_string(list.items.size()) + " items";
    long number = 0;
    if (name.starts_with('#') && ParseNumber(name.substr(1), number)) {
        if (number < 1 || static_cast<unsigned long>(number) > list.items.size()) {
            throw Refusal(in_list);
        }
        return static_cast<int>(number - 1);
    }
    const std::string wanted = Folded(name);
    std::vector<int> whole, begun;
    for (std::size_t item = 0; item < list.items.size(); ++item) {
        const std::string text = Folded(list.items[item]);
        if (text == wanted) {
            whole.push_back(static_cast<int>(item));
        } else if (!wanted.empty() && text.starts_with(wanted + ' ')) {
            begun.push_back(static_cast<int>(item));
        }
    }
    const auto& found = whole.empty() ? begun : whole;
    if (found.size() == 1) {
        return found.front();
    }
    if (found.size() > 1) {
        throw Refusal(Quoted(name) + " means items #" + std::to_string(found[0] + 1) + " and #" +
                      std::to_string(found[1] + 1) + ": name one by its number");
    }
    constexpr std::size_t few = 30;
    std::string items;
    for (const std::string& item : list.items) {
        items += (items.empty() ? ": " : ", ") + item;
    }
    throw Refusal(in_list + (list.items.size() <= few ? items : std::string{}));
}

} // namespace host
