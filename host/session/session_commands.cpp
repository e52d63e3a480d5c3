#include <algorithm>

#include "host/session/command.h"
#include "host/session/session.h"
#include "host/text.h"

namespace host {
namespace {

void TellOf(Session& session, const Command& command) {
    constexpr int names = 27;
    std::string before = PaddedTo("  " + std::string{command.name} + ' ' + command.arguments, names);
    if (Columns(before) > names) {
        session.Tell(before);
        before.clear();
    }
    for (const std::string& line : BrokenAt(command.help, std::max(20, session.Columns() - names))) {
        session.Tell(PaddedTo(before, names) + line);
        before.clear();
    }
}

void Help(Session& session, const Words& words) {
    if (words.size() > 1) {
        return TellOf(session, FindCommand(words[1]));
    }
    for (const Command& command : Commands()) {
        TellOf(session, command);
    }
    session.Tell(BrokenAt(
        "A command may be shortened as long as it stays unambiguous. A CONTROL is named by its caption, "
        "by the label before it, or by its number. A caption with blanks is put in \"...\". Lines that "
        "begin with # are comments.",
        session.Columns()));
}

void Quit(Session& session, const Words&) {
    session.End();
}

void Source(Session& session, const Words& words) {
    session.Source(words[1]);
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
