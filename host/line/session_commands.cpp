#include "host/line/command.h"
#include "host/line/interpreter.h"
#include "host/text.h"

namespace host {
namespace {

void TellOf(Interpreter& host, const Command& command) {
    host.Tell("  " + PaddedTo(std::string{command.name} + ' ' + command.arguments, 24) + command.help);
}

void Help(Interpreter& host, const Words& words) {
    if (words.size() > 1) {
        return TellOf(host, FindCommand(words[1]));
    }
    for (const Command& command : Commands()) {
        TellOf(host, command);
    }
    host.Tell("A command may be cut short as long as no other begins so. A CONTROL is named by its caption, "
              "by the");
    host.Tell("label before it, or by its number. A caption with blanks stands in \"...\". Lines that begin "
              "with # are");
    host.Tell("comments.");
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
        {"source", "FILE", "does the commands of a file", &Source},
        {"help", "[COMMAND]", "tells the commands", &Help},
        {"quit", "", "cancels what is open and ends; exit does the same", &Quit},
    };
    return commands;
}

} // namespace host
