// The windows on the screen, read into plain records with all that the drawing, the listing and the hand
// need, so that none of them asks a window anything. A record describes one moment and is read anew for each
// use.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace host {

// In dialog units, from the upper left corner of the dialog or page that holds the control.
struct Area {
    int x = 0, y = 0, cx = 0, cy = 0;
    int Middle() const { return y + cy / 2; }
};

enum class Kind { Group, Label, Button, Check, Combo, List, Table, Slider };

// The name of the kind in a listing.
const char* KindName(Kind kind);

struct TableColumn {
    std::string title;
    int cx = 0; // dialog units
};

// Texts are UTF-8. Fields that do not apply to a control's kind keep these values.
struct Control {
    HWND window = nullptr;
    int id = -1; // -1 for all without one of their own
    Kind kind = Kind::Label;
    std::string text; // with its &
    Area area;        // of a combo, without its list
    bool enabled = true;
    bool focused = false;
    bool is_default = false; // a button that Enter presses
    bool dropped = false;    // a combo whose list is open
    bool changed = false;    // holds something else than what is stored
    bool of_frame = false;   // a button of the sheet itself, not of its page
    bool right_aligned = false;
    bool checked = false;
    int selection = -1; // of a combo or list
    std::vector<std::string> items;
    int widest_item = 0; // columns
    bool ticks = false;
    int position = 0, minimum = 0, maximum = 0; // of a slider
    std::vector<TableColumn> columns;
    std::vector<std::vector<std::string>> rows;
};

enum class WindowKind { Sheet, Dialog, Box };

struct Window {
    HWND handle = nullptr;
    WindowKind kind = WindowKind::Dialog;
    std::string title;
    std::string page;              // the title of the sheet's page
    bool page_focused = false;     // the tab of that page has the focus
    int cx = 0, cy = 0;            // of the dialog or the page, in dialog units
    std::vector<Control> controls; // the visible ones in tab order, the page's before the sheet's own
};

// `box` says that the window is a message box. A sheet is recognised by its page.
Window ReadWindow(HWND window, bool box);

// The item that is selected in a combo or list; empty if none is.
std::string SelectedItem(const Control& control);

// Marks the controls that differ from what the window showed when it last showed what is stored: when it was
// opened, and since another entry was chosen in a list of it. `stored` is that window and is taken anew if it
// is empty; its owner empties it when something has been stored.
void MarkChanged(Window& window, std::optional<Window>& stored);

// Whether the control is in that group.
bool IsInside(const Control& control, const Control& group);

// The captions of its buttons, as shown, separated by commas.
std::string ButtonNames(const Window& window);

// The text of a message box: its labels without the icon.
std::string BoxText(const Window& box);

// False once the window has ended, even if it is not destroyed yet.
bool IsOpen(HWND window);

} // namespace host
