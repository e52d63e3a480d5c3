// Lists what the keyboard does in each of the four dialogs when keys are sent to the windows themselves. It
// is built for both worlds, and the two listings must be the same.
//
//     kvrkeys LANGUAGE...
//
// The keys have no further effect: the dialogs' procedures are replaced, and what would reach them is listed.
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "host/screen/keyboard.h"
#include "host/screen/screen.h"
#include "resources/resource_ids.h"
#include "tests/windows/programs/sheets.h"

namespace {

constexpr UINT most_stops = 40;

std::map<HWND, LONG_PTR> procedures; // of the dialogs that are watched
std::string reached;                 // what the procedures would have received since this was emptied

INT_PTR CALLBACK Listen(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && HIWORD(wParam) <= CBN_SELCHANGE) { // the pages know no other code
        reached +=
            (HIWORD(wParam) == BN_CLICKED ? " press " : " selects in ") + std::to_string(LOWORD(wParam));
    }
    if (message == WM_HSCROLL) {
        reached += " scroll " + std::to_string(LOWORD(wParam));
    }
    if (message == WM_COMMAND || message == WM_HSCROLL) {
        return TRUE;
    }
    const auto procedure = reinterpret_cast<DLGPROC>(procedures[dialog]);
    return procedure == nullptr ? FALSE : procedure(dialog, message, wParam, lParam);
}

std::string Focused() {
    const HWND focus = GetFocus();
    return focus == nullptr ? "none" : std::to_string(GetDlgCtrlID(focus));
}

std::string Press(HWND window, const host::Key& key) {
    reached.clear();
    host::PressKey(window, key);
    return Focused() + reached;
}

void FocusOn(HWND window, HWND control) {
    SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

// All tab stops, starting at the focus.
std::vector<HWND> Walk(HWND window, bool back) {
    std::vector<HWND> stops;
    const HWND first = GetFocus();
    std::printf(back ? "  back" : "  forth");
    do {
        host::PressKey(window, {VK_TAB, 0, back});
        stops.push_back(GetFocus());
        std::printf(" %s", Focused().c_str());
    } while (GetFocus() != first && stops.size() < most_stops);
    std::printf("\n");
    return stops;
}

std::set<WCHAR> HotKeys(const host::Window& window) {
    std::set<WCHAR> letters;
    for (WCHAR letter = 'A'; letter <= 'Z'; ++letter) {
        letters.insert(letter);
    }
    for (const host::Control& control : window.controls) {
        const host::Text caption = host::FromUtf8(control.text);
        for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
            if (caption[at] == '&') {
                letters.insert(caption[++at]);
            }
        }
    }
    return letters;
}

// What the keys do that move within a control.
void ListMoves(HWND window, const host::Control& control) {
    const bool slider = control.kind == host::Kind::Slider;
    const UINT position = slider                              ? TBM_GETPOS
                          : control.kind == host::Kind::Combo ? CB_GETCURSEL
                                                              : LB_GETCURSEL;
    static constexpr std::pair<UINT, const char*> keys[] = {
        {VK_HOME, "home"}, {VK_RIGHT, "right"}, {VK_DOWN, "down"},  {VK_LEFT, "left"},
        {VK_UP, "up"},     {VK_END, "end"},     {VK_RIGHT, "right"}};
    static constexpr std::pair<UINT, const char*> pages[] = {
        {VK_PRIOR, "pageup"}, {VK_PRIOR, "pageup"}, {VK_NEXT, "pagedown"}};
    FocusOn(window, control.window);
    const auto list = [&](const auto& each) {
        const std::string got = Press(window, {each.first});
        std::printf(
            " %s %d%s", each.second, static_cast<int>(SendMessageW(control.window, position, 0, 0)),
            got.substr(got.find_first_of(' ') == std::string::npos ? got.size() : got.find_first_of(' '))
                .c_str());
    };
    std::printf("  in %d:", control.id);
    for (const auto& each : keys) {
        list(each);
    }
    if (control.kind != host::Kind::Combo) {
        for (const auto& each : pages) {
            list(each);
        }
    }
    std::printf("\n");
}

void List(HWND window, LANGID language, int dialog) {
    const host::Window read = host::ReadWindow(window, false);
    std::vector<HWND> listening{window};
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        WCHAR name[16];
        if (GetClassNameW(child, name, ARRAYSIZE(name)) == 6 && name[0] == '#') {
            listening.push_back(child);
        }
    }
    std::printf("%u %d\n  opens at %s\n", language, dialog, Focused().c_str());
    for (const HWND each : listening) {
        procedures[each] = GetWindowLongPtrW(each, DWLP_DLGPROC);
        SetWindowLongPtrW(each, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(&Listen));
    }
    const std::vector<HWND> stops = Walk(window, false);
    Walk(window, true);
    for (const auto& [key, name] : {std::pair{VK_RETURN, "enter"},
                                    {VK_ESCAPE, "esc"},
                                    {VK_SPACE, "space"},
                                    {VK_RIGHT, "right"},
                                    {VK_LEFT, "left"}}) {
        std::printf("  %s:", name);
        for (const HWND stop : stops) {
            if (key != VK_RETURN && key != VK_ESCAPE &&
                (SendMessageW(stop, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) == 0) {
                continue;
            }
            FocusOn(window, stop);
            const std::string at = Focused();
            std::printf(" %s>%s", at.c_str(), Press(window, {static_cast<UINT>(key)}).c_str());
        }
        std::printf("\n");
    }
    for (const WCHAR letter : HotKeys(read)) {
        FocusOn(window, stops.back());
        const std::string got = Press(window, {0, letter, false, true});
        if (GetFocus() != stops.back() || !reached.empty()) {
            std::printf("  %s: %s\n", host::ToUtf8({&letter, 1}).c_str(), got.c_str());
        }
    }
    for (const host::Control& control : read.controls) {
        if (control.enabled && (control.kind == host::Kind::Slider || control.kind == host::Kind::Combo ||
                                control.kind == host::Kind::List)) {
            ListMoves(window, control);
        }
    }
    for (const HWND each : listening) {
        SetWindowLongPtrW(each, DWLP_DLGPROC, procedures[each]);
    }
}

} // namespace

int main(int argc, char** argv) {
    for (int argument = 1; argument < argc; ++argument) {
        const auto language = static_cast<LANGID>(std::atoi(argv[argument]));
        std::string error;
        const std::unique_ptr<host::World> world = host::OpenWorld({}, language, error);
        if (!world) {
            std::printf("%s\n", error.c_str());
            return 2;
        }
        for (const auto& [role, page, advanced] : host::role_sheets) {
            const std::optional<host::DeviceRecord> device = host::FirstDevice(*world, role);
            std::set<HWND> seen;
            const auto attend = [&, page = page, advanced = advanced](HWND front) {
                if (!seen.insert(front).second) {
                    SendMessageW(front, WM_COMMAND, IDCANCEL, 0);
                    return;
                }
                List(front, language, seen.size() == 1 ? page : advanced);
                if (seen.size() == 1) {
                    for (const host::Control& control : host::ReadWindow(front, false).controls) {
                        if (control.id == IDC_ADVANCED) {
                            SendMessageW(control.window, BM_CLICK, 0, 0);
                        }
                    }
                }
                SendMessageW(front, WM_COMMAND, IDCANCEL, 0);
            };
            if (device) {
                world->RunSheet(device->id, attend);
            }
        }
    }
    return 0;
}
