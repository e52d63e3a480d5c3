// Crashes within the library, like a process whose request is missing, and reports where: as the offset from
// the start of the library, as an event log does.
#include <cstdio>

#include "platform/platform.h"

namespace {

HMODULE library;

LONG WINAPI TellPlace(EXCEPTION_POINTERS* exception) {
    const auto place = reinterpret_cast<ULONG_PTR>(exception->ExceptionRecord->ExceptionAddress);
    std::printf("%08lx at kvrpagex64.dll+0x%llx\n", exception->ExceptionRecord->ExceptionCode,
                place - reinterpret_cast<ULONG_PTR>(library));
    std::fflush(stdout);
    ExitProcess(0);
}

} // namespace

int main() {
    library = LoadLibraryW(TEXT("kvrpagex64.dll"));
    const auto provider = reinterpret_cast<BOOL(WINAPI*)(void*, LPFNADDPROPSHEETPAGE, LPARAM)>(
        reinterpret_cast<void*>(GetProcAddress(library, "KvrBoardPropPageProvider")));
    if (provider == nullptr) {
        return 2;
    }
    SetUnhandledExceptionFilter(&TellPlace);
    provider(nullptr, nullptr, 0);
    return 1;
}
