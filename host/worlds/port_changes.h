// Changes to what the system knows of a port's number, made through the system's own functions.
#pragma once

#include <string>

namespace host {

// False, with a reason in `error`, on failure.
bool ReleaseNumber(unsigned long number, std::string& error);
bool ClaimNumber(unsigned long number, std::string& error);
// Deletes a settings line by its key, "COM44:".
bool ForgetLine(const std::string& key, std::string& error);

} // namespace host
