// What the check has seen, as facts and as the file that is sent back. Pure functions, for the check, for the
// host that reads the file, and for the tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace check {

// One thing that was looked at. All texts are UTF-8.
struct Fact {
    std::string name; // "dialogs.fit"
    // What must be seen: this text, "at most" a number, or "-" for anything.
    std::string expected;
    std::string seen;
};

enum class Verdict { Held, NotHeld, Told };
Verdict VerdictOf(const Fact& fact);

struct Report {
    std::vector<Fact> facts;
    bool whole = false; // the check has come to its end
};

// "41 of 43 held"
std::string ClosingLine(const Report& report);

// The file: a heading, a line per fact with tabs between its name, what was expected and what was seen, and
// the closing line if the report is whole. Control characters in a fact become blanks.
std::string TextOf(const Report& report);

// False, with the reason in `error`, if the text is no such file. It may have any line ends, and a mark.
bool ReadReport(std::string_view text, Report& report, std::string& error);

} // namespace check
