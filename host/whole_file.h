// Files that are written completely or not at all.
#pragma once

#include <functional>
#include <ostream>
#include <string>

namespace host {

// Writes a file under its name with ".part" appended, and then replaces the existing file with it, taking
// over its permissions. If that fails, the existing file stays as it was, and false is returned with the
// reason.
bool WriteWhole(const std::string& path, const std::function<void(std::ostream&)>& write, std::string& error);

} // namespace host
