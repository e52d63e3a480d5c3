#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/line/console.h"
#include "host/worlds/world.h"

namespace host {

using OpenLines = std::unique_ptr<LineSource> (*)();
// Runs a command and returns its output, line by line.
using RunCommand = std::function<std::vector<std::string>(const std::string& line)>;
// Shows the world on the full screen until its user leaves, who may also give commands. Returns false if
// nothing has been done, with the reason if there is a terminal that can't be filled.
using FillScreen = bool (*)(World& world, const RunCommand& run, std::string& reason);

// The program: opens the machine that the command line names and fills the terminal with it, or runs the
// commands that come from the console, or reports what is wrong with a machine. The exit status is 0 if all
// is well, 1 if a command failed or something is wrong with the machine, 2 if the machine can't be read, and
// another value if the command line is wrong.
int RunProgram(int argc, char** argv, OpenLines open_console, FillScreen fill_screen);

} // namespace host
