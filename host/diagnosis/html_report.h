// A report on a machine as one HTML file for a ticket: nothing in it is fetched and nothing runs.
#pragma once

#include <string>
#include <vector>

#include "host/diagnosis/diagnosis.h"

namespace host {

struct ReportSource {
    std::string name;   // of the export, or of the machine
    std::string date;   // of the export; empty if it is not a file
    std::string sha256; // of its bytes; the same
    // What a patch would change, in the lines of `changes`, and how it comes about.
    std::vector<std::string> changes;
    std::string changes_by;
};

std::string HtmlReport(const Records& records, const std::vector<Finding>& findings,
                       const ReportSource& source);

} // namespace host
