// The sample machine, embedded in the program byte for byte.
#include "host/machine_file/machine_file.h"

// SAMPLE_MACHINE is the path of the file.
asm(R"(
    .section .rodata
sample_machine_begin:
    .incbin ")" SAMPLE_MACHINE R"("
sample_machine_end:
    .text
)");

extern const char sample_machine_begin[], sample_machine_end[];

std::string_view host::SampleMachine() {
    return {sample_machine_begin, sample_machine_end};
}
