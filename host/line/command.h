// The commands, a table for each group. A new one is a row of its group's table and a function beside it; a
// new group is a file of its own, named in commands.cpp.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class Interpreter;

using Words = std::vector<std::string>;

struct Command {
    const char* name;
    // A word each, in [] what may be left out. DEVICE, CONTROL, ITEM and words parted by | are completed at
    // the terminal.
    const char* arguments;
    const char* help;
    // `words` begins with the command's name; there are as many as the arguments allow. Throws Refusal if the
    // command can't be done; nothing has changed then.
    void (*run)(Interpreter& host, const Words& words);
};

std::span<const Command> MachineCommands(); // what the machine holds
std::span<const Command> TraceCommands();   // what the library tells of itself
std::span<const Command> BenchCommands();   // what is wrong with it, and what mends it
std::span<const Command> WindowCommands();  // what a hand does to its windows
std::span<const Command> SessionCommands(); // the session itself

// All of them, in the order in which help lists them.
const std::vector<Command>& Commands();

// The command that a word means: its name, or the beginning of no other. Throws Refusal with what comes
// nearest.
const Command& FindCommand(std::string_view word);

// The file of the words, which end in "[--over] FILE". Throws Refusal if it exists and is not to be replaced.
std::string FileToWrite(const Words& words);

// What may follow the words, in a line that is not finished.
Words Completions(Interpreter& host, const Words& words);

} // namespace host
