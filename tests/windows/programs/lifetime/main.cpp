// Loads and unloads the library, and opens and closes its pages, so many times each in one process, and
// prints what the process then holds more than before: handles, USER and GDI objects, private memory.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "tests/windows/programs/sheets.h"

namespace {

constexpr const char* names[] = {"handles", "USER objects", "GDI objects", "heap blocks", "heap bytes"};

struct Holdings {
    long long counts[std::size(names)];
};

// Wine counts neither a process's handles nor its USER objects. But both tables reuse a free place before
// they take a new one, so if nothing leaks, a new object gets the place of an earlier one.
long long HandlePlace() {
    const HANDLE handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    CloseHandle(handle);
    return static_cast<long long>(reinterpret_cast<ULONG_PTR>(handle) / 4);
}

long long UserPlace() {
    const HMENU menu = CreateMenu();
    DestroyMenu(menu);
    return LOWORD(reinterpret_cast<ULONG_PTR>(menu));
}

// The table of GDI objects, which every process can read.
long long GdiObjects() {
    struct Entry {
        ULONGLONG object;
        ULONG owner;
        USHORT unique;
        UCHAR type, flags;
        ULONGLONG user_data;
    };
    constexpr std::size_t places = 0x4000;
    const BYTE* process = nullptr;
    __asm__("movq %%gs:0x60, %0" : "=r"(process));
    const Entry* const table = *reinterpret_cast<const Entry* const*>(process + 0xF8);
    return table != nullptr
               ? std::count_if(table, table + places, [](const Entry& entry) { return entry.type != 0; })
               : 0;
}

Holdings Take() {
    Holdings taken = {{HandlePlace(), UserPlace(), GdiObjects(), 0, 0}};
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(GetProcessHeap(), &entry)) {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
            ++taken.counts[3];
            taken.counts[4] += static_cast<long long>(entry.cbData);
        }
    }
    return taken;
}

// What a run may add for the system's own caches: far less than one object per round.
constexpr long long allowed[] = {4, 4, 4, 16, 4096};

// Runs `once` that many times, after a few rounds in which the system fills its caches, and compares.
bool Repeat(const char* what, int times, const auto& once) {
    for (int i = 0; i < 20; ++i) {
        once();
    }
    const Holdings before = Take();
    for (int i = 0; i < times; ++i) {
        once();
    }
    const Holdings after = Take();
    bool steady = true;
    std::printf("%s, %d times:", what, times);
    for (std::size_t i = 0; i < std::size(names); ++i) {
        const long long grown = after.counts[i] - before.counts[i];
        std::printf(" %s %lld (%+lld)%s", names[i], after.counts[i], grown,
                    i + 1 < std::size(names) ? "," : "\n");
        steady = steady && grown <= allowed[i];
    }
    return steady;
}

} // namespace

int main(int argc, char** argv) {
    const int times = argc > 1 ? std::atoi(argv[1]) : 1000;
    std::string error;
    if (const auto world = host::OpenWorld({}, 0, error); !world) {
        std::printf("%s\n", error.c_str());
        return 2;
    }
    bool steady =
        Repeat("loaded and unloaded", times, [] { FreeLibrary(LoadLibraryW(TEXT("kvrpagex64.dll"))); });
    const std::unique_ptr<host::World> world = host::OpenWorld({}, 0, error);
    for (const auto& [kind, what] : {std::pair{host::Role::Board, "the board's page opened and closed"},
                                     std::pair{host::Role::Port, "a port's page opened and closed"}}) {
        const std::optional<host::DeviceRecord> device = host::FirstDevice(*world, kind);
        if (!device) {
            std::printf("no device for: %s\n", what);
            return 2;
        }
        const auto cancel = [](HWND front) { SendMessageW(GetDlgItem(front, IDCANCEL), BM_CLICK, 0, 0); };
        steady = Repeat(what, times, [&] { world->RunSheet(device->id, cancel); }) && steady;
    }
    return steady ? 0 : 1;
}
