// Files that are written as a whole or not at all.
#pragma once

#include <functional>
#include <ostream>
#include <string>

namespace host {

// Writes a file aside, under its name with ".part" behind it, and then puts it in the place of the one that
// is there, whose permissions it takes. If that fails, the one that is there stays as it was; false then,
// with the reason.
bool WriteWhole(const std::string& path, const std::function<void(std::ostream&)>& write, std::string& error);

} // namespace host
