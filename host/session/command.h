// The commands, with a table for each group. A new command is a row in its group's table and a function
// beside it; a new group is a file of its own, named in commands.cpp.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class Session;

using Words = std::vector<std::string>;

struct Command {
    const char* name;
    // One word each, in [] if it may be left out. DEVICE, CONTROL, ITEM and words separated by | are
    // completed.
    const char* arguments;
    const char* help;
    // `words` begins with the command's name; there are as many as the arguments allow. Throws Refusal if the
    // command can't be carried out; nothing has changed then.
    void (*run)(Session& session, const Words& words);
};

std::span<const Command> MachineCommands(); // what the machine holds
std::span<const Command> TraceCommands();   // what the library traces
std::span<const Command> MendingCommands(); // what is wrong with the machine, and what mends it
std::span<const Command> WindowCommands();  // what a hand does to its windows
std::span<const Command> SessionCommands(); // the session itself

// All commands, in the order in which help lists them.
const std::vector<Command>& Commands();

// The command that a word means: by its name, or an unambiguous beginning of it. Throws Refusal with the
// nearest names.
const Command& FindCommand(std::string_view word);

// Runs the command that the words give. Throws Refusal.
void RunCommand(Session& session, Words words);

// The file in words that end in "[--over] FILE". Throws Refusal if it exists and may not be replaced.
std::string FileToWrite(const Words& words);

} // namespace host
