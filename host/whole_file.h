// Files by their names in UTF-8, and those that are written completely or not at all.
#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>

namespace host {

// The path of a name, and the name of a path. Any bytes are a name, also such as no character has.
std::filesystem::path PathOf(const std::string& name);
std::string FileName(const std::filesystem::path& path);

// Writes a file under its name with ".part" appended, and then replaces the existing file with it, taking
// over its permissions. If that fails, the existing file stays as it was, and false is returned with the
// reason.
bool WriteWhole(const std::string& path, const std::function<void(std::ostream&)>& write, std::string& error);

} // namespace host
