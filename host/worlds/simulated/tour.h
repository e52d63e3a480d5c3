#pragma once

#include <string>
#include <vector>

namespace host {

// One command per line.
std::vector<std::string> TourOfSample();

} // namespace host
