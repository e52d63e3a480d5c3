// A stand-in for the device manager: it opens the property sheets of a machine's devices with the pages of
// the library and operates them by typed commands or a script, or reports what is wrong with a machine.
#include "host/line/program.h"

#include <iostream>
#include <optional>
#include <sstream>
#include <utility>

#include <CLI/CLI.hpp>

#include "host/diagnosis/changes.h"
#include "host/diagnosis/gathering.h"
#include "host/diagnosis/report.h"
#include "host/languages.h"
#include "host/line/interpreter.h"
#include "host/text.h"
#include "version.h"

namespace host {
namespace {

constexpr const char* unsaved = "kvrhost: the machine has changed and was not exported\n";
constexpr int sound = 0, found = 1, unreadable = 2; // exit statuses of the program

void Write(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        std::cout << Escaped(line) << '\n';
    }
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

struct Session {
    std::string file;
    std::string language; // as the user named it; empty for the language of the locale
    std::vector<std::string> commands;
    bool stop = false;
    bool line = false; // at a prompt, even if the terminal could be filled
};

struct OneLine : LineSource {
    std::optional<std::string> line;
    std::optional<std::string> Next(const std::string&) override { return std::exchange(line, {}); }
};

bool FillScreenWith(World& world, FillScreen fill_screen, std::string& reason) {
    OneLine typed;
    std::ostringstream out;
    Interpreter interpreter(world, typed, out);
    const auto run = [&](const std::string& line) {
        typed.line = line;
        out.str({});
        interpreter.Run();
        std::istringstream written(out.str());
        std::vector<std::string> lines;
        for (std::string each; std::getline(written, each);) {
            lines.push_back(each);
        }
        if (!lines.empty()) {
            lines.erase(lines.begin()); // the command itself
        }
        return lines;
    };
    return fill_screen(world, run, reason);
}

int Tour(World& world) {
    std::string lines;
    for (const std::string& line : world.Tour()) {
        lines += line + '\n';
    }
    std::istringstream tour(lines);
    return Interpreter(world, *LinesOf(tour), std::cout).Run() ? found : sound;
}

int Run(const Session& session, OpenLines open_console, FillScreen fill_screen) {
    const LANGID language = session.language.empty() ? LANGID{0} : FindLanguage(session.language);
    if (!session.language.empty() && language == 0) {
        std::cerr << "kvrhost: no language " << Quoted(session.language) << "; there are:\n"
                  << AllLanguages();
        return unreadable;
    }
    const std::unique_ptr<World> world = Open(session.file, language);
    if (!world) {
        return unreadable;
    }
    std::string reason;
    if (session.commands.empty() && !session.line && FillScreenWith(*world, fill_screen, reason)) {
        if (world->HasUnsavedChanges()) {
            std::cerr << unsaved;
        }
        return sound;
    }
    if (!reason.empty()) {
        std::cout << reason << '\n';
    }
    std::stringstream commands;
    for (const std::string& command : session.commands) {
        commands << command << '\n';
    }
    const std::unique_ptr<LineSource> lines = session.commands.empty() ? open_console() : LinesOf(commands);
    const std::string name = session.file.empty() ? "the sample machine" : session.file;
    Interpreter interpreter(*world, *lines, std::cout, {name, session.stop});
    if (lines->IsPerson()) {
        interpreter.Tell(
            world->Greeting() +
            ": devices lists what can be opened, diagnose finds what is wrong, help lists the commands.");
    }
    const int failed = interpreter.Run();
    if (!lines->IsPerson() && !interpreter.had_input()) {
        return Tour(*world);
    }
    if (!lines->IsPerson() && world->HasUnsavedChanges()) {
        std::cerr << unsaved;
    }
    return failed ? found : sound;
}

} // namespace

int RunProgram(int argc, char** argv, OpenLines open_console, FillScreen fill_screen) {
    CLI::App app{"Opens the property sheets of a board and its ports on the full screen of a terminal, or "
                 "operates them\n"
                 "by commands from the standard input, one per line. The command help lists them."};
    app.set_version_flag("--version", "kvrhost " VERSION_TEXT);
    Session session;
    app.add_option("machine", session.file, "registry export of the machine; without it, the sample machine");
    app.add_option("--language", session.language,
                   "the user's language by number, code or name: 1031, de, german; without it, that of the "
                   "locale");
    app.add_option("-c", session.commands, "one command each; they replace the standard input");
    app.add_flag("--line", session.line, "commands at a prompt instead of the full screen");
    app.add_flag("--stop", session.stop, "end at the first command that fails");

    std::string file, other;
    bool json = false;
    CLI::App* const diagnose = app.add_subcommand(
        "diagnose", "Shows what is wrong and what mends it. The exit status is 0 if nothing is wrong, 1 if\n"
                    "something is, and 2 if the machine can't be read.");
    diagnose->add_option("machine", file, "registry export of the machine");
    diagnose->add_flag("--json", json, "prints a list for programs");
    CLI::App* const diff = app.add_subcommand(
        "diff", "Shows what differs between two exports of a machine. The exit status is 0 if nothing does,\n"
                "1 if something does, and 2 if one can't be read.");
    diff->add_option("old", file, "the older one")->required();
    diff->add_option("new", other, "the newer one")->required();
    CLI11_PARSE(app, argc, argv);

    if (*diagnose) {
        return Diagnose(file, json);
    }
    if (*diff) {
        return Diff(file, other);
    }
    return Run(session, open_console, fill_screen);
}

} // namespace host
