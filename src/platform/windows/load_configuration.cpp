// The load configuration: what the library asks of the loader before any of its code runs. Its imports come
// from the system folder only, and each indirect call is checked against the table of functions whose address
// is taken.
//
// The loader replaces the two guard pointers by its own functions where the process guards its calls. The
// functions here serve where it does not: one lets every target pass, the other also goes there.
#include "platform/platform.h"

extern "C" {

// Made by the linker.
extern const char __guard_fids_table, __guard_fids_count;

[[gnu::naked]] static void PassEveryTarget() {
    asm("ret");
}

[[gnu::naked]] static void GoToTarget() {
    asm("jmp *%rax");
}

using GuardFunction = void (*)();
extern const GuardFunction __guard_check_icall_fptr, __guard_dispatch_icall_fptr;
const GuardFunction __guard_check_icall_fptr = PassEveryTarget;
const GuardFunction __guard_dispatch_icall_fptr = GoToTarget;

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
constexpr u32 guard_cf_instrumented = 0x0100;
constexpr u32 guard_cf_function_table_present = 0x0400;

extern const LoadConfiguration _load_config_used;
const LoadConfiguration _load_config_used{
    .size = sizeof(LoadConfiguration),
    .dependent_load_flags = load_library_search_system32,
    .guard_check = &__guard_check_icall_fptr,
    .guard_dispatch = &__guard_dispatch_icall_fptr,
    .guard_table = &__guard_fids_table,
    .guard_count = &__guard_fids_count,
    .guard_flags = guard_cf_instrumented | guard_cf_function_table_present,
};
}
