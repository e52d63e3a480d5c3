#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/line/console.h"
#include "host/worlds/world.h"

namespace host {

using OpenLines = std::unique_ptr<LineSource> (*)();
// Does a command and gives its output, a line each.
using RunCommand = std::function<std::vector<std::string>(const std::string& line)>;
// Sits before the world until its user leaves, who may give commands too. False if nothing has been done,
// with the reason if there is a terminal that can't be filled.
using FillScreen = bool (*)(World& world, const RunCommand& run, std::string& reason);

// The program: opens the machine that the command line names and fills the terminal with it, or runs the
// commands that come from the console, or tells what is wrong with a machine. The exit status: 0 if all is
// well, 1 if a command failed or something is wrong with the machine, 2 if it can't be read; another one if
// the command line is wrong.
int RunProgram(int argc, char** argv, OpenLines open_console, FillScreen fill_screen);

} // namespace host
