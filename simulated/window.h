// The windows of the simulated machine as objects. A handle is a number that is never given out twice, so a
// stale handle is detected and never reaches another window.
//
// A parent owns its children; a top-level window lives on the stack of the modal call that shows it. Windows
// talk to each other through `Answer` and not through `windows_api.h`, because what a window does by itself
// is no operation of the logic. For the files of this folder only.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "simulated/catalogue.h"
#include "simulated/machine.h"

// Messages to windows that the library ignores.
#define WM_SETFOCUS 0x0007
#define LBN_SETFOCUS 4
#define LBN_KILLFOCUS 5
#define CBN_SETFOCUS 3
#define CBN_KILLFOCUS 4
#define PSPCB_ADDREF 0

namespace sim {

struct Window {
    const HWND handle;
    const WCHAR* const class_name;
    int id = 0;
    DWORD style = 0; // WS_VISIBLE and WS_DISABLED follow the window's state
    Text text;
    RECT place{};                                  // pixels of the screen
    Window* parent = nullptr;                      // of a child
    Window* owner = nullptr;                       // of a top-level window, itself one
    std::vector<std::unique_ptr<Window>> children; // in the order of the template

    explicit Window(const WCHAR* class_name);
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // The window's procedure. The base class handles the text, which is all that a label needs.
    virtual LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);

    Window& TopLevel();
    Window* Child(int number) const; // the first child with that number, or null
    void Enable(bool enable);
    // As the user sees it, with the state of all its ancestors.
    bool IsShown() const;
    bool IsOpenToInput() const;
};

// A window with a dialog procedure: a dialog, or a page of a sheet.
struct Dialog : Window {
    DLGPROC procedure = nullptr;
    int default_id = IDOK;       // of the button that Enter presses if the focus is on no button
    LONG_PTR user = 0;           // DWLP_USER
    LONG_PTR message_result = 0; // DWLP_MSGRESULT
    bool ended = false;
    INT_PTR result = 0;

    Dialog();
    ~Dialog() override;
    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Makes this a top-level window, owned by the one that holds `above` (may be null). The owner is disabled
    // meanwhile.
    void OpenOver(Window* above);
    // Takes title, size and controls from a template. The upper left corner of `place` must be set before.
    void Furnish(const DialogTemplate& form);
    // Sends WM_INITDIALOG and, if the procedure leaves the focus to the system, focuses the first control.
    void Initialise(LPARAM parameter);
    // Shows the window and calls the operator until the window has ended; `if_left` is the result if nobody
    // ends it.
    void Run(INT_PTR if_left);
    void End(INT_PTR value);

private:
    // WM_NEXTDLGCTL: moves the focus to the window that `to` names, or else to the next stop, or to the
    // previous one if `to` is not 0.
    void GoTo(WPARAM to, bool is_handle);

    Window* disabled_ = nullptr; // the owner, while this window keeps it disabled
    HWND focus_before_ = nullptr;
    bool top_level_ = false;
};

// The window of a handle, or null.
Window* FindWindow(HWND handle);
// The same for an operation that needs one. If there is none, sets the last error and, unless the handle is
// null, adds a line to `Machine::misuse` that names the operation.
Window* WindowOf(HWND handle, std::string_view operation);
Dialog* DialogOf(HWND handle, std::string_view operation);

// The window with the keyboard focus, or null.
HWND& Focus();
// Gives the focus to another window or to none, and tells both windows. Returns the one that had it.
HWND PassFocus(HWND window);
// Moves the focus as a key or a click does: the default button's mark moves along, to the button that gets
// the focus or back to the dialog's own.
void MoveFocus(Window& control);
// A message to the window that holds the control.
void TellParent(const Window& control, UINT message, WPARAM wParam);

std::unique_ptr<Window> MakeButton();
std::unique_ptr<Window> MakeComboBox();
std::unique_ptr<Window> MakeListBox();
std::unique_ptr<Window> MakeListView();
std::unique_ptr<Window> MakeTrackBar();
std::unique_ptr<Window> MakeTabControl();

// Dialog units to pixels, in the font of the dialogs.
constexpr LONG PixelsAcross(LONG units) {
    return (units * 6 + 2) / 4;
}
constexpr LONG PixelsDown(LONG units) {
    return (units * 13 + 4) / 8;
}

// The dialog template of a resource name, or null.
const DialogTemplate* FindDialog(HINSTANCE instance, LPCWSTR name);

// Copies what fits `capacity` units with the terminator. Returns the units copied without it.
int CopyOut(std::u16string_view text, LPWSTR buffer, std::size_t capacity);

// The number of a control as the journal shows it; empty for no window and for one without a number.
std::string NumberOf(const Window* window);

// The text that a message carries, empty for a null pointer.
std::u16string_view MessageText(LPARAM lParam);

} // namespace sim
