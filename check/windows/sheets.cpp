#include <windows.h>

#include <psapi.h>

#include <atomic>
#include <iterator>
#include <thread>

#include "check/windows/parts.h"
#include "check/windows/run_time_texts.h"
#include "platform/platform.h"
#include "resources/resource_ids.h"

namespace check {
namespace {

struct Holdings {
    DWORD handles = 0, gdi = 0, user = 0;
    long long kilobytes = 0;
};

Holdings Take() {
    Holdings taken;
    GetProcessHandleCount(GetCurrentProcess(), &taken.handles);
    taken.gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    taken.user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    PROCESS_MEMORY_COUNTERS_EX memory{};
    memory.cb = sizeof memory;
    K32GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                            sizeof memory);
    taken.kilobytes = static_cast<long long>(memory.PrivateUsage / 1024);
    return taken;
}

// A sheet with the library's two pages, whose procedure does nothing. Null if it can't be opened.
HWND OpenSheet() {
    PROPSHEETPAGEW pages[2] = {};
    constexpr int dialogs[] = {IDD_PORT_CONTROL, IDD_PORT_SETTINGS};
    for (std::size_t i = 0; i < std::size(pages); ++i) {
        pages[i].dwSize = sizeof pages[i];
        pages[i].hInstance = library;
        pages[i].pszTemplate = MAKEINTRESOURCEW(dialogs[i]);
        pages[i].pfnDlgProc = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; };
    }
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_MODELESS | PSH_PROPSHEETPAGE;
    header.pszCaption = L"kvrcheck";
    header.nPages = std::size(pages);
    header.ppsp = pages;
    const HWND sheet = reinterpret_cast<HWND>(PropertySheetW(&header));
    return sheet != INVALID_HANDLE_VALUE ? sheet : nullptr;
}

void Settle() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        DispatchMessageW(&message);
    }
}

bool OpenAndClose() {
    const HWND sheet = OpenSheet();
    if (sheet == nullptr) {
        return false;
    }
    const bool has_page = PropSheet_GetCurrentPageHwnd(sheet) != nullptr;
    SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    Settle();
    DestroyWindow(sheet);
    Settle();
    return has_page;
}

// Opens a sheet in each of two threads, and closes neither before both are open. Returns how many opened.
int OpenTwoAtOnce() {
    std::atomic<int> ready = 0, opened = 0;
    const auto one = [&] {
        const HWND sheet = OpenSheet();
        opened += sheet != nullptr && PropSheet_GetCurrentPageHwnd(sheet) != nullptr;
        ++ready;
        const ULONGLONG end = GetTickCount64() + 10000;
        while (ready != 2 && GetTickCount64() < end) {
            Settle();
            Sleep(1);
        }
        if (sheet != nullptr) {
            DestroyWindow(sheet);
        }
        Settle();
    };
    std::thread first(one), second(one);
    first.join();
    second.join();
    return opened;
}

} // namespace

void Repeat(const std::string& name, int times, const std::function<bool()>& once, Report& report) {
    // The system fills its caches first.
    for (int i = 0; i < 20; ++i) {
        once();
    }
    int succeeded = 0;
    const Holdings before = Take();
    for (int i = 0; i < times; ++i) {
        succeeded += once();
    }
    const Holdings after = Take();
    const auto grown = [&](const char* what, const char* expected, long long more) {
        report.facts.push_back({name + ".more_" + what, expected, std::to_string(more)});
    };
    report.facts.push_back({name + ".opened_and_closed", Of(times, times), Of(succeeded, times)});
    grown("handles", "at most 4", static_cast<long long>(after.handles) - before.handles);
    grown("gdi_objects", "at most 4", static_cast<long long>(after.gdi) - before.gdi);
    grown("user_objects", "at most 4", static_cast<long long>(after.user) - before.user);
    grown("kilobytes", "at most 512", after.kilobytes - before.kilobytes);
}

void LookAtSheets(int times, Report& report) {
    Repeat("sheets", times, OpenAndClose, report);
    report.facts.push_back({"sheets.two_at_once", "2 of 2", Of(OpenTwoAtOnce(), 2)});
}

} // namespace check
