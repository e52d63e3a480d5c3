// The COM port database of the live system. MSPORTS.DLL is taken from the system folder only, whatever lies
// beside the program, so it is loaded by hand and not by the program's import table.
#include "platform/platform.h"

namespace {

// A function of MSPORTS.DLL; null if the system has none.
template <class Function> Function Find(const char* name, Function) {
    static const HMODULE library = LoadLibraryExW(L"msports.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return library ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)))
                   : nullptr;
}

} // namespace

// Defines a function of the database by its own name; ERROR_PROC_NOT_FOUND where the system has none.
#define FORWARD(function, parameters, arguments)                                                             \
    extern "C" LONG WINAPI function parameters {                                                             \
        static const auto forward = Find(#function, &::function);                                            \
        return forward ? forward arguments : ERROR_PROC_NOT_FOUND;                                           \
    }
FORWARD(ComDBOpen, (HCOMDB * database), (database))
FORWARD(ComDBClose, (HCOMDB database), (database))
FORWARD(ComDBGetCurrentPortUsage, (HCOMDB database, BYTE* usage, DWORD bytes, DWORD type, DWORD* reported),
        (database, usage, bytes, type, reported))
FORWARD(ComDBClaimPort, (HCOMDB database, DWORD number, BOOL force, BOOL* forced),
        (database, number, force, forced))
FORWARD(ComDBReleasePort, (HCOMDB database, DWORD number), (database, number))
