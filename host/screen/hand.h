// What a person's hand causes: the messages that follow from a click, a pick or a drag. Each operation throws
// Refusal if a hand could not do it because the control is disabled or of the wrong kind. A modal window that
// opens in consequence runs inside the operation.
#pragma once

#include "host/screen/naming.h"

namespace host {

void Click(const Control& button_or_check);
void SetCheck(const Control& check, bool checked);
void Pick(const Control& combo_or_list, std::string_view item);
// -1 leaves no item selected.
void PickItem(const Control& combo_or_list, int item);
// The position must be within the slider's range.
void Slide(const Control& slider, long position);
// The slider itself keeps the position within its range.
void Drag(const Control& slider, long position);

// Gives the keyboard focus to a control of a window.
void FocusOn(const Window& window, const Control& control);

// Leaves the window without a change if it offers a way; a question is answered with No.
void Dismiss(const Window& window);

// The button with this number on a sheet, dialog or box.
const Control& FindButton(const Window& window, int id);

} // namespace host
