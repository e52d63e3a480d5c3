// A picture of the screen in characters, from the places that the windows report. The window in front has a
// double frame and covers those behind it, as on a real screen; ~ marks a disabled control.
#pragma once

#include <string>
#include <vector>

#include "host/screen/screen.h"

namespace host {

// The windows from the backmost to the frontmost; one line of text per row, the legend last.
std::vector<std::string> Draw(const std::vector<Window>& windows);

// A control's text, with ~ before it if the control is disabled.
std::string Marked(const Control& control, const std::string& text);

} // namespace host
