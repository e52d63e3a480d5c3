// The library's imports come only from the system folder, and each indirect call is checked against the table
// of functions whose address is taken.
//
// The loader replaces the two guard pointers with its own functions if the process guards its calls.
// Otherwise the functions here are called: one accepts every target, the other also jumps to it.
#include "platform/windows/load_configuration.h"

extern "C" {

// Made by the linker.
extern const char __guard_fids_table, __guard_fids_count;

[[gnu::naked]] static void PassEveryTarget() {
    asm("ret");
}

[[gnu::naked]] static void GoToTarget() {
    asm("jmp *%rax");
}

extern const GuardFunction __guard_check_icall_fptr, __guard_dispatch_icall_fptr;
const GuardFunction __guard_check_icall_fptr = PassEveryTarget;
const GuardFunction __guard_dispatch_icall_fptr = GoToTarget;

constexpr u32 guard_cf_instrumented = 0x0100;
constexpr u32 guard_cf_function_table_present = 0x0400;

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
