// Reads the trace as a language. Its words are the table of all lines. Its grammar: entries and exits nest
// like brackets, and a line belongs to the operation that is open.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

class TraceReader {
public:
    // Reads a line with its line feed. The test fails if anything is wrong with it.
    void Read(std::string_view line);

    // The operations that are still open, the innermost last.
    const std::vector<std::string>& open() const { return open_; }
    // The formats that no line in this process has matched so far.
    static std::set<std::string> Unseen();

private:
    std::vector<std::string> open_;
};
