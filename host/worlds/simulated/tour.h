#pragma once

#include <string>
#include <vector>

namespace host {

// A line each.
std::vector<std::string> TourOfSample();

} // namespace host
