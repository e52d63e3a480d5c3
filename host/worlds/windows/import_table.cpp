#include "host/worlds/windows/import_table.h"

#include <cstring>

namespace host {
namespace {

template <class Thing> Thing* At(HMODULE library, std::size_t offset) {
    return reinterpret_cast<Thing*>(reinterpret_cast<BYTE*>(library) + offset);
}

void* Exchange(void** place, void* function) {
    DWORD before = 0;
    VirtualProtect(place, sizeof *place, PAGE_READWRITE, &before);
    void* const stood = *place;
    *place = function;
    VirtualProtect(place, sizeof *place, before, &before);
    return stood;
}

} // namespace

void* Redirect(HMODULE library, const char* name, void* function) {
    const auto* const headers =
        At<IMAGE_NT_HEADERS64>(library, static_cast<std::size_t>(At<IMAGE_DOS_HEADER>(library, 0)->e_lfanew));
    const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* from = At<IMAGE_IMPORT_DESCRIPTOR>(library, imports); from->Name != 0; ++from) {
        const auto* wanted = At<IMAGE_THUNK_DATA64>(library, from->OriginalFirstThunk);
        auto* found = At<void*>(library, from->FirstThunk);
        for (; wanted->u1.AddressOfData != 0; ++wanted, ++found) {
            if (!IMAGE_SNAP_BY_ORDINAL64(wanted->u1.Ordinal) &&
                std::strcmp(At<IMAGE_IMPORT_BY_NAME>(library, wanted->u1.AddressOfData)->Name, name) == 0) {
                return Exchange(found, function);
            }
        }
    }
    return nullptr;
}

} // namespace host
