// The device manager's stand-in: opens the property sheets of a machine's devices with the pages of the
// library and operates them by typed commands or a script, or tells what is wrong with a machine.
#include <iostream>
#include <sstream>

#include <CLI/CLI.hpp>

#include "host/diagnosis/changes.h"
#include "host/diagnosis/gathering.h"
#include "host/diagnosis/report.h"
#include "host/line/interpreter.h"
#include "host/line/tour.h"

namespace {

constexpr int sound = 0, found = 1, unreadable = 2; // what the program ends with

void Write(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        std::cout << host::Escaped(line) << '\n';
    }
}

std::unique_ptr<host::World> Open(const std::string& file, LANGID language = 0) {
    std::string error;
    std::unique_ptr<host::World> world = host::OpenWorld(file, language, error);
    if (!world) {
        std::cerr << "kvrhost: " << host::Escaped(error) << '\n';
    }
    return world;
}

int Diagnose(const std::string& file, bool json) {
    const std::unique_ptr<host::World> world = Open(file);
    if (!world) {
        return unreadable;
    }
    const host::Records records = host::RecordsOf(*world);
    if (json) {
        std::cout << host::DiagnosisJson(records, file);
    } else {
        Write(host::DiagnosisLines(records));
    }
    return host::Diagnose(records).empty() ? sound : found;
}

int Diff(const std::string& before, const std::string& after) {
    host::Records records[2];
    for (const auto& [file, its_records] : {std::pair{&before, &records[0]}, {&after, &records[1]}}) {
        const std::unique_ptr<host::World> world = Open(*file);
        if (!world) {
            return unreadable;
        }
        *its_records = host::RecordsOf(*world);
    }
    Write(host::ChangeLines(records[0], records[1]));
    return host::Changes(records[0], records[1]).empty() ? sound : found;
}

struct Session {
    std::string file;
    LANGID language = 0;
    std::vector<std::string> commands;
    bool stop = false;
};

int Run(const Session& session) {
    const std::unique_ptr<host::World> world = Open(session.file, session.language);
    if (!world) {
        return unreadable;
    }
    std::stringstream commands;
    for (const std::string& command : session.commands) {
        commands << command << '\n';
    }
    const std::unique_ptr<host::LineSource> lines =
        session.commands.empty() ? host::OpenConsole() : host::LinesOf(commands);
    const std::string name = session.file.empty() ? "the sample machine" : session.file;
    if (lines->IsPerson()) {
        std::cout << name
                  << ": devices lists what can be opened, diagnose tells what is wrong, help tells the "
                     "commands.\n";
    }
    host::Interpreter interpreter(*world, *lines, std::cout, {name, session.stop});
    int failed = interpreter.Run();
    if (!interpreter.had_input() && !lines->IsPerson() && session.file.empty()) {
        const std::unique_ptr<host::LineSource> tour = host::TourLines();
        failed = host::Interpreter(*world, *tour, std::cout).Run();
    }
    return failed ? found : sound;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{
        "Opens the property sheets of a board and its ports, and operates them by commands: typed at a\n"
        "terminal, or from the standard input, one a line. The word help tells them."};
    Session session;
    app.add_option("machine", session.file, "registry export of the machine; without it, the sample machine");
    app.add_option("--language", session.language,
                   "language id of the user, such as 1031; without it, that of the locale");
    app.add_option("-c", session.commands, "the commands, one each, instead of those of the input");
    app.add_flag("--stop", session.stop, "end at the first command that fails");

    std::string file, other;
    bool json = false;
    CLI::App* const diagnose = app.add_subcommand(
        "diagnose",
        "Tells what is wrong and what mends it; ends with 0 if nothing is, with 1 if something is,\n"
        "with 2 if the machine can't be read");
    diagnose->add_option("machine", file, "registry export of the machine");
    diagnose->add_flag("--json", json, "as a list for programs");
    CLI::App* const diff = app.add_subcommand(
        "diff",
        "Tells what differs between two exports of a machine; ends with 0 if nothing does, with 1 if\n"
        "something does, with 2 if one can't be read");
    diff->add_option("old", file, "the older one")->required();
    diff->add_option("new", other, "the newer one")->required();
    CLI11_PARSE(app, argc, argv);

    if (*diagnose) {
        return Diagnose(file, json);
    }
    if (*diff) {
        return Diff(file, other);
    }
    return Run(session);
}
