// The commands that find what is wrong with a machine, mend it, and make a patch of the changes.
#include <algorithm>

#include "host/diagnosis/board_table.h"
#include "host/diagnosis/mending.h"
#include "host/diagnosis/number_map.h"
#include "host/diagnosis/report.h"
#include "host/machine_file/differences.h"
#include "host/session/command.h"
#include "host/session/session.h"
#include "host/session/session_report.h"
#include "host/text.h"
#include "host/worlds/port_changes.h"

namespace host {
namespace {

constexpr const char* even_so = "--even-so";

// "COM13" or "13".
unsigned long NumberOf(const std::string& word) {
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

void Diagnose(Session& session, const Words&) {
    const Records records = session.world().Describe();
    session.Tell(DiagnosisLines(records, host::Diagnose(records)));
}

void Why(Session& session, const Words& words) {
    const Records records = session.world().Describe();
    session.Tell(NumberLines(records, host::Diagnose(records), NumberOf(words[1])));
}

void Numbers(Session& session, const Words&) {
    session.Tell(NumberMapLines(session.world().Describe(), session.Columns()));
}

void Board(Session& session, const Words& words) {
    const DeviceRecord device = session.FindDevice(words[1]);
    const BoardTable table = TableOfBoard(session.world().Describe(), device);
    if (table.lines.empty()) {
        throw Refusal(NameOf(device) + " belongs to no board that has a page");
    }
    session.Tell(table.lines);
}

void Report(Session& session, const Words& words) {
    std::string error;
    Must(WriteReport(session, FileToWrite(words), "What has been changed here since it was read:", error),
         error);
    session.Tell(words.back() + " is written");
}

void FreeIn(Session& session, const Records& records, const Words& words) {
    const unsigned long number = NumberOf(words[1]);
    Heed("freed", AgainstFreeing(records, number), IsOverruled(words));
    std::string error;
    Must(ReleaseNumber(number, error), error);
    session.Tell(ComName(number) + ": freed in the COM port database");
}

void ClaimIn(Session& session, const Records& records, const Words& words) {
    const unsigned long number = NumberOf(words[1]);
    Heed("claimed", AgainstClaiming(records, number), IsOverruled(words));
    std::string error;
    Must(ClaimNumber(number, error), error);
    session.Tell(ComName(number) + ": claimed in the COM port database");
}

void ForgetIn(Session& session, const Records& records, const Words& words) {
    const std::string key = LineKey(records, words[1]);
    if (key.empty()) {
        throw Refusal("there is no settings line " + Quoted(words[1]));
    }
    Heed("forgotten", AgainstForgetting(records, key), IsOverruled(words));
    std::string error;
    Must(ForgetLine(key, error), error);
    session.Tell(key + " forgotten");
}

template <auto In> void Now(Session& session, const Words& words) {
    In(session, session.world().Describe(), words);
}

// The machine is described once, however many findings it has: each is about something of its own.
void Mend(Session& session, const Words&) {
    constexpr std::pair<std::string_view, decltype(&FreeIn)> menders[] = {
        {"free", FreeIn}, {"claim", ClaimIn}, {"forget", ForgetIn}};
    const Records records = session.world().Describe();
    bool is_mended = false;
    for (const Finding& finding : host::Diagnose(records)) {
        if (finding.safe) {
            Words words;
            SplitWords(finding.command, words);
            std::ranges::find(menders, words[0], &std::pair<std::string_view, decltype(&FreeIn)>::first)
                ->second(session, records, words);
            is_mended = true;
        }
    }
    if (!is_mended) {
        session.Tell("there is nothing that is safe to mend");
    }
}

void Changes(Session& session, const Words&) {
    const Records now = session.world().Describe();
    session.Tell(DifferenceLines(AsRead(session.original(), now), now));
}

// Setting the machine back would leave an open page with data that no longer exist.
History& HistoryToGoBackIn(Session& session) {
    session.MustHaveNoWindow();
    if (!session.history().IsKept()) {
        throw Refusal("this is the machine itself, and what was done to it can't be taken back from here");
    }
    return session.history();
}

void Undo(Session& session, const Words&) {
    const std::string action = HistoryToGoBackIn(session).Undo();
    if (action.empty()) {
        throw Refusal("there is nothing to undo");
    }
    session.Tell("undone: " + action);
}

void Reload(Session& session, const Words& words) {
    HistoryToGoBackIn(session).Reload(words[0]);
    session.Tell("the machine is as it was read");
}

void Patch(Session& session, const Words& words) {
    FileMachine* const machine = session.world().File();
    if (machine == nullptr) {
        throw Refusal("what is changed here is changed already: a patch is made from an export");
    }
    const std::string file = FileToWrite(words);
    Must(!session.IsReadFrom(file), file + " is the export that the machine was read from");
    std::string told;
    Must(machine->Patch(session.original(), file, words.size() > 2, told), told);
    session.Tell(told);
}

void Fail(Session& session, const Words& words) {
    FileMachine* const machine = session.world().File();
    if (machine == nullptr) {
        throw Refusal("the system itself can't be made to fail");
    }
    const bool is_off = Folded(words[1]) == "off";
    long call = 1;
    if (words.size() > 2 && (is_off || !ParseNumber(words[2], call) || call < 1)) {
        throw Refusal("use fail OPERATION N, with N from 1, or fail off");
    }
    if (!machine->Fail(is_off ? std::string() : words[1], static_cast<std::size_t>(call))) {
        const std::string nearest = Nearest(words[1], machine->Operations());
        throw Refusal("no operation " + Quoted(words[1]) +
                      (nearest.empty() ? "" : ": did you mean " + nearest + '?'));
    }
}

} // namespace

std::span<const Command> MendingCommands() {
    static constexpr Command commands[] = {
        {"diagnose", "", "lists what is wrong with the ports and boards, worst first, and what mends it",
         &Diagnose},
        {"why", "NUMBER", "shows all that is known about one COM number", &Why},
        {"numbers", "", "shows the 256 COM numbers as a map", &Numbers},
        {"board", "DEVICE", "shows a board's channels with number, interface and FIFO levels", &Board},
        {"report", "[--over] FILE", "writes all that is known and wrong as an HTML file for a ticket",
         &Report},
        {"free", "NUMBER [--even-so]", "takes a number from the COM port database", &Now<FreeIn>},
        {"claim", "NUMBER [--even-so]", "marks a number as in use there", &Now<ClaimIn>},
        {"forget", "LINE [--even-so]", "deletes a settings line, such as COM44:", &Now<ForgetIn>},
        {"mend", "", "mends all that is safe without a look at the machine", &Mend},
        {"changes", "", "lists what differs from the machine as it was read", &Changes},
        {"undo", "", "undoes the last action that changed something", &Undo},
        {"reload", "", "goes back to the machine as it was read", &Reload},
        {"patch", "[--over] FILE",
         "writes a file to import that makes the same changes, and one that takes it back", &Patch},
        {"fail", "OPERATION [N]", "makes the n-th call of an operation from now on fail; fail off ends that",
         &Fail},
    };
    return commands;
}

} // namespace host
