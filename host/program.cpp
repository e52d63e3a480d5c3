// A stand-in for the device manager: it opens the property sheets of a machine's devices with the pages of
// the library and operates them by typed commands or a script, or reports what is wrong with a machine.
#include "host/program.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
#include <utility>

#include <CLI/CLI.hpp>

#include "check/comparison.h"
#include "host/diagnosis/changes.h"
#include "host/diagnosis/gathering.h"
#include "host/diagnosis/report.h"
#include "host/languages.h"
#include "host/line/line_seat.h"
#include "host/session/session.h"
#include "host/text.h"
#include "version.h"

namespace host {
namespace {

constexpr std::string_view subcommands[] = {"diagnose", "diff", "check-report"};
constexpr int sound = 0, found = 1, unreadable = 2; // exit statuses of the program

void Write(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        std::cout << Escaped(line) << '\n';
    }
}

std::string NameOf(const std::string& file) {
    return file.empty() ? "the sample machine" : file;
}

std::unique_ptr<World> Open(const std::string& file, LANGID language = 0) {
    std::string error;
    std::unique_ptr<World> world = OpenWorld(file, language, error);
    if (!world) {
        std::cerr << "kvrhost: " << Escaped(error) << '\n';
    }
    return world;
}

int Diagnose(const std::string& file, bool json) {
    const std::unique_ptr<World> world = Open(file);
    if (!world) {
        return unreadable;
    }
    const Records records = RecordsOf(*world);
    if (json) {
        std::cout << DiagnosisJson(records, file);
    } else {
        Write(DiagnosisLines(records));
    }
    return Diagnose(records).empty() ? sound : found;
}

int Diff(const std::string& before, const std::string& after) {
    Records records[2];
    for (const auto& [file, its_records] : {std::pair{&before, &records[0]}, {&after, &records[1]}}) {
        const std::unique_ptr<World> world = Open(*file);
        if (!world) {
            return unreadable;
        }
        *its_records = RecordsOf(*world);
    }
    Write(ChangeLines(records[0], records[1]));
    return Changes(records[0], records[1]).empty() ? sound : found;
}

int CheckReport(const std::string& file) {
    std::ifstream in(std::filesystem::path(FromUtf8(file)), std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(in)), {});
    std::string error;
    check::Report wine, report;
    check::ReadReport(check::WineReport(), wine, error);
    if (in.bad() || !in.is_open()) {
        error = "it can't be read";
    }
    if (!error.empty() || !check::ReadReport(text, report, error)) {
        std::cerr << "kvrhost: " << Escaped(file + ": " + error) << '\n';
        return unreadable;
    }
    Write(check::ComparisonLines(report, wine));
    return check::Compare(report, wine).empty() ? sound : found;
}

// How the user wants to operate the pages.
struct Wish {
    std::string file;
    std::string language; // as the user named it; empty for the language of the locale
    std::vector<std::string> commands;
    bool stop = false;
    bool line = false; // at a prompt, even if the terminal could be filled
};

int RunLines(World& world, const Wish& wish, LineSource& lines) {
    LineSeat seat(lines, std::cout);
    Session session(world, NameOf(wish.file), seat, wish.stop);
    if (seat.IsPerson()) {
        session.Tell(
            world.Greeting() +
            ": devices lists what can be opened, diagnose finds what is wrong, help lists the commands.");
    }
    int failed = session.Run();
    if (!seat.IsPerson() && !seat.had_input()) {
        std::string commands;
        for (const std::string& line : world.Tour()) {
            commands += line + '\n';
        }
        std::istringstream tour(commands);
        const std::unique_ptr<LineSource> tour_lines = LinesOf(tour);
        LineSeat guide(*tour_lines, std::cout);
        failed = Session(world, NameOf(wish.file), guide).Run();
    } else if (!seat.IsPerson() && session.IsUnsaved()) {
        std::cerr << "kvrhost: the machine has changed and was not exported\n";
    }
    return failed != 0 ? found : sound;
}

