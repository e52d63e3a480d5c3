#pragma once

#include <memory>
#include <string>

#include "host/line/line_source.h"
#include "host/session/seat.h"

namespace host {

using OpenLines = std::unique_ptr<LineSource> (*)();
// Null if there is no terminal, or with the reason if there is one that can't be filled.
using OpenScreen = std::unique_ptr<Seat> (*)(std::string& reason);

// The program: opens the machine that the command line names and fills the terminal with it, or runs the
// commands that come from the console, or reports what is wrong with a machine. The exit status is 0 if all
// is well, 1 if a command failed or something is wrong with the machine, 2 if the machine can't be read, the
// command line is wrong or the output can't be written.
int RunProgram(int argc, char** argv, OpenLines open_console, OpenScreen open_screen);

} // namespace host
