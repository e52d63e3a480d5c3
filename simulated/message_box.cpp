// Message boxes: a dialog of the system's own with the text as a label and one or two buttons.
#include <algorithm>

#include "simulated/window.h"

namespace sim {
namespace {

constexpr int text_number = 0xFFFF;

struct MessageBox : Dialog {
    const UINT box_style;
    const bool is_question = (box_style & MB_YESNO) != 0;

    MessageBox(Window* above, const WCHAR* message, const WCHAR* caption, UINT kind) : box_style(kind) {
        // Dialog units.
        constexpr int margin = 7;
        constexpr int text_width = 240;
        constexpr int line_height = 8;
        constexpr int letters_in_line = text_width / 4;
        constexpr int button_width = 50;
        constexpr int button_height = 14;
        const std::u16string_view letters = message;
        const auto breaks =
            std::ranges::count_if(letters, [](WCHAR one) { return one == u'\r' || one == u'\n'; });
        const int lines = 1 + static_cast<int>(breaks) + static_cast<int>(letters.size()) / letters_in_line;
        const int row = 2 * margin + lines * line_height;
        constexpr DWORD label = WS_CHILD | WS_VISIBLE | SS_LEFT;
        constexpr DWORD button = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        const int place_of_last = margin + text_width - button_width;
        const int place_of_first = place_of_last - margin - button_width;
        const ControlTemplate question[] = {
            {text_number, message, u"STATIC", label, margin, margin, text_width, lines * line_height},
            {IDYES, u"&Yes", u"BUTTON", button | BS_DEFPUSHBUTTON, place_of_first, row, button_width,
             button_height},
            {IDNO, u"&No", u"BUTTON", button, place_of_last, row, button_width, button_height},
        };
        const ControlTemplate statement[] = {
            question[0],
            {IDOK, u"OK", u"BUTTON", button | BS_DEFPUSHBUTTON, place_of_last, row, button_width,
             button_height},
        };
        OpenOver(above);
        Furnish({0, caption, static_cast<DWORD>(WS_POPUP | WS_CAPTION | DS_MODALFRAME), 0,
                 text_width + 2 * margin, row + button_height + margin,
                 is_question ? Table<ControlTemplate>(question) : statement});
        Initialise(0);
    }

    // A question has no way out but an answer; any other box takes every way out as OK.
    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        const WORD command = message == WM_COMMAND ? LOWORD(wParam) : message == WM_CLOSE ? IDCANCEL : 0;
        if (is_question ? command == IDYES || command == IDNO : command == IDOK || command == IDCANCEL) {
            End(is_question ? command : IDOK);
        }
        return command != 0 ? 0 : Dialog::Answer(message, wParam, lParam);
    }
};

} // namespace

UINT BoxStyle(HWND window) {
    const auto* box = dynamic_cast<MessageBox*>(FindWindow(window));
    return box == nullptr ? 0 : box->box_style;
}

} // namespace sim

int MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT style) {
    const WCHAR* message = text == nullptr ? u"" : text;
    sim::Window* above = owner == nullptr ? nullptr : sim::WindowOf(owner, __func__);
    if (sim::Operation(sim::Reach::Screen, __func__, [=] { return sim::ToUtf8(message); }) ||
        (owner != nullptr && above == nullptr)) {
        return 0;
    }
    sim::MessageBox box(above, message, caption == nullptr ? u"Error" : caption, style);
    // Without an operator the default button answers; if an operator never answers, the careful button does.
    box.Run(!box.is_question ? IDOK : sim::Current().user ? IDNO : IDYES);
    const int answer = static_cast<int>(box.result);
    sim::Current().boxes.push_back({message, box.text, style, answer, owner});
    return answer;
}
