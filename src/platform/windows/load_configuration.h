// What a module asks of the loader before any of its code runs, under the name by which the linker looks for
// it.
#pragma once

#include "platform/platform.h"

extern "C" {

using GuardFunction = void (*)();

// IMAGE_LOAD_CONFIG_DIRECTORY64 up to the guard flags; older headers end before them.
struct LoadConfiguration {
    u32 size = 0;
    u32 time_stamp = 0;
    WORD major_version = 0, minor_version = 0;
    u32 global_flags_clear = 0, global_flags_set = 0;
    u32 critical_section_timeout = 0;
    u64 decommit_free_block = 0, decommit_total_free = 0;
    const void* lock_prefix_table = nullptr;
    u64 maximum_allocation = 0, virtual_memory_threshold = 0, process_affinity = 0;
    u32 process_heap_flags = 0;
    WORD csd_version = 0;
    WORD dependent_load_flags = 0; // flags of LoadLibraryEx
    const void* edit_list = nullptr;
    const void* security_cookie = nullptr;
    const void* handler_table = nullptr;
    u64 handler_count = 0;
    const GuardFunction* guard_check = nullptr;
    const GuardFunction* guard_dispatch = nullptr;
    const void* guard_table = nullptr;
    const void* guard_count = nullptr; // a number that the linker provides as an address
    u32 guard_flags = 0;
    u32 code_integrity[3] = {};
};
static_assert(sizeof(LoadConfiguration) == 160);

constexpr WORD load_library_search_system32 = 0x0800;

extern const LoadConfiguration _load_config_used;
}