int Run(const Wish& wish, OpenLines open_console, OpenScreen open_screen) {
    const LANGID language = wish.language.empty() ? LANGID{0} : FindLanguage(wish.language);
    if (!wish.language.empty() && language == 0) {
        std::cerr << "kvrhost: no language " << Quoted(wish.language) << "; there are:\n" << AllLanguages();
        return unreadable;
    }
    const std::unique_ptr<World> world = Open(wish.file, language);
    if (!world) {
        return unreadable;
    }
    if (!wish.commands.empty()) {
        std::stringstream commands;
        for (const std::string& command : wish.commands) {
            commands << command << '\n';
        }
        return RunLines(*world, wish, *LinesOf(commands));
    }
    if (!wish.line) {
        std::string reason;
        if (const std::unique_ptr<Seat> screen = open_screen(reason)) {
            Session(*world, NameOf(wish.file), *screen).Run();
            return sound;
        }
        if (!reason.empty()) {
            std::cout << reason << '\n';
        }
    }
    return RunLines(*world, wish, *open_console());
}

// The arguments with what follows the first -c made commands, each by itself, even if it is the name of a
// subcommand. Options stay what they are.
std::vector<std::string> Arguments(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto first = std::ranges::find(arguments, "-c");
    const bool has_subcommand = std::any_of(arguments.begin(), first, [](const std::string& argument) {
        return std::ranges::find(subcommands, argument) != std::end(subcommands);
    });
    if (first == arguments.end() || has_subcommand) {
        return arguments;
    }
    std::vector<std::string> result(arguments.begin(), first);
    for (auto argument = first; argument != arguments.end(); ++argument) {
        if (*argument != "-c") {
            result.push_back((argument->starts_with("--") ? "" : "-c") + *argument);
        }
    }
    return result;
}

} // namespace

int RunProgram(int argc, char** argv, OpenLines open_console, OpenScreen open_screen) {
    CLI::App app{"Opens the property sheets of a board and its ports on the full screen of a terminal, or "
                 "operates them\n"
                 "by commands from the standard input, one per line. The command help lists them.",
                 "kvrhost"};
    app.set_version_flag("--version", "kvrhost " VERSION_TEXT);
    Wish wish;
    app.add_option("machine", wish.file, "registry export of the machine; without it, the sample machine");
    app.add_option("--language", wish.language,
                   "the user's language by number, code or name: 1031, de, german; without it, that of the "
                   "locale");
    app.add_option("-c", wish.commands, "one command each; they replace the standard input")
        ->expected(1)
        ->take_all();
    app.add_flag("--line", wish.line, "commands at a prompt instead of the full screen");
    app.add_flag("--stop", wish.stop, "end at the first command that fails");

    std::string other;
    bool json = false;
    CLI::App* const diagnose = app.add_subcommand(
        "diagnose", "Shows what is wrong and what mends it. The exit status is 0 if nothing is wrong, 1 if\n"
                    "something is, and 2 if the machine can't be read.");
    diagnose->add_option("machine", wish.file, "registry export of the machine");
    diagnose->add_flag("--json", json, "prints a list for programs");
    CLI::App* const diff = app.add_subcommand(
        "diff", "Shows what differs between two exports of a machine. The exit status is 0 if nothing does,\n"
                "1 if something does, and 2 if one can't be read.");
    diff->add_option("old", wish.file, "the older one")->required();
    diff->add_option("new", other, "the newer one")->required();
    CLI::App* const check_report = app.add_subcommand(
        "check-report",
        "Shows in what a report of kvrcheck differs from what was seen on Wine, worst first. The\n"
        "exit status is 0 if in nothing, 1 if in something, and 2 if it can't be read.");
    check_report->add_option("report", wish.file, "the kvrcheck.txt that came back")->required();
    try {
        std::vector<std::string> arguments = Arguments(argc, argv);
        std::ranges::reverse(arguments); // as the parser takes them
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? sound : unreadable;
    }
    if (*diagnose) {
        return Diagnose(wish.file, json);
    }
    if (*diff) {
        return Diff(wish.file, other);
    }
    if (*check_report) {
        return CheckReport(wish.file);
    }
    return Run(wish, open_console, open_screen);
}

} // namespace host
