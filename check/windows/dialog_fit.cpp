#include "check/windows/dialog_fit.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string>
#include <vector>

#include "check/windows/run_time_texts.h"
#include "resources/resource_ids.h"

namespace {

// The space beside or around a text in a control, in pixels at 96 dots per inch.
constexpr int check_box = 17;     // the box and the gap after it
constexpr int button_margin = 8;  // both sides together, with the frame
constexpr int group_margin = 18;  // before and after the caption in the frame
constexpr int combo_margin = 4;   // both sides together, within the item's place
constexpr int list_margin = 4;    // both sides together
constexpr int cell_margin = 12;   // both sides together, in a heading and a cell
constexpr int title_margin = 12;  // both sides together
constexpr int column_width = 120; // as the library sets it, in pixels at every scale

constexpr int usual_scale = 96;

int Scaled(int pixels) {
    return MulDiv(pixels, ScreenScale(), usual_scale);
}

constexpr const char too_narrow[] = "too narrow", overlaps[] = "overlaps another";

// The English geometry is given. These labels are up to four pixels too narrow in it or, between two scales,
// share a column of pixels with their slider, and stay so.
struct Exception {
    WORD dialog;
    int control;
    const char* what;
    int pixels; // at 96 dots per inch
};
constexpr LANGID english = 1033;
constexpr Exception exceptions[] = {
    {IDD_ADVANCED_PORT_SETTINGS, IDC_PORT_NUMBER_CAPTION, too_narrow, 4},
    {IDD_PORT_CONTROL, IDC_RECEIVE_HIGH, too_narrow, 4},
    {IDD_PORT_CONTROL, IDC_TRANSMIT_HIGH, too_narrow, 4},
    {IDD_ADVANCED_PORT_CONTROL, IDC_INTERFACE_CAPTION, too_narrow, 4},
    {IDD_ADVANCED_PORT_SETTINGS, IDC_RECEIVE_LOW, overlaps, 1},
    {IDD_ADVANCED_PORT_SETTINGS, IDC_TRANSMIT_LOW, overlaps, 1},
};

std::string Utf8(const Text& text) {
    std::string result(text.size() * 3, '\0');
    result.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                            static_cast<int>(result.size()), nullptr, nullptr)));
    return result;
}

struct Dialog {
    LANGID language;
    WORD id;
    HWND window;
    HDC dc;
    HFONT font;
    Fit& fit;

    SIZE Measure(const Text& text, UINT format, int width = 0) const {
        RECT place = {0, 0, width, 0};
        DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &place, DT_CALCRECT | format);
        return {place.right, place.bottom};
    }

    // Counts a failure by that many pixels, unless it is a known one. Returns the word for it.
    const char* Judge(int control, const char* what, int pixels) const {
        const bool known =
            language == english &&
            std::any_of(std::begin(exceptions), std::end(exceptions), [&](const Exception& each) {
                return each.dialog == id && each.control == control && each.what == what &&
                       pixels <= Scaled(each.pixels);
            });
        fit.failures += known ? 0 : 1;
        return known ? "known" : what;
    }

    void Tell(const char* what, int control, const std::string& details) const {
        fit.lines.push_back(std::string(what) + ": language " + std::to_string(language) + ", dialog " +
                            std::to_string(id) + ", control " + std::to_string(control) + ", " + details);
    }

    void Fail(int control, const Text& text, int needed, int given) const {
        Tell(Judge(control, too_narrow, needed - given), control,
             '"' + Utf8(text) + "\" needs " + std::to_string(needed) + " pixels, has " +
                 std::to_string(given));
    }

    void Check(int control, const Text& text, int given, UINT format = DT_SINGLELINE) const {
        ++fit.texts;
        const int needed = static_cast<int>(Measure(text, format).cx);
        if (needed > given) {
            Fail(control, text, needed, given);
        }
    }

    // A label breaks its text at blanks. What exceeds its height is not visible.
    void CheckLabel(int control, const Text& text, const RECT& place) const {
        const int width = static_cast<int>(place.right - place.left),
                  height = static_cast<int>(place.bottom - place.top);
        const SIZE broken = Measure(text, DT_WORDBREAK, width);
        const SIZE line = Measure(text, DT_SINGLELINE);
        // A line may lose the last pixels of the room below its letters, but no more.
        const bool fits_broken =
            height >= 2 * line.cy - Scaled(2) && broken.cx <= width && broken.cy <= height + Scaled(1);
        ++fit.texts;
        if (line.cx > width && !fits_broken) {
            Fail(control, text, static_cast<int>(line.cx), width);
        }
    }
};

struct Control {
    int id;
    bool group;
    RECT place; // in the dialog
};

