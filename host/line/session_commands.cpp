#include "host/line/command.h"
#include "host/line/interpreter.h"
#include "host/text.h"

namespace host {
namespace {

void TellOf(Interpreter& host, const Command& command) {
    host.Tell("  " + PaddedTo(std::string{command.name} + ' ' + command.arguments, 25) + command.help);
}

void Help(Interpreter& host, const Words& words) {
    if (words.size() > 1) {
        return TellOf(host, FindCommand(words[1]));
    }
    for (const Command& command : Commands()) {
        TellOf(host, command);
    }
    host.Tell(
        "A command may be shortened as long as it stays unambiguous. A CONTROL is named by its caption, by");
    host.Tell(
        "the label before it, or by its number. A caption with blanks is put in \"...\". Lines that begin");
    host.Tell("with # are comments.");
}

void Quit(Interpreter& host, const Words&) {
    host.End();
}

void Source(Interpreter& host, const Words& words) {
    host.Source(words[1]);
}

} // namespace

std::span<const Command> SessionCommands() {
    static constexpr Command commands[] = {
        {"source", "FILE", "runs the commands of a file", &Source},
        {"help", "[COMMAND]", "lists the commands", &Help},
        {"quit", "", "cancels all open windows and ends; exit does the same", &Quit},
    };
    return commands;
}

} // namespace host
