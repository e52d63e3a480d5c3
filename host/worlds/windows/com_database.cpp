// The COM port database of the live system. MSPORTS.DLL must come from the system folder, even if there is
// one beside the program, so it is loaded here and not by the program's import table.
#include "platform/platform.h"

namespace {

// A function of MSPORTS.DLL; null if the system lacks it.
template <class Function> Function Find(const char* name, Function) {
    static const HMODULE library = LoadLibraryExW(TEXT("msports.dll"), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return library != nullptr
               ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)))
               : nullptr;
}

} // namespace

// Defines a function of the database by its own name. It returns ERROR_PROC_NOT_FOUND if the system lacks it.
#define FORWARD(function, parameters, arguments)                                                             \
    extern "C" LONG WINAPI function parameters {                                                             \
        static const auto forward = Find(#function, &::function);                                            \
        return forward != nullptr ? forward arguments : ERROR_PROC_NOT_FOUND;                                \
    }
FORWARD(ComDBOpen, (HCOMDB * database), (database))
FORWARD(ComDBClose, (HCOMDB database), (database))
FORWARD(ComDBGetCurrentPortUsage, (HCOMDB database, BYTE* usage, DWORD bytes, DWORD type, DWORD* reported),
        (database, usage, bytes, type, reported))
FORWARD(ComDBClaimPort, (HCOMDB database, DWORD number, BOOL force, BOOL* forced),
        (database, number, force, forced))
FORWARD(ComDBReleasePort, (HCOMDB database, DWORD number), (database, number))
