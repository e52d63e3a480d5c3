// What a file asks of the loader before any of its code runs, by the name under which the linker looks for
// it.
#pragma once

#include "platform/platform.h"

extern "C" {

using GuardFunction = void (*)();

// IMAGE_LOAD_CONFIG_DIRECTORY64 up to the guard flags; older headers end before them.
struct LoadConfiguration {
    u32 size;
    u32 time_stamp;
    WORD major_version, minor_version;
    u32 global_flags_clear, global_flags_set;
    u32 critical_section_timeout;
    u64 decommit_free_block, decommit_total_free;
    const void* lock_prefix_table;
    u64 maximum_allocation, virtual_memory_threshold, process_affinity;
    u32 process_heap_flags;
    WORD csd_version;
    WORD dependent_load_flags; // as of LoadLibraryEx
    const void* edit_list;
    const void* security_cookie;
    const void* handler_table;
    u64 handler_count;
    const GuardFunction* guard_check;
    const GuardFunction* guard_dispatch;
    const void* guard_table;
    const void* guard_count; // a number that the linker gives as an address
    u32 guard_flags;
    u32 code_integrity[3];
};
static_assert(sizeof(LoadConfiguration) == 160);

constexpr WORD load_library_search_system32 = 0x0800;

extern const LoadConfiguration _load_config_used;
}
