// The process: its memory and its last error.
#include <cstdlib>
#include <unordered_set>

#include "simulated/stage.h"

namespace {

DWORD last_error = ERROR_SUCCESS;
std::unordered_set<HLOCAL> allocations;

} // namespace

DWORD GetLastError() {
    return last_error;
}
void SetLastError(DWORD error) {
    last_error = error;
}

BOOL sim::Fail(DWORD error) {
    SetLastError(error);
    return FALSE;
}

// The memory comes from the heap itself, so that a sanitizer knows its bounds.
HLOCAL LocalAlloc(UINT flags, SIZE_T bytes) {
    const bool fails =
        sim::Operation(sim::Reach::Memory, __func__, [&] { return std::to_string(bytes) + " bytes"; });
    HLOCAL memory = fails ? nullptr : flags & LPTR ? std::calloc(1, bytes) : std::malloc(bytes);
    if (memory == nullptr) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    allocations.insert(memory);
    sim::Opened("memory");
    return memory;
}

HLOCAL LocalFree(HLOCAL memory) {
    const bool fails = sim::Operation(sim::Reach::Memory, __func__);
    if (memory == nullptr) {
        return nullptr;
    }
    if (allocations.erase(memory) == 0) {
        sim::MisuseOfHandle(__func__, "memory", memory);
        SetLastError(ERROR_INVALID_HANDLE);
        return memory;
    }
    std::free(memory);
    sim::Closed("memory");
    if (fails) {
        SetLastError(ERROR_INVALID_HANDLE);
        return memory;
    }
    return nullptr;
}

BOOL DisableThreadLibraryCalls(HMODULE) {
    return sim::Operation(sim::Reach::Memory, __func__) ? sim::Fail(ERROR_GEN_FAILURE) : TRUE;
}
