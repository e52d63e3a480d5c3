// What the check changes outside its own folder, as steps that are made and taken back in pairs. All of it
// has names of the check's own, or is one of its numbers, which are not used by anything before: so taking
// back needs nothing but the name, does no harm if the step was not done, and touches nothing else, whatever
// a journal says.
#pragma once

#include <string>
#include <vector>

#include "host/worlds/world.h"

namespace check {

// The numbers: those of the ports, one that is claimed by nothing, and those that the scripts rename to. With
// the highest one a sort parks its ports.
inline constexpr unsigned long first_number = 241, last_number = 256;

struct StepKind;

struct Step {
    const StepKind* kind;
    std::string what; // "247", "SWD\KVRCHECK\PORT11", "\Device\KvrCheck0"
};

// All steps, in the order in which they are made.
std::vector<Step> AllSteps();

// "number 247": its line in the journal.
std::string LineOf(const Step& step);
// False if the line is no such step.
bool ReadStep(const std::string& line, Step& step);

enum class Made { Done, Refused, InPart }; // a step that was refused has made nothing
Made Make(const Step& step, std::string& error);

// As far as it can. `before` is the machine as it is then: a number that another device has by now is left to
// it.
void TakeBack(const Step& step, const host::Records& before);

// Whether there is still something of it.
bool Remains(const Step& step, const host::Records& now);

// Gives the devices, numbers and lists that were made the values of the check's machine, whatever scripts
// have done to them. `before` is as above. Returns what has failed, or nothing.
std::string Furnish(const host::Records& before);

// What of a machine is the check's own.
void KeepOwn(host::Records& records);

} // namespace check
