// COM numbers as a list for people.
#pragma once

#include <string>
#include <vector>

namespace host {

// "9, 10, 33, 40-59": three or more consecutive numbers become a range. The numbers must ascend. "none" if
// there are none.
std::string RangesOf(const std::vector<unsigned long>& numbers);

} // namespace host
