// A report that has come back, against the one that Wine gave.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/facts.h"

namespace check {

// The report of the check under Wine that is kept beside the documents.
std::string_view WineReport();

enum class Weight { Failed, Missing, Mended, Different, New };

struct Difference {
    Weight weight = Weight::Failed;
    std::string line;
};

// Worst first: what must hold and does not though it did on Wine, what was not looked at, what holds only
// here, what was seen otherwise, what Wine's report does not have. What is told of a machine itself (its
// Windows, its screen) is no difference.
std::vector<Difference> Compare(const Report& seen, const Report& wine);

// The whole answer about a report, a line each: what it was made on, and the differences.
std::vector<std::string> ComparisonLines(const Report& seen, const std::vector<Difference>& differences);

} // namespace check
