// A picture of the screen in characters, from the places that the windows tell. The window in front has a
// double frame and lies over those behind it, as in life; ~ marks what is disabled.
#pragma once

#include <string>
#include <vector>

#include "host/screen/screen.h"

namespace host {

// The windows from the backmost to the one in front; a line of text each row, the legend last.
std::vector<std::string> Draw(const std::vector<Window>& windows);

// A control's text, with ~ before it if the control is disabled.
std::string Marked(const Control& control, const std::string& text);

} // namespace host
