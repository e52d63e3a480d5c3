// The findings for their readers: lines of text for people, a list for programs.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/diagnosis/diagnosis.h"

namespace host {

// Whether anything at all is known of the machine.
bool CanBeJudged(const Records& records);

// How many things are wrong and how bad they are, in one sentence.
std::string Summary(const Records& records, const std::vector<Finding>& findings);

// "serious", "minor", "harmless".
const char* NameOf(Severity severity);

// The summary, each finding with what follows from it and what mends it, what could not be checked, and what
// is in order.
std::vector<std::string> DiagnosisLines(const Records& records, const std::vector<Finding>& findings);

// The same for programs, with names that never change. `machine` is the name of the file, or empty if the
// machine is not a file.
nlohmann::ordered_json DiagnosisJson(const Records& records, const std::vector<Finding>& findings,
                                     const std::string& machine);

// One finding with what follows from it and what mends it.
std::vector<std::string> FindingLines(const Finding& finding, int columns = 80);

// All that is known about one number, place by place, and what of the findings concerns it.
std::vector<std::string> NumberLines(const Records& records, const std::vector<Finding>& findings,
                                     unsigned long number);

} // namespace host
