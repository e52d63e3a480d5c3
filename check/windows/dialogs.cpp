#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>
#include <shlwapi.h>

#include <algorithm>
#include <map>

#include "check/windows/dialog_fit.h"
#include "check/windows/parts.h"
#include "check/windows/run_time_texts.h"

namespace check {
namespace {

constexpr LANGID english = 1033;

std::string Utf8(const std::wstring& text) {
    std::string result(text.size() * 3, '\0');
    result.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                            static_cast<int>(result.size()), nullptr, nullptr)));
    return result;
}

std::vector<HWND> Controls(HWND dialog) {
    std::vector<HWND> controls;
    for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        controls.push_back(control);
    }
    return controls;
}

bool IsTabStop(HWND control) {
    return (GetWindowLongW(control, GWL_STYLE) & WS_TABSTOP) != 0;
}

// Whether the Tab key reaches every tab stop once, in the order of the controls.
bool HasTabOrder(HWND dialog) {
    std::vector<HWND> stops = Controls(dialog), reached;
    std::erase_if(stops, [](HWND control) { return !IsTabStop(control); });
    HWND at = nullptr;
    do {
        at = GetNextDlgTabItem(dialog, at, FALSE);
        reached.push_back(at);
    } while (at != nullptr && reached.size() <= stops.size() &&
             GetNextDlgTabItem(dialog, at, FALSE) != reached.front());
    return reached == stops;
}

// The letters that reach two controls, as "language/dialog letter".
std::string DoubleLetters(HWND dialog, const std::string& place) {
    std::map<WCHAR, int> letters;
    for (const HWND control : Controls(dialog)) {
        WCHAR text[512] = {};
        GetWindowTextW(control, text, ARRAYSIZE(text));
        for (const WCHAR* at = text; *at != 0; ++at) {
            if (*at == L'&' && at[1] != 0 && *++at != L'&') {
                WCHAR letter[] = {*at, 0};
                CharUpperW(letter);
                ++letters[letter[0]];
            }
        }
    }
    std::string found;
    for (const auto& [letter, count] : letters) {
        if (count > 1) {
            found += ' ' + place + ' ' + Utf8({letter});
        }
    }
    return found;
}

// What a screen reader is told of a control.
struct Accessible {
    std::wstring name, value;
    LONG role = 0;
    HRESULT failure = S_OK; // then nothing is told
};

std::string Shown(const Accessible& accessible) {
    return accessible.failure != S_OK ? " error " + Hex(static_cast<DWORD>(accessible.failure))
                                      : " role " + std::to_string(accessible.role) + " \"" +
                                            Utf8(accessible.name) + "\" \"" + Utf8(accessible.value) + '"';
}

Accessible AccessibleOf(HWND control) {
    Accessible told;
    IAccessible* object = nullptr;
    told.failure = AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT),
                                              __uuidof(IAccessible), reinterpret_cast<void**>(&object));
    if (told.failure != S_OK) {
        return told;
    }
    VARIANT self{}, role{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    const auto text = [](HRESULT result, BSTR found) {
        const std::wstring copy = result == S_OK && found != nullptr ? std::wstring(found) : std::wstring();
        SysFreeString(found);
        return copy;
    };
    BSTR found = nullptr;
    HRESULT result = object->get_accName(self, &found);
    told.name = text(result, found);
    found = nullptr;
    result = object->get_accValue(self, &found);
    told.value = text(result, found);
    if (object->get_accRole(self, &role) == S_OK && role.vt == VT_I4) {
        told.role = role.lVal;
    }
    object->Release();
    return told;
}

struct Looked {
    int created = 0, all = 0, in_order = 0, mirrored = 0, named = 0, stops = 0;
    Fit fit;
    std::string not_created, double_letters;
    std::vector<Fact> accessible; // one for each dialog in English
};

