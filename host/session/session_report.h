// The report on a session's machine, as a file.
#pragma once

#include <string>

namespace host {

class Session;

// Writes what is known now, and what differs from the machine as it was read, under these words. False with a
// reason in `error` if the file can't be written.
bool WriteReport(Session& session, const std::string& file, const std::string& changes_by,
                 std::string& error);

} // namespace host
