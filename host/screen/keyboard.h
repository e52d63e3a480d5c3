// What a person's key causes. The system's own handling of a dialog decides that: a key only becomes the
// messages that a keyboard sends, to the window with the focus. A modal window that opens in consequence runs
// inside the operation.
#pragma once

#include "platform/platform.h"

namespace host {

// If the key has a letter, `code` is 0.
struct Key {
    UINT code = 0; // VK_TAB and the like
    WCHAR letter = 0;
    bool shift = false;
    bool alt = false;
};

// The window must be a top-level one, and in front.
void PressKey(HWND front, const Key& key);

} // namespace host
