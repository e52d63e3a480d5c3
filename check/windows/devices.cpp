#include "check/windows/devices.h"

#include <io.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <sstream>

#include "check/windows/embedded.h"
#include "check/windows/journal.h"
#include "check/windows/own_machine.h"
#include "check/windows/own_world.h"
#include "check/windows/parts.h"
#include "check/windows/software_devices.h"
#include "check/windows/steps.h"
#include "host/line/line_seat.h"
#include "host/session/session.h"

namespace check {
namespace {

using host::Records;

constexpr const char* everything = "all";

// "number 247, device SWD\KVRCHECK\PORT11"
std::string WhatRemains(const std::vector<Step>& steps, const Records& now) {
    std::string left;
    for (const Step& step : steps) {
        if (Remains(step, now)) {
            left += (left.empty() ? "" : ", ") + LineOf(step);
        }
    }
    return left;
}

// Takes the steps back in reverse order, again while something remains: the system removes devices in its own
// time. Returns "all", or what remains.
std::string TakeAllBack(const std::vector<Step>& steps, OwnWorld& world) {
    constexpr int turns = 10;
    constexpr DWORD between = 1000; // milliseconds
    std::string left;
    for (int turn = 0; turn == 0 || (turn != turns && !left.empty()); ++turn) {
        Sleep(turn == 0 ? 0 : between);
        const Records before = world.All();
        std::for_each(steps.rbegin(), steps.rend(), [&](const Step& step) { TakeBack(step, before); });
        left = WhatRemains(steps, world.All());
    }
    return left.empty() ? everything : "there remains: " + left;
}

// A number that is used for anything; 0 if none of the check's own is.
unsigned long UsedNumber(const Records& records) {
    for (unsigned long number = first_number; number <= last_number; ++number) {
        if (records.numbers.contains(number)) {
            return number;
        }
    }
    return 0;
}

// Makes all steps, each after its line is on the disk. Returns what has failed, or nothing.
std::string MakeAll(Journal& journal, std::vector<Step>& made, OwnWorld& world) {
    for (const Step& step : AllSteps()) {
        if (!journal.Note(LineOf(step))) {
            return "the journal can't be written";
        }
        std::string error;
        const Made result = Make(step, error);
        if (result == Made::Refused) {
            journal.Forget();
        } else {
            made.push_back(step);
        }
        if (!error.empty()) {
            return error;
        }
    }
    return Furnish(world.All());
}

// The lines of a transcript that are the same in both worlds: all but the drawings.
std::vector<std::string> ToldLines(std::string_view transcript) {
    std::vector<std::string> lines;
    std::istringstream stream{std::string(transcript)};
    for (std::string line; std::getline(stream, line);) {
        if (!line.starts_with("  |")) {
            lines.push_back(line);
        }
    }
    return lines;
}

// Without the folder of this program, which may be named after a person.
std::string WithoutFolder(std::string line) {
    const std::string quoted = host::Quoted(ToUtf8(OwnFolder())),
                      folder = quoted.substr(1, quoted.size() - 2);
    for (std::size_t at; (at = line.find(folder)) != std::string::npos;) {
        line.erase(at, folder.size());
    }
    return line;
}

// "as kept", or the first line that differs, counted without drawings.
std::string RunScript(const KeptScript& script, OwnWorld& world) {
    std::istringstream commands{std::string(script.commands)};
    std::ostringstream out;
    const std::unique_ptr<host::LineSource> lines = host::LinesOf(commands);
    host::LineSeat seat(*lines, out);
    host::Session(world, seat).Run();
    const std::vector<std::string> kept = ToldLines(script.transcript), seen = ToldLines(out.str());
    const auto [left, right] = std::ranges::mismatch(kept, seen);
    if (left == kept.end() && right == seen.end()) {
        return "as kept";
    }
    return "line " + std::to_string(left - kept.begin() + 1) + ": " +
           (right == seen.end() ? "the end" : WithoutFolder(*right));
}

// A page of a board and one of a port, in turn.
void OpenPages(OwnWorld& world, int times, Report& report) {
    std::size_t turn = 0;
    Repeat(
        "devices.pages", times,
        [&] {
            const auto& devices = TheOwnMachine().devices;
            bool opened = false;
            world.RunSheet(devices[turn++ % 2].id, [&](HWND front) {
                opened = opened || PropSheet_GetCurrentPageHwnd(front) != nullptr;
                SendMessageW(front, WM_CLOSE, 0, 0);
            });
            return opened;
        },
        report);
}

} // namespace

void TakeBackEarlier(Report& report) {
    Journal journal;
    std::vector<std::string> lines;
    const bool is_read = journal.ReadEarlier(lines);
    if (is_read && lines.empty()) {
        journal.Delete(); // its check ended before the first step
        return;
    }
    std::vector<Step> steps;
    std::string not_read;
    for (const std::string& line : lines) {
        Step step{};
        if (ReadStep(line, step)) {
            steps.push_back(step);
        } else {
            not_read += "; not read: " + line;
        }
    }
    std::printf("What an earlier check has left\n");
    OwnWorld world;
    const std::string taken = !is_read                      ? "nothing: its journal can't be read"
                              : !HasSoftwareDevices()       ? "nothing: the system has no software devices"
                              : Rights() != "administrator" ? "nothing: the check is not the administrator's"
                              : !world.IsOpen()             ? "nothing: the system can't be read"
                                                            : TakeAllBack(steps, world);
    if (taken == everything) {
        journal.Delete();
    }
    report.facts.push_back({"earlier_check.taken_back", everything, taken + not_read});
}

bool MayMakeDevices() {
    WCHAR user[257] = {};
    DWORD length = ARRAYSIZE(user);
    if (GetUserNameW(user, &length) && lstrcmpiW(user, L"WDAGUtilityAccount") == 0) {
        return true;
    }
    if (!_isatty(_fileno(stdin)) || !_isatty(_fileno(stdout))) {
        return false;
    }
    std::printf("For some minutes, this check makes on your Windows what a board and its driver would:\n"
                "- eight software devices below SWD\\KVRCHECK, as two boards and their six ports;\n"
                "- COM%lu to COM%lu, if none of them is used: their marks in the database of ports,\n"
                "  their DOS names and their settings;\n"
                "- six entries in the list of serial ports.\n"
                "It opens the property pages of these devices, changes them there, and takes everything\n"
                "back at the end. Each step is written down before, in kvrcheck.journal in the folder\n"
                "ProgramData. If the check is ended, start it again as administrator: it first takes\n"
                "back what was left.\n"
                "Type yes if it may: ",
                first_number, last_number);
    std::fflush(stdout);
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "yes" || answer == "yes\r";
}

void LookAtDevices(bool allowed, int times, Report& report, const std::function<void()>& save) {
    OwnWorld world;
    Journal journal;
    std::string error;
    std::vector<Step> made;
    bool begun = false;
    if (!allowed) {
        error = "nobody has agreed";
    } else if (Rights() != "administrator") {
        error = "the check is not the administrator's";
    } else if (!HasSoftwareDevices()) {
        error = "the system has no software devices";
    } else if (!world.IsOpen()) {
        error = "the system can't be read";
    } else if (const unsigned long used = UsedNumber(world.All())) {
        error = host::ComName(used) + " is used";
    } else if (begun = journal.Begin(); !begun) {
        error = "an earlier check's journal is there, or none can be written";
    } else {
        error = MakeAll(journal, made, world);
    }
    report.facts.push_back({"devices.made", everything, error.empty() ? everything : error});
    if (error.empty()) {
        for (const KeptScript& script : KeptScripts()) {
            save();
            error = Furnish(world.All());
            report.facts.push_back({std::string("devices.script.") + script.name, "as kept",
                                    error.empty() ? RunScript(script, world) : error});
        }
        save();
        OpenPages(world, times, report);
    }
    if (begun) {
        const std::string taken = TakeAllBack(made, world);
        if (taken == everything) {
            journal.Delete();
        }
        report.facts.push_back({"devices.taken_back", everything, taken});
    }
}

} // namespace check
