#include "host/line/bench.h"

#include <algorithm>

#include "host/diagnosis/changes.h"
#include "host/diagnosis/gathering.h"
#include "host/diagnosis/mending.h"
#include "host/diagnosis/report.h"
#include "host/screen/naming.h"
#include "host/text.h"
#include "host/worlds/port_changes.h"

namespace host {
namespace {

constexpr const char* even_so = "--even-so";

// "COM13" or "13".
unsigned long NumberIn(const std::string& word) {
    long number = 0;
    const unsigned long named = PortNumber(word);
    if (named == 0 && (!ParseNumber(word, number) || number < 1)) {
        throw Refusal(Quoted(word) + " is not a COM number");
    }
    return named != 0 ? named : static_cast<unsigned long>(number);
}

bool IsOverruled(const Words& words) {
    if (words.size() < 3) {
        return false;
    }
    if (Folded(words[2]) != even_so) {
        throw Refusal(Quoted(words[2]) + " is not " + even_so);
    }
    return true;
}

void Heed(const std::string& what, const std::optional<Objection>& objection, bool overruled) {
    if (objection && (objection->final || !overruled)) {
        throw Refusal("not " + what + ": " + objection->reason +
                      (objection->final ? "" : std::string{"; "} + even_so + " does it"));
    }
}

void Must(bool done, const std::string& error) {
    if (!done) {
        throw Refusal(error);
    }
}

} // namespace

Bench::Bench(World& world, std::string source)
    : world_(world), source_(std::move(source)), original_(RecordsOf(world)), history_(world) {}

Lines Bench::Diagnose(const Words&) {
    return DiagnosisLines(RecordsOf(world_));
}

Lines Bench::Why(const Words& words) {
    return NumberLines(RecordsOf(world_), NumberIn(words[1]));
}

Lines Bench::Free(const Words& words) {
    const unsigned long number = NumberIn(words[1]);
    Heed("freed", AgainstFreeing(RecordsOf(world_), number), IsOverruled(words));
    std::string error;
    Must(ReleaseNumber(number, error), error);
    return {ComName(number) + ": freed in the COM port database"};
}

Lines Bench::Claim(const Words& words) {
    const unsigned long number = NumberIn(words[1]);
    Heed("claimed", AgainstClaiming(RecordsOf(world_), number), IsOverruled(words));
    std::string error;
    Must(ClaimNumber(number, error), error);
    return {ComName(number) + ": claimed in the COM port database"};
}

Lines Bench::Forget(const Words& words) {
    const Records records = RecordsOf(world_);
    const std::string key = LineKey(records, words[1]);
    if (key.empty()) {
        throw Refusal("there is no settings line " + Quoted(words[1]));
    }
    Heed("forgotten", AgainstForgetting(records, key), IsOverruled(words));
    std::string error;
    Must(ForgetLine(key, error), error);
    return {Escaped(key) + " forgotten"};
}

Lines Bench::Mend(const Words&) {
    static constexpr struct {
        const char* name;
        Lines (Bench::*run)(const Words& words);
    } remedies[] = {{"free", &Bench::Free}, {"claim", &Bench::Claim}, {"forget", &Bench::Forget}};
    Lines lines;
    for (const Finding& finding : host::Diagnose(RecordsOf(world_))) {
        Words words;
        SplitWords(finding.command, words);
        const auto remedy = std::ranges::find_if(
            remedies, [&](const auto& each) { return finding.safe && words[0] == each.name; });
        if (remedy != std::end(remedies)) {
            const Lines told = (this->*remedy->run)(words);
            lines.insert(lines.end(), told.begin(), told.end());
        }
    }
    return lines.empty() ? Lines{"there is nothing that is safe to mend"} : lines;
}

Lines Bench::Changes(const Words&) {
    return ChangeLines(original_, RecordsOf(world_));
}

void Bench::MustBeKept() const {
    if (!history_.IsKept()) {
        throw Refusal("this is the machine itself, and what was done to it can't be taken back from here");
    }
}

Lines Bench::Undo(const Words&) {
    MustBeKept();
    const std::string command = history_.Undo();
    if (command.empty()) {
        throw Refusal("there is nothing to undo");
    }
    return {"undone: " + command};
}

Lines Bench::Reload(const Words&) {
    MustBeKept();
    history_.Reload();
    return {"the machine is as it was read"};
}

Lines Bench::Patch(const Words& words) {
    const std::string file = FileToWrite(words);
    const std::string undo = UndoPath(file);
    const std::vector<Change> changes = host::Changes(original_, RecordsOf(world_));
    std::string error;
    Must(world_.Patch(file, PatchComments(changes, source_), undo, UndoComments(changes, file), error),
         error);
    return {file + " holds what has changed, " + undo + " takes it back"};
}

Lines Bench::Fail(const Words& words) {
    const bool off = words.size() == 2 && Folded(words[1]) == "off";
    long call = 0;
    if (!off && (words.size() < 3 || !ParseNumber(words[2], call) || call < 1)) {
        throw Refusal("use fail OPERATION N, from 1, or fail off");
    }
    Must(world_.Fail(off ? std::string() : words[1], static_cast<std::size_t>(call)),
         "the system itself can't be made to fail");
    return {};
}

} // namespace host
