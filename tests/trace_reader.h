// The trace read as a language. Its words are the table of all lines; its grammar is that entries and exits
// nest like brackets, and that a line stands under the name of the operation that is open.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

class TraceReader {
public:
    // A line with its line feed. What is wrong with it is a failure of the test.
    void Read(std::string_view line);

    // The operations that have not been left, the innermost last.
    const std::vector<std::string>& open() const { return open_; }
    // The formats that no line of this process so far was made from.
    static std::set<std::string> Unseen();

private:
    std::vector<std::string> open_;
};
