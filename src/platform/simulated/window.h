// The windows of the simulated machine as objects. A handle is a number that is never given twice, so whoever
// keeps one too long is found out instead of meeting another window.
//
// A parent owns its children; a top-level window lives in the frame of the modal call that shows it. Between
// each other they talk by `Answer`, without the operations of `windows_api.h`: what a window does of itself
// is no operation of the logic. For the files of this folder only.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/simulated/catalogue.h"
#include "platform/simulated/machine.h"

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

    // The window's procedure. This one knows the text, which is all there is to a label.
    virtual LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);

    Window& TopLevel();
    Window* Child(int number) const; // the first with that number, null if there is none
    void Enable(bool enable);
    // As the user meets it: with all windows around it.
    bool IsShown() const;
    bool IsOpenToInput() const;
};

// A window that lives by a dialog procedure: a dialog or a page of a sheet.
struct Dialog : Window {
    DLGPROC procedure = nullptr;
    LONG_PTR user = 0;           // DWLP_USER
    LONG_PTR message_result = 0; // DWLP_MSGRESULT
    bool ended = false;
    INT_PTR result = 0;

    Dialog();
    ~Dialog() override;
    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Makes it a top-level window over the one that holds `above`, which may be null and is disabled
    // meanwhile.
    void OpenOver(Window* above);
    // Takes title, size and controls from a template; the left upper corner of `place` is set before.
    void Furnish(const DialogTemplate& form);
    // WM_INITDIALOG, and the focus to the first control if the procedure leaves that to the system.
    void Initialise(LPARAM parameter);
    // Shows it and lets the operator at it until it has ended, at last with `if_left` if nobody ends it.
    void Run(INT_PTR if_left);
    void End(INT_PTR value);

private:
    Window* disabled_ = nullptr; // the owner, while it is disabled for the sake of this one
    HWND focus_before_ = nullptr;
    bool top_level_ = false;
};

// The window of a handle, null if there is none.
Window* FindWindow(HWND handle);
// The same for an operation that needs one. Null with the last error set and, unless the handle is null
// itself, a line in `Machine::misuse` that names the operation.
Window* WindowOf(HWND handle, std::string_view operation);
Dialog* DialogOf(HWND handle, std::string_view operation);

// The window with the keyboard's attention, null if there is none.
HWND& Focus();

std::unique_ptr<Window> MakeButton();
std::unique_ptr<Window> MakeComboBox();
std::unique_ptr<Window> MakeListBox();
std::unique_ptr<Window> MakeListView();
std::unique_ptr<Window> MakeTrackBar();

// Dialog units to pixels, in the font of the dialogs.
constexpr LONG PixelsAcross(LONG units) {
    return (units * 6 + 2) / 4;
}
constexpr LONG PixelsDown(LONG units) {
    return (units * 13 + 4) / 8;
}

// The dialog template behind a resource name; null if the library has none.
const DialogTemplate* FindDialog(HINSTANCE instance, LPCWSTR name);

// Copies as much as `capacity` units hold with the terminator. The units copied, without it.
int CopyOut(std::u16string_view text, LPWSTR buffer, std::size_t capacity);

// The number of a control as the journal shows it; nothing for no window and for one without a number.
std::string NumberOf(const Window* window);

// The text that a message carries; empty for a null pointer.
std::u16string_view MessageText(LPARAM lParam);

} // namespace sim
