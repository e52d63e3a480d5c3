// What the program does with machines besides operating their pages: it judges them, compares two, and
// reports on one. Each answers with the exit status of the program.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/worlds/world.h"

namespace host {

// Nothing is wrong; something is wrong or differs; a machine can't be read or judged, or the command line is
// wrong.
constexpr int status_sound = 0, status_found = 1, status_unreadable = 2;

// Opens a machine. Null, with the reason on the error output, if it can't be read.
std::unique_ptr<World> OpenToldWorld(const std::string& file, LANGID language = 0);

// Each path is a registry export or a folder of them; without any, the machine is the sample machine, or this
// one. One machine is told in full, several in a line each, the worst first. The status is that of the worst.
int Diagnose(const std::vector<std::string>& paths, bool json);

int Diff(const std::string& before, const std::string& after, bool json);

// Shows in what a report of kvrcheck differs from what was seen on Wine.
int CheckReport(const std::string& file);

// Writes a report on a machine, with what mending it would change. An existing file is replaced only if
// `over` says so.
int Report(const std::string& machine, const std::string& file, bool over);

} // namespace host
