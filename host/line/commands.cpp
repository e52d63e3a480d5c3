#include <algorithm>

#include "host/line/command.h"
#include "host/screen/naming.h"
#include "host/text.h"

namespace host {

const std::vector<Command>& Commands() {
    static const std::vector<Command> all = [] {
        std::vector<Command> commands;
        for (const auto group :
             {MachineCommands(), TraceCommands(), BenchCommands(), WindowCommands(), SessionCommands()}) {
            commands.insert(commands.end(), group.begin(), group.end());
        }
        return commands;
    }();
    return all;
}

const Command& FindCommand(std::string_view word) {
    const std::string name = Folded(word) == "exit" ? "quit" : Folded(word);
    std::vector<const Command*> begun;
    std::vector<std::string> names;
    for (const Command& command : Commands()) {
        if (name == command.name) {
            return command;
        }
        names.push_back(command.name);
        if (!name.empty() && names.back().starts_with(name)) {
            begun.push_back(&command);
        }
    }
    if (begun.size() == 1) {
        return *begun.front();
    }
    if (begun.empty()) {
        const std::string nearest = Nearest(name, names);
        throw Refusal("no command " + Quoted(word) +
                      (nearest.empty() ? "; help lists them" : ": did you mean " + nearest + '?'));
    }
    std::string meant;
    for (const Command* command : begun) {
        meant += (meant.empty() ? "" : ", ") + std::string{command->name};
    }
    throw Refusal(Quoted(word) + " could be " + meant);
}

} // namespace host
