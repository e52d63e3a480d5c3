// The findings for their readers: lines of text for people, a list for programs.
#pragma once

#include <string>
#include <vector>

#include "host/diagnosis/diagnosis.h"

namespace host {

// What is not known and how to get it, each finding with what mends it, and what is sound.
std::vector<std::string> DiagnosisLines(const Records& records, const std::vector<Finding>& findings);

// The same as JSON: "notKnown", "findings" and "sound", whose names never change. `machine` is the name of
// the file, or empty if the machine is not a file.
std::string DiagnosisJson(const Records& records, const std::vector<Finding>& findings,
                          const std::string& machine);

// One finding with what mends it.
std::vector<std::string> FindingLines(const Finding& finding);

// All that is known about one number, place by place.
std::vector<std::string> NumberLines(const Records& records, unsigned long number);

} // namespace host
