#include <algorithm>

#include "host/screen/naming.h"
#include "host/session/command.h"
#include "host/text.h"

namespace host {

const std::vector<Command>& Commands() {
    static const std::vector<Command> all = [] {
        std::vector<Command> commands;
        for (const auto group :
             {MachineCommands(), TraceCommands(), MendingCommands(), WindowCommands(), SessionCommands()}) {
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

namespace {

// An option may stand anywhere: it goes to where the command has it.
void MoveOption(Words& words, const Words& arguments) {
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string option = arguments[index].substr(1, arguments[index].size() - 2);
        const auto given = std::ranges::find(words, option);
        if (option.starts_with("--") && given != words.end()) {
            words.erase(given);
            words.insert(words.begin() + static_cast<std::ptrdiff_t>(std::min(index + 1, words.size())),
                         option);
        }
    }
}

} // namespace

void RunCommand(Session& session, Words words) {
    const Command& command = FindCommand(words[0]);
    Words arguments;
    SplitWords(command.arguments, arguments);
    MoveOption(words, arguments);
    const auto optional = static_cast<std::size_t>(
        std::ranges::count_if(arguments, [](const std::string& each) { return each.starts_with('['); }));
    if (words.size() > arguments.size() + 1 || words.size() + optional < arguments.size() + 1) {
        throw Refusal(std::string{"usage: "} + command.name + ' ' + command.arguments);
    }
    command.run(session, words);
}

} // namespace host
