#include "check/facts.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace check {
namespace {

constexpr std::string_view heading = "name\texpected\tseen", at_most = "at most ", anything = "-";

bool Number(std::string_view text, long long& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

std::string Field(std::string text) {
    std::ranges::replace_if(
        text, [](char unit) { return (unit >= 0 && unit < ' ') || unit == 0x7F; }, ' ');
    return text;
}

// Takes the text up to the delimiter off, or all of it.
std::string_view Take(std::string_view& text, char delimiter) {
    const std::size_t end = std::min(text.find(delimiter), text.size());
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return taken;
}

} // namespace

Verdict VerdictOf(const Fact& fact) {
    if (fact.expected == anything) {
        return Verdict::Told;
    }
    long long most = 0, seen = 0;
    const bool holds = fact.expected.starts_with(at_most)
                           ? Number(std::string_view(fact.expected).substr(at_most.size()), most) &&
                                 Number(fact.seen, seen) && seen <= most
                           : fact.seen == fact.expected;
    return holds ? Verdict::Held : Verdict::NotHeld;
}

std::string ClosingLine(const Report& report) {
    const auto held = std::ranges::count(report.facts, Verdict::Held, VerdictOf);
    const auto told = std::ranges::count(report.facts, Verdict::Told, VerdictOf);
    return std::to_string(held) + " of " +
           std::to_string(report.facts.size() - static_cast<std::size_t>(told)) + " held";
}

std::string TextOf(const Report& report) {
    std::string text(heading);
    text += '\n';
    for (const Fact& fact : report.facts) {
        text += Field(fact.name) + '\t' + Field(fact.expected) + '\t' + Field(fact.seen) + '\n';
    }
    return report.whole ? text + ClosingLine(report) + '\n' : text;
}

bool ReadReport(std::string_view text, Report& report, std::string& error) {
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    report = {};
    std::set<std::string> names;
    for (int number = 1; !text.empty(); ++number) {
        std::string_view line = Take(text, '\n');
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        const std::string place = "line " + std::to_string(number);
        if (number == 1) {
            if (line != heading) {
                error = "it is no report of kvrcheck";
                return false;
            }
            continue;
        }
        if (report.whole && !line.empty()) {
            error = place + " stands behind the end";
            return false;
        }
        if (std::ranges::count(line, '\t') == 2) {
            Fact fact;
            fact.name = Take(line, '\t');
            fact.expected = Take(line, '\t');
            fact.seen = line;
            if (!names.insert(fact.name).second) {
                error = place + " tells a fact again";
                return false;
            }
            report.facts.push_back(std::move(fact));
        } else if (line.ends_with(" held") && line == ClosingLine(report)) {
            report.whole = true;
        } else if (!line.empty()) {
            error = place + (line.ends_with(" held")
                                 ? " does not count what stands before it"
                                 : " is no fact: a name, what was expected and what was seen");
            return false;
        }
    }
    if (report.facts.empty()) {
        error = "it is no report of kvrcheck";
        return false;
    }
    return true;
}

} // namespace check
