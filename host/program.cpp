// A stand-in for the device manager: it opens the property sheets of a machine's devices with the pages of
// the library and operates them by typed commands or a script, or reports what is wrong with a machine.
#include "host/program.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>
#include <sstream>
#include <utility>

#include <CLI/CLI.hpp>

#include "host/languages.h"
#include "host/line/line_seat.h"
#include "host/session/session.h"
#include "host/subcommands.h"
#include "host/text.h"
#include "host/whole_file.h"
#include "version.h"

namespace host {
namespace {

constexpr std::string_view subcommands[] = {"diagnose", "diff", "report", "check-report"};

// How the user wants to operate the pages.
struct Wish {
    std::string file;
    std::string language; // as the user named it; empty for the language of the locale
    std::vector<std::string> commands;
    bool stop = false;
    bool line = false;  // at a prompt, even if the terminal could be filled
    bool plain = false; // windows are told as lists
};

int RunLines(World& world, const Wish& wish, LineSource& lines) {
    LineSeat seat(lines, std::cout, wish.plain);
    Session session(world, seat, wish.stop);
    if (seat.IsPerson()) {
        session.Tell(BrokenAt(
            world.Greeting() +
                ": devices lists what can be opened, diagnose finds what is wrong, help lists the commands.",
            session.Columns()));
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
        failed = Session(world, guide).Run();
    } else if (!seat.IsPerson() && session.IsUnsaved()) {
        std::cerr << "kvrhost: the machine has changed and was not exported\n";
    }
    return failed != 0 ? status_found : status_sound;
}

// What a person may have meant who names a file that is not there.
std::string Meant(const std::string& file) {
    std::error_code none;
    return file.empty() || std::filesystem::exists(PathOf(file), none)
               ? std::string()
               : Nearest(file, {std::begin(subcommands), std::end(subcommands)});
}

int Run(const Wish& wish, OpenLines open_console, OpenScreen open_screen) {
    const LANGID language = wish.language.empty() ? LANGID{0} : FindLanguage(wish.language);
    if (!wish.language.empty() && language == 0) {
        std::cerr << "kvrhost: no language " << Quoted(wish.language) << "; there are:\n" << AllLanguages();
        return status_unreadable;
    }
    const std::unique_ptr<World> world = OpenToldWorld(wish.file, language);
    if (!world) {
        if (const std::string meant = Meant(wish.file); !meant.empty()) {
            std::cerr << "kvrhost: did you mean " << meant << "?\n";
        }
        return status_unreadable;
    }
    if (!wish.commands.empty()) {
        std::stringstream commands;
        for (const std::string& command : wish.commands) {
            commands << command << '\n';
        }
        return RunLines(*world, wish, *LinesOf(commands));
    }
    if (!wish.line && !wish.plain) {
        std::string reason;
        if (const std::unique_ptr<Seat> screen = open_screen(reason)) {
            Session(*world, *screen).Run();
            return status_sound;
        }
        if (!reason.empty()) {
            std::cout << Escaped(reason) << '\n';
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
        const bool is_option =
            argument->starts_with("--") || (argument != first && *std::prev(argument) == "--language");
        if (is_option) {
            result.push_back(*argument);
        } else if (*argument != "-c" && !argument->empty()) {
            result.push_back("-c" + *argument);
        }
    }
    return result.size() == static_cast<std::size_t>(first - arguments.begin()) ? arguments : result;
}

int Choose(int argc, char** argv, OpenLines open_console, OpenScreen open_screen) {
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
    app.add_flag("--plain", wish.plain,
                 "the same, and windows are told as lists, for those who hear the screen");
    app.add_flag("--stop", wish.stop, "end at the first command that fails");

    std::string other;
    bool json = false;
    CLI::App* const diagnose = app.add_subcommand(
        "diagnose", "Shows what is wrong and what mends it. The exit status is 0 if nothing is wrong, 1 if\n"
                    "something is, and 2 if the machine can't be read.");
    std::vector<std::string> files;
    diagnose->add_option("machines", files,
                         "registry exports, or folders of them: several are told in a line each");
    diagnose->add_flag("--json", json, "prints a list for programs");
    CLI::App* const diff = app.add_subcommand(
        "diff", "Shows what differs between two exports of a machine. The exit status is 0 if nothing does,\n"
                "1 if something does, and 2 if one can't be read or no place is in both.");
    diff->add_option("old", wish.file, "the older one")->required();
    diff->add_option("new", other, "the newer one")->required();
    diff->add_flag("--json", json, "prints a list for programs");
    std::string report_file;
    bool over = false;
    CLI::App* const report = app.add_subcommand(
        "report", "Writes all that is known of a machine and wrong with it as one HTML file for a ticket.");
    report->add_option("machine", wish.file, "registry export of the machine")->required();
    report->add_option("file", report_file, "the report")->required();
    report->add_flag("--over", over, "replaces a file that exists");
    CLI::App* const check_report = app.add_subcommand(
        "check-report",
        "Shows in what a report of kvrcheck differs from what was seen on Wine, worst first. The\n"
        "exit status is 0 if in nothing, 1 if in something, and 2 if it can't be read.");
    check_report->add_option("report", wish.file, "the kvrcheck.txt that came back")->required();
    // An empty name is a variable that nobody has set, and not the sample machine.
    for (CLI::App* const each : {&app, diagnose, diff, report, check_report}) {
        for (CLI::Option* const option : each->get_options()) {
            if (option->get_positional()) {
                option->check([](const std::string& name) {
                    return name.empty() ? std::string("a file without a name") : std::string();
                });
            }
        }
    }
    try {
        std::vector<std::string> arguments = Arguments(argc, argv);
        std::ranges::reverse(arguments); // as the parser takes them
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? status_sound : status_unreadable;
    }
    if (*diagnose) {
        if (!wish.file.empty()) {
            files.insert(files.begin(), wish.file);
        }
        return Diagnose(files, json);
    }
    if (*diff) {
        return Diff(wish.file, other, json);
    }
    if (*report) {
        return Report(wish.file, report_file, over);
    }
    if (*check_report) {
        return CheckReport(wish.file);
    }
    return Run(wish, open_console, open_screen);
}

} // namespace

int RunProgram(int argc, char** argv, OpenLines open_console, OpenScreen open_screen) {
    const int status = Choose(argc, argv, open_console, open_screen);
    if (!std::cout.flush()) {
        std::cerr << "kvrhost: the output can't be written to its end\n";
        return status_unreadable;
    }
    return status;
}

} // namespace host
