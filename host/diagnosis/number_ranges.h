// COM numbers as a list that is read aloud.
#pragma once

#include <string>
#include <vector>

namespace host {

// "9, 10, 33, 40-59": three and more in a row become a range. The numbers ascend; "none" without any.
std::string RangesOf(const std::vector<unsigned long>& numbers);

} // namespace host
