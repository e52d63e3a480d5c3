#include "host/line/bench.h"
#include "host/line/command.h"
#include "host/line/interpreter.h"

namespace host {
namespace {

template <Lines (Bench::*Run)(const Words&)> void Do(Interpreter& host, const Words& words) {
    host.Write((host.bench().*Run)(words));
}

// Setting the machine back would leave an open page with data that no longer exist.
template <Lines (Bench::*Run)(const Words&)> void DoAlone(Interpreter& host, const Words& words) {
    if (const std::vector<std::string> open = host.OpenWindows(); !open.empty()) {
        throw Refusal(open.back() + " is open; close it first");
    }
    Do<Run>(host, words);
}

} // namespace

std::span<const Command> BenchCommands() {
    static constexpr Command commands[] = {
        {"diagnose", "", "lists what is wrong with the ports and boards, worst first, and what mends it",
         &Do<&Bench::Diagnose>},
        {"why", "NUMBER", "shows all that is known about one COM number", &Do<&Bench::Why>},
        {"free", "NUMBER [--even-so]", "takes a number from the COM port database", &Do<&Bench::Free>},
        {"claim", "NUMBER [--even-so]", "marks a number as in use there", &Do<&Bench::Claim>},
        {"forget", "LINE [--even-so]", "deletes a settings line, such as COM44:", &Do<&Bench::Forget>},
        {"mend", "", "mends all that diagnose calls safe to mend", &Do<&Bench::Mend>},
        {"changes", "", "lists what differs from the machine as it was read", &Do<&Bench::Changes>},
        {"undo", "", "undoes the last command that changed something", &DoAlone<&Bench::Undo>},
        {"reload", "", "goes back to the machine as it was read", &DoAlone<&Bench::Reload>},
        {"patch", "[--over] FILE",
         "writes a file to import that makes the same changes, and one that takes it back",
         &Do<&Bench::Patch>},
        {"fail", "OPERATION [N]", "makes the n-th call of an operation from now on fail; fail off ends that",
         &Do<&Bench::Fail>},
    };
    return commands;
}

} // namespace host
