// What a person's key causes. The system's own handling of a dialog decides: here a key only becomes the
// messages that a keyboard sends, to the window with the focus. A modal window that opens in consequence runs
// inside the operation.
#pragma once

#include "platform/platform.h"

namespace host {

// A key with a letter has that letter alone: `code` then is 0.
struct Key {
    UINT code = 0; // VK_TAB and its like
    WCHAR letter = 0;
    bool shift = false;
    bool alt = false;
};

// The window must be one of the top level, and in front.
void PressKey(HWND front, const Key& key);

} // namespace host
