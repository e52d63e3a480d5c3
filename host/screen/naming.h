// How a person names what is on the screen: a control by its number, its caption or the caption of the label
// before it; an item of a list by its text, the first word of it, or #n.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "host/screen/screen.h"

namespace host {

// A command that can't be carried out. The text says what would be right. Nothing has changed.
struct Refusal : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The name of a control: its own caption or that of the label to the left of it on the same line, as shown.
// Empty for a list without a label.
std::string CallName(const Window& window, const Control& control);

// The control that a label belongs to: the next one to the right of it on its line; null if there is none.
const Control* LabelledBy(const Window& window, const Control& label);

// The control that `name` means; throws Refusal if there is none, or more than one. A page's control takes
// precedence over a button of the sheet with the same caption.
const Control& FindControl(const Window& window, std::string_view name);

// The index of the item, from 0; throws Refusal.
int FindItem(const Control& list, std::string_view name);

} // namespace host
