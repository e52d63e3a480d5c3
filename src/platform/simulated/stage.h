// Who is at work on the machine, and what is open: for the files of this folder only.
#pragma once

#include <string_view>

#include "platform/simulated/machine.h"

namespace sim {

// While it lasts, the calls come from whoever sits in front of the screen: they are not journaled, counted or
// failed. A modal window opens one around its operator.
struct OperatorAtWork {
    OperatorAtWork();
    ~OperatorAtWork();

private:
    bool before_;
};

// While it lasts, the calls come from the logic again: around each dialog procedure, page callback and add-page
// function that is called.
struct LogicAtWork {
    LogicAtWork();
    ~LogicAtWork();

private:
    bool before_;
};

// Counts a thing that the logic has taken and given back, by its kind: "memory", "key", "set", "database", "page".
void Opened(std::string_view kind);
void Closed(std::string_view kind);
// A line in `Machine::misuse`.
void Misuse(std::string line);

} // namespace sim
