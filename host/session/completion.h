// How an unfinished command may go on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

class Session;

struct Completion {
    std::string line; // extended as far as all possible continuations agree
    std::vector<std::string>
        candidates; // the words among which there is a choice, if the line could not be extended
};

// `line` ends where the word to complete ends. It comes back unchanged, without candidates, if nothing fits.
Completion Completed(Session& session, std::string_view line);

} // namespace host
