// Attaches the library to a machine for a test, and lists the longest texts of its boxes.
#pragma once

#include <gtest/gtest.h>

#include "reporting/module_entry.h"
#include "tests/machines.h"
#include "tests/trace_reader.h"

namespace machines {

inline constexpr const char* no_memory = "Insufficient memory for this operation;\r\rclose one or more "
                                         "Windows applications to increase available memory.";
inline constexpr const char* in_use_question =
    "This COM name is being used by another device (such as another com port or modem).  Using duplicate "
    "names can lead to inaccessible devices and changed settings.  Do you want to continue?";

// The library is attached while this lasts, and the journal of the attachment is dropped. Every line that the
// library traces is checked. At the end everything must have been given back and left, and nothing misused.
struct AtWork {
    explicit AtWork(sim::Machine& machine) : machine_(machine), scope_(machine) {
        machine.trace = [this](std::string_view line) { trace_.Read(line); };
        DllMain(sim::LibraryInstance(), DLL_PROCESS_ATTACH, nullptr);
        Forget(machine);
    }
    ~AtWork() {
        machine_.trace = nullptr;
        EXPECT_EQ(trace_.open(), std::vector<std::string>{});
        for (const auto& [kind, count] : machine_.open) {
            ADD_FAILURE() << count << ' ' << kind << " not given back";
        }
        for (const std::string& line : machine_.misuse) {
            ADD_FAILURE() << line;
        }
    }
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;

private:
    sim::Machine& machine_;
    sim::Scope scope_;
    TraceReader trace_;
};

} // namespace machines
