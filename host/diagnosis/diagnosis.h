// What is wrong with a machine: a pure function of its records. The rules are a table. Each rule names the
// places that it depends on, and finds nothing if one of them is not known.
#pragma once

#include <string>
#include <vector>

#include "host/worlds/records.h"

namespace host {

// What a finding is about: the values for the blanks in a rule's sentence.
struct Subject {
    unsigned long number = 0; // {com}: "COM5"; 0 if there is none
    std::string device;       // {device}: its name in a sentence; {port}: the same with its number before it
    std::string id;           // its instance id
    std::string open;         // {open}: its name for the command `open`
    std::string what;         // {what}: the evidence
    std::string key;          // {key}: of a settings line, "COM44:"
};

enum class Severity {
    Serious,  // a port or a board can't be used, or is taken for another one
    Minor,    // all work, and sooner or later something will not
    Harmless, // good to know
};

struct Finding {
    const char* rule = nullptr; // its name, which never changes
    Severity severity = Severity::Harmless;
    Subject subject;
    std::string sentence; // what is wrong, with the evidence, on one line
    std::string effect;   // what follows from it for the user
    bool safe = false;    // the command can be run without looking at the machine
    std::string command;  // the command that mends it; empty if there is none
    std::string remedy;   // what a person does if no command is safe; may be empty
};

// The worst first. Findings of one rule are in the order of their numbers and then of their devices.
std::vector<Finding> Diagnose(const Records& records);

// The findings that involve a number or its holder.
std::vector<Finding> FindingsOf(const std::vector<Finding>& findings, unsigned long number,
                                const Records& records);

} // namespace host