void LookAtDialog(HWND dialog, LANGID language, WORD id, Looked& looked) {
    const std::string place = std::to_string(language) + '/' + std::to_string(id);
    ++looked.created;
    MeasureDialog(dialog, language, id, looked.fit);
    looked.in_order += HasTabOrder(dialog);
    looked.mirrored += (GetWindowLongW(dialog, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
    looked.double_letters += DoubleLetters(dialog, place);
    std::string told;
    for (const HWND control : Controls(dialog)) {
        if (IsTabStop(control)) {
            const Accessible accessible = AccessibleOf(control);
            ++looked.stops;
            looked.named += !accessible.name.empty();
            told += (told.empty() ? "" : "; ") + std::to_string(GetDlgCtrlID(control)) + Shown(accessible);
        }
    }
    if (language == english) {
        looked.accessible.push_back({"accessible." + std::to_string(id), "-", told});
    }
}

std::string Version(HMODULE controls) {
    DLLVERSIONINFO version{};
    version.cbSize = sizeof version;
    const auto get_version = reinterpret_cast<DLLGETVERSIONPROC>(
        reinterpret_cast<void*>(GetProcAddress(controls, "DllGetVersion")));
    return get_version != nullptr && get_version(&version) == S_OK
               ? std::to_string(version.dwMajorVersion) + '.' + std::to_string(version.dwMinorVersion)
               : "not known";
}

// All dialogs with the common controls of the activation context, whose facts begin with `name`.
void LookIn(const std::string& name, Report& report) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES | ICC_LISTVIEW_CLASSES};
    const HMODULE controls = LoadLibraryW(L"comctl32.dll");
    InitCommonControlsEx(&classes);
    Looked looked;
    for (const LANGID language : Languages()) {
        for (const WORD id : all_dialogs) {
            ++looked.all;
            if (const HWND dialog = CreatePlainDialog(language, id)) {
                LookAtDialog(dialog, language, id, looked);
                DestroyWindow(dialog);
            } else {
                looked.not_created += ' ' + std::to_string(language) + '/' + std::to_string(id);
            }
        }
    }
    std::string cut;
    for (const std::string& line : looked.fit.lines) {
        if (!line.starts_with("known")) {
            cut += "; " + line;
        }
    }
    const auto note = [&](const char* what, std::string expected, std::string seen) {
        report.facts.push_back({name + '.' + what, std::move(expected), std::move(seen)});
    };
    note("controls", "-", Version(controls));
    note("created", "120 of 120", Of(looked.created, looked.all) + looked.not_created);
    note("cut_or_overlapping", "0", std::to_string(looked.fit.failures) + cut);
    note("texts_measured", "-", std::to_string(looked.fit.texts));
    note("tab_order", "120 of 120", Of(looked.in_order, looked.all));
    note("letters_twice", "none", looked.double_letters.empty() ? "none" : looked.double_letters.substr(1));
    note("mirrored", "-", Of(looked.mirrored, looked.all));
    note("accessible_with_name", "-", Of(looked.named, looked.stops));
    for (Fact& fact : looked.accessible) {
        fact.name = name + '.' + fact.name;
        report.facts.push_back(std::move(fact));
    }
    FreeLibrary(controls);
}

} // namespace

void LookAtDialogs(Report& report) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    LookIn("dialogs5", report);
    ACTCTXW context{};
    context.cbSize = sizeof context;
    context.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    context.hModule = GetModuleHandleW(nullptr);
    context.lpResourceName = MAKEINTRESOURCEW(2); // kvrcheck_controls6.manifest
    const HANDLE controls6 = CreateActCtxW(&context);
    ULONG_PTR cookie = 0;
    if (controls6 != INVALID_HANDLE_VALUE && ActivateActCtx(controls6, &cookie)) {
        LookIn("dialogs6", report);
        DeactivateActCtx(0, cookie);
    }
    if (controls6 != INVALID_HANDLE_VALUE) {
        ReleaseActCtx(controls6);
    }
    CoUninitialize();
}

} // namespace check
