// The trace of the diagnostic library: a line is one string for the debugger, or for any tool that shows what
// debuggers are told.
#include "reporting/live_trace/trace_line.h"

bool TraceIsHeard() {
    return true;
}

// The last error is kept, because the next line may print it.
void PassTraceLine(const char* line, u32) {
    const DWORD error = GetLastError();
    OutputDebugStringA(line);
    SetLastError(error);
}
