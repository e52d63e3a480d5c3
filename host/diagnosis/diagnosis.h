// What is wrong with a machine: a pure function of its records. The rules are a table; each says on which
// places it rests, and where one of them is not known it says nothing.
#pragma once

#include <string>
#include <vector>

#include "host/diagnosis/records.h"

namespace host {

// What a finding is about, and what a rule's sentence has blanks for.
struct Subject {
    unsigned long number = 0; // {com}: "COM5"; 0 without one
    std::string device;       // {device}: how a sentence calls it; {port}: with its number before
    std::string id;           // its instance id
    std::string open;         // {open}: what the command `open` calls it
    std::string what;         // {what}: the evidence
    std::string key;          // {key}: of a settings line, "COM44:"
};

struct Finding {
    const char* rule = nullptr; // its name, which never changes
    Subject subject;
    std::string sentence; // with the evidence, on one line
    bool safe = false;    // to be mended without a look at the machine
    std::string command;  // that mends it; empty if none does
    std::string remedy;   // what a person does where no command is safe; may be empty
};

// Worst first, those of one rule by number and in the order of the devices.
std::vector<Finding> Diagnose(const Records& records);

// The findings that a number or its holder has a part in.
std::vector<Finding> FindingsOf(const std::vector<Finding>& findings, unsigned long number,
                                const Records& records);

// What is not known, and the key of the registry that holds it: what to export to have it.
struct MissingPlace {
    Place place;
    const char* name; // "the serial map"
    const char* json; // "serialMap"
    const char* key;
};
// Of the known places, the others.
std::vector<MissingPlace> MissingPlaces(unsigned known);

} // namespace host
