// The files that this program carries.
#pragma once

#include <string_view>
#include <vector>

namespace check {

std::string_view OwnMachineFile();

// An operator script and the transcript that is kept of it.
struct KeptScript {
    const char* name;
    std::string_view commands, transcript;
};
std::vector<KeptScript> KeptScripts();

} // namespace check