RECT PlaceIn(HWND dialog, HWND control) {
    RECT place;
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

Control MeasureControl(const Dialog& dialog, HWND window) {
    WCHAR kind[32] = {}, buffer[512] = {};
    GetClassNameW(window, kind, ARRAYSIZE(kind));
    GetWindowTextW(window, buffer, ARRAYSIZE(buffer));
    const int id = GetDlgCtrlID(window) == 0xFFFF ? -1 : GetDlgCtrlID(window);
    const LONG style = GetWindowLongW(window, GWL_STYLE);
    const Text text = RunTimeText(dialog.language, dialog.id, id, buffer);
    Control control = {id, false, PlaceIn(dialog.window, window)};
    const int width = static_cast<int>(control.place.right - control.place.left);
    if (lstrcmpiW(kind, TEXT("Static")) == 0) {
        dialog.CheckLabel(id, text, control.place);
    } else if (lstrcmpiW(kind, TEXT("Button")) == 0) {
        control.group = (style & BS_TYPEMASK) == BS_GROUPBOX;
        const int around = control.group                              ? group_margin
                           : (style & BS_TYPEMASK) == BS_AUTOCHECKBOX ? check_box
                                                                      : button_margin;
        if (!text.empty()) {
            dialog.Check(id, text, width - Scaled(around));
        }
    } else if (lstrcmpiW(kind, TEXT("ComboBox")) == 0) {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        GetComboBoxInfo(window, &info);
        for (const Text& item : ComboItems(dialog.language, dialog.id, id)) {
            dialog.Check(id, item,
                         static_cast<int>(info.rcItem.right - info.rcItem.left) - Scaled(combo_margin),
                         DT_SINGLELINE | DT_NOPREFIX);
        }
    } else if (lstrcmpiW(kind, TEXT("ListBox")) == 0) {
        RECT client;
        GetClientRect(window, &client);
        dialog.Check(id, TEXT("COM256 (port16)"), static_cast<int>(client.right) - Scaled(list_margin),
                     DT_SINGLELINE | DT_NOPREFIX);
    } else if (lstrcmpiW(kind, WC_LISTVIEWW) == 0 && ScreenScale() == usual_scale) {
        for (const UINT string : {IDS_RESOURCE_TYPE, IDS_SETTING, IDS_IO_RANGE, IDS_IRQ}) {
            dialog.Check(id, String(dialog.language, string), column_width - cell_margin,
                         DT_SINGLELINE | DT_NOPREFIX);
        }
    }
    return control;
}

void CheckPlaces(const Dialog& dialog, const std::vector<Control>& controls) {
    const auto tell = [&](const Control& control, const char* what, int other, int pixels) {
        dialog.Tell(dialog.Judge(control.id, what, pixels), control.id, "control " + std::to_string(other));
    };
    RECT client, common;
    GetClientRect(dialog.window, &client);
    for (auto one = controls.begin(); one != controls.end(); ++one) {
        UnionRect(&common, &client, &one->place);
        if (!EqualRect(&common, &client)) {
            tell(*one, "outside its dialog", 0, 0);
        }
        for (auto other = one + 1; other != controls.end(); ++other) {
            if (!IntersectRect(&common, &one->place, &other->place)) {
                continue;
            }
            // A group holds a control completely or not at all.
            const bool held = (one->group && EqualRect(&common, &other->place)) ||
                              (other->group && EqualRect(&common, &one->place));
            if (!held) {
                tell(*one, overlaps, other->id,
                     static_cast<int>(std::min(common.right - common.left, common.bottom - common.top)));
            }
        }
    }
}

void CheckTitle(const Dialog& dialog) {
    WCHAR title[256] = {};
    GetWindowTextW(dialog.window, title, ARRAYSIZE(title));
    RECT client;
    GetClientRect(dialog.window, &client);
    const bool port_dialog = dialog.id == IDD_ADVANCED_PORT_SETTINGS;
    const Text text = port_dialog
                          ? Filled(String(dialog.language, IDS_ADVANCED_SETTINGS_TITLE), TEXT("COM256"))
                          : Text(title);
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    // A page's title is on a tab in the dialog's font, a dialog's own in the caption's font.
    const bool page = dialog.id == IDD_PORT_SETTINGS || dialog.id == IDD_PORT_CONTROL;
    const HFONT font = page ? nullptr : CreateFontIndirectW(&metrics.lfCaptionFont);
    if (font != nullptr) {
        SelectObject(dialog.dc, font);
    }
    dialog.Check(0, text, static_cast<int>(client.right) - Scaled(title_margin), DT_SINGLELINE | DT_NOPREFIX);
    if (font != nullptr) {
        SelectObject(dialog.dc, dialog.font);
        DeleteObject(font);
    }
}

} // namespace

int ScreenScale() {
    const HDC screen = GetDC(nullptr);
    const int scale = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return scale;
}

HWND CreatePlainDialog(LANGID language, WORD id) {
    const auto* const form = static_cast<const DLGTEMPLATE*>(Resource(RT_DIALOG, id, language));
    return form != nullptr
               ? CreateDialogIndirectParamW(
                     library, form, nullptr, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0)
               : nullptr;
}

void MeasureDialog(HWND window, LANGID language, WORD id, Fit& fit) {
    Dialog dialog = {
        language, id, window, GetDC(window), reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)),
        fit};
    const HGDIOBJ before = SelectObject(dialog.dc, dialog.font);
    std::vector<Control> controls;
    for (HWND control = GetWindow(window, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        controls.push_back(MeasureControl(dialog, control));
    }
    CheckPlaces(dialog, controls);
    CheckTitle(dialog);
    SelectObject(dialog.dc, before);
    ReleaseDC(window, dialog.dc);
    ++fit.dialogs;
}

std::vector<LANGID> Languages() {
    std::vector<LANGID> languages;
    EnumResourceLanguagesW(
        library, RT_DIALOG, MAKEINTRESOURCEW(IDD_PORT_CONTROL),
        [](HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR list) -> BOOL {
            reinterpret_cast<std::vector<LANGID>*>(list)->push_back(language);
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&languages));
    std::sort(languages.begin(), languages.end());
    return languages;
}
