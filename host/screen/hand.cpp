#include "host/screen/hand.h"

#include <algorithm>

#include "host/text.h"

namespace host {
namespace {

std::string Told(const Control& control) {
    const std::string caption = Shown(control.text);
    return std::string{KindName(control.kind)} + ' ' +
           (caption.empty() || control.kind == Kind::Combo ? std::to_string(control.id) : Quoted(caption));
}

void Require(const Control& control, std::initializer_list<Kind> kinds, const char* what) {
    if (std::find(kinds.begin(), kinds.end(), control.kind) == kinds.end()) {
        throw Refusal(Told(control) + " can't be " + what);
    }
    if (!control.enabled) {
        throw Refusal(Told(control) + " is disabled");
    }
}

void RequireItems(const Control& combo_or_list) {
    Require(combo_or_list, {Kind::Combo, Kind::List}, "picked from");
}

void RequireSlider(const Control& slider) {
    Require(slider, {Kind::Slider}, "slid");
}

void TellParent(const Control& control, UINT message, WPARAM wParam) {
    SendMessageW(GetParent(control.window), message, wParam, reinterpret_cast<LPARAM>(control.window));
}

} // namespace

void Click(const Control& button_or_check) {
    Require(button_or_check, {Kind::Button, Kind::Check}, "clicked");
    SendMessageW(button_or_check.window, BM_CLICK, 0, 0);
}

void SetCheck(const Control& check, bool checked) {
    Require(check, {Kind::Check}, "checked");
    if (check.checked != checked) {
        Click(check);
    }
}

void Pick(const Control& combo_or_list, std::string_view name) {
    RequireItems(combo_or_list);
    PickItem(combo_or_list, FindItem(combo_or_list, name));
}

void PickItem(const Control& combo_or_list, int item) {
    RequireItems(combo_or_list);
    const bool combo = combo_or_list.kind == Kind::Combo;
    SendMessageW(combo_or_list.window, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(item), 0);
    TellParent(combo_or_list, WM_COMMAND,
               MAKEWPARAM(combo_or_list.id, combo ? CBN_SELCHANGE : LBN_SELCHANGE));
}

void Slide(const Control& slider, long position) {
    RequireSlider(slider);
    if (position < slider.minimum || position > slider.maximum) {
        throw Refusal("the slider goes from " + std::to_string(slider.minimum) + " to " +
                      std::to_string(slider.maximum));
    }
    Drag(slider, position);
}

void Drag(const Control& slider, long position) {
    RequireSlider(slider);
    SendMessageW(slider.window, TBM_SETPOS, TRUE, static_cast<LPARAM>(position));
    TellParent(slider, WM_HSCROLL, MAKEWPARAM(TB_THUMBPOSITION, position));
    TellParent(slider, WM_HSCROLL, MAKEWPARAM(TB_ENDTRACK, 0));
}

void FocusOn(const Window& window, const Control& control) {
    SendMessageW(window.handle, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control.window), TRUE);
}

void Dismiss(const Window& window) {
    for (const int id : {IDNO, IDCANCEL, IDOK}) {
        for (const Control& control : window.controls) {
            if (control.kind == Kind::Button && control.id == id && control.enabled &&
                (window.kind != WindowKind::Sheet || control.of_frame)) {
                return Click(control);
            }
        }
    }
    SendMessageW(window.handle, WM_CLOSE, 0, 0);
}

const Control& FindButton(const Window& window, int id) {
    for (const Control& control : window.controls) {
        if (control.kind == Kind::Button && control.id == id &&
            (window.kind != WindowKind::Sheet || control.of_frame)) {
            return control;
        }
    }
    throw Refusal("no such button in front");
}

} // namespace host
