// The trace of the library on the simulated machine: each line goes to `Machine::trace`, if that is set.
#include "reporting/live_trace/trace_line.h"
#include "simulated/machine.h"

bool TraceIsHeard() {
    return sim::Current().trace != nullptr;
}

void PassTraceLine(const char* line, u32 length) {
    sim::Current().trace(std::string_view(line, length));
}
