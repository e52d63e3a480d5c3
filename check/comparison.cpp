#include "check/comparison.h"

#include <algorithm>

namespace check {
namespace {

const Fact* Find(const Report& report, const std::string& name) {
    const auto found = std::ranges::find(report.facts, name, &Fact::name);
    return found != report.facts.end() ? &*found : nullptr;
}

bool IsAboutMachine(const Fact& fact) {
    return fact.name.starts_with("about.");
}

std::string Shown(const std::string& text) {
    return text.empty() ? "nothing" : text;
}

Difference DifferenceOf(const Fact& here, const Fact& there) {
    const Verdict verdict = VerdictOf(here), on_wine = VerdictOf(there);
    if (verdict == Verdict::NotHeld) {
        return {Weight::Failed, "does not hold: " + here.name + ": expected " + Shown(here.expected) +
                                    ", seen " + Shown(here.seen) +
                                    (on_wine == Verdict::NotHeld ? "; on Wine, where it did not hold either, "
                                                                 : "; on Wine ") +
                                    Shown(there.seen)};
    }
    const bool mended = verdict == Verdict::Held && on_wine == Verdict::NotHeld;
    return {mended ? Weight::Mended : Weight::Different,
            (mended ? "holds, but not on Wine: " : "otherwise: ") + here.name + ": seen " + Shown(here.seen) +
                "; on Wine " + Shown(there.seen)};
}

bool IsAboutDevices(const Fact& fact) {
    return fact.name.starts_with("devices.");
}

} // namespace

std::vector<Difference> Compare(const Report& seen, const Report& wine) {
    std::vector<Difference> differences;
    for (const Fact& here : seen.facts) {
        const Fact* const there = Find(wine, here.name);
        if (there == nullptr) {
            differences.push_back({VerdictOf(here) == Verdict::NotHeld ? Weight::Failed : Weight::New,
                                   "not in Wine's report: " + here.name + ": expected " +
                                       Shown(here.expected) + ", seen " + Shown(here.seen)});
        } else if (!IsAboutMachine(here) &&
                   (here.seen != there->seen || VerdictOf(here) != VerdictOf(*there))) {
            differences.push_back(DifferenceOf(here, *there));
        }
    }
    const bool made_devices = std::ranges::any_of(seen.facts, IsAboutDevices);
    if (!made_devices && std::ranges::any_of(wine.facts, IsAboutDevices)) {
        differences.push_back({Weight::Missing, "not looked at: devices: it was made without --devices"});
    }
    for (const Fact& there : wine.facts) {
        if (Find(seen, there.name) == nullptr && (made_devices || !IsAboutDevices(there))) {
            differences.push_back({Weight::Missing, "not looked at: " + there.name});
        }
    }
    std::ranges::stable_sort(differences, {}, &Difference::weight);
    return differences;
}

std::vector<std::string> ComparisonLines(const Report& seen, const std::vector<Difference>& differences) {
    std::vector<std::string> lines;
    for (const Fact& fact : seen.facts) {
        if (IsAboutMachine(fact)) {
            lines.push_back(fact.name.substr(std::string_view("about.").size()) + ": " + fact.seen);
        }
    }
    lines.push_back(ClosingLine(seen) + (seen.whole ? "" : "; the check did not come to its end"));
    for (const Difference& difference : differences) {
        lines.push_back(difference.line);
    }
    if (differences.empty()) {
        lines.push_back("all as on Wine");
    }
    return lines;
}

} // namespace check
