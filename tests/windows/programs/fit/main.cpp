// Measures on real windows whether every text of every dialog in every language has enough room, with the
// texts that the library puts in at run time, in the dialog's own font and at the screen's scale; and whether
// the controls keep clear of each other. Each failure is a line, and the last line counts what was measured.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "resources/resource_ids.h"
#include "tests/windows/programs/fit/run_time_texts.h"

namespace {

int measured = 0, failures = 0;

constexpr WORD all_dialogs[] = {IDD_PORT_SETTINGS, IDD_ADVANCED_PORT_SETTINGS, IDD_PORT_CONTROL,
                                IDD_ADVANCED_PORT_CONTROL};

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
int scale = usual_scale; // dots per inch

int Scaled(int pixels) {
    return MulDiv(pixels, scale, usual_scale);
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
        failures += known ? 0 : 1;
        return known ? "known" : what;
    }

    void Fail(int control, const Text& text, int needed, int given) const {
        std::printf("%s: language %u, dialog %u, control %d, \"%s\": needs %d pixels, has %d\n",
                    Judge(control, too_narrow, needed - given), language, id, control, Utf8(text).c_str(),
                    needed, given);
    }

    void Check(int control, const Text& text, int given, UINT format = DT_SINGLELINE) const {
        ++measured;
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
        ++measured;
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
    } else if (lstrcmpiW(kind, WC_LISTVIEWW) == 0 && scale == usual_scale) {
        for (const UINT string : {IDS_RESOURCE_TYPE, IDS_SETTING, IDS_IO_RANGE, IDS_IRQ}) {
            dialog.Check(id, String(dialog.language, string), column_width - cell_margin,
                         DT_SINGLELINE | DT_NOPREFIX);
        }
    }
    return control;
}

void CheckPlaces(const Dialog& dialog, const std::vector<Control>& controls) {
    const auto tell = [&](const Control& control, const char* what, int other, int pixels) {
        std::printf("%s: language %u, dialog %u, control %d, %d\n", dialog.Judge(control.id, what, pixels),
                    dialog.language, dialog.id, control.id, other);
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

bool MeasureDialog(LANGID language, WORD id) {
    const auto* const form = static_cast<const DLGTEMPLATE*>(Resource(RT_DIALOG, id, language));
    const HWND window = form != nullptr ? CreateDialogIndirectParamW(
                                              library, form, nullptr,
                                              [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0)
                                        : nullptr;
    if (window == nullptr) {
        std::printf("language %u, dialog %u: can't be created\n", language, id);
        return false;
    }
    Dialog dialog = {language, id, window, GetDC(window),
                     reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0))};
    const HGDIOBJ before = SelectObject(dialog.dc, dialog.font);
    std::vector<Control> controls;
    for (HWND control = GetWindow(window, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        controls.push_back(MeasureControl(dialog, control));
    }
    CheckPlaces(dialog, controls);
    CheckTitle(dialog);
    SelectObject(dialog.dc, before);
    ReleaseDC(window, dialog.dc);
    DestroyWindow(window);
    return true;
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

} // namespace

int main(int argc, char** argv) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES | ICC_LISTVIEW_CLASSES};
    SetProcessDPIAware();
    InitCommonControlsEx(&classes);
    const HDC screen = GetDC(nullptr);
    scale = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    SetConsoleOutputCP(CP_UTF8);
    library = LoadLibraryW(TEXT("kvrpagex64.dll"));
    if (library == nullptr) {
        std::printf("kvrpagex64.dll can't be loaded\n");
        return 2;
    }
    if (argc > 1 && std::string_view(argv[1]) == "list") {
        for (const LANGID language : Languages()) {
            std::printf("%u\n", language);
        }
        return 0;
    }
    std::vector<LANGID> languages;
    for (int i = 1; i < argc; ++i) {
        languages.push_back(static_cast<LANGID>(std::atoi(argv[i])));
    }
    int dialogs = 0;
    for (const LANGID language : languages) {
        for (const WORD id : all_dialogs) {
            if (MeasureDialog(language, id)) {
                ++dialogs;
            } else {
                ++failures;
            }
        }
    }
    std::printf("%d dialogs at %d dots per inch, %d texts measured, %d failures\n", dialogs, scale, measured,
                failures);
    return failures == 0 && dialogs != 0 ? 0 : 1;
}
