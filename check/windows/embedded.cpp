#include "check/windows/embedded.h"

// SOURCE_DIR is the folder of the sources.
#define CARRY(name, file)                                                                                    \
    asm(".section .rodata\n" #name "_begin:\n.incbin \"" SOURCE_DIR "/" file "\"\n" #name "_end:\n.text\n"); \
    extern const char name##_begin[], name##_end[];
#define CARRY_SCRIPT(name)                                                                                   \
    CARRY(name##_commands, "tests/scripts/check_" #name ".txt")                                              \
    CARRY(name##_transcript, "tests/scripts/check_" #name ".out")
#define KEPT(name)                                                                                           \
    {                                                                                                        \
#name, {name##_commands_begin, name##_commands_end }, {                                              \
            name##_transcript_begin, name##_transcript_end                                                   \
        }                                                                                                    \
    }

CARRY(own_machine, "check/machine.reg")
CARRY_SCRIPT(board)
CARRY_SCRIPT(port)
CARRY_SCRIPT(rename)
CARRY_SCRIPT(sort)

namespace check {

std::string_view OwnMachineFile() {
    return {own_machine_begin, own_machine_end};
}

std::vector<KeptScript> KeptScripts() {
    return {KEPT(board), KEPT(port), KEPT(rename), KEPT(sort)};
}

} // namespace check
