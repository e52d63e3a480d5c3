#include "host/subcommands.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "check/comparison.h"
#include "host/diagnosis/report.h"
#include "host/line/line_seat.h"
#include "host/machine_file/differences.h"
#include "host/session/session.h"
#include "host/session/session_report.h"
#include "host/text.h"
#include "host/whole_file.h"

namespace host {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr int json_version = 1; // of what the programs that read it rely on

// In ASCII: no character of a machine commands the terminal. Invalid UTF-8 becomes U+FFFD.
void WriteJson(const Json& document) {
    Json versioned = {{"version", json_version}};
    versioned.update(document);
    std::cout << versioned.dump(2, ' ', true, Json::error_handler_t::replace) << '\n';
}

void Write(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        std::cout << Escaped(line) << '\n';
    }
}

// What was found about one of several machines.
struct Judged {
    std::string path, summary;
    int status = status_sound;
    std::size_t serious = 0, all = 0; // findings
    Json json;
};

Judged Judge(const std::string& path) {
    std::string error;
    const std::unique_ptr<World> world = OpenWorld(path, 0, error);
    if (!world) {
        return {path, "This can't be read: " + error,       status_unreadable, 0,
                0,    {{"machine", path}, {"error", error}}};
    }
    const Records records = world->Describe();
    const std::vector<Finding> findings = Diagnose(records);
    return {path,
            Summary(records, findings),
            !CanBeJudged(records) ? status_unreadable
            : findings.empty()    ? status_sound
                                  : status_found,
            static_cast<std::size_t>(std::ranges::count(findings, Severity::Serious, &Finding::severity)),
            findings.size(),
            DiagnosisJson(records, findings, path)};
}

// The paths with each folder replaced by the exports in it.
std::vector<std::string> FilesOf(const std::vector<std::string>& paths) {
    std::vector<std::string> files;
    for (const std::string& path : paths) {
        std::error_code failure;
        if (!fs::is_directory(PathOf(path), failure)) {
            files.push_back(path);
            continue;
        }
        std::vector<std::string> inside;
        for (auto entry = fs::directory_iterator(PathOf(path), failure); !failure && entry != fs::end(entry);
             entry.increment(failure)) {
            if (Folded(FileName(entry->path().extension())) == ".reg") {
                inside.push_back(FileName(entry->path()));
            }
        }
        std::ranges::sort(inside);
        files.insert(files.end(), inside.begin(), inside.end());
    }
    return files;
}

int DiagnoseSeveral(const std::vector<std::string>& files, bool json) {
    std::vector<Judged> machines;
    std::ranges::transform(files, std::back_inserter(machines), Judge);
    std::ranges::stable_sort(machines, std::greater(), [](const Judged& machine) {
        return std::tuple(machine.status, machine.serious, machine.all);
    });
    Json list = {{"machines", Json::array()}};
    for (Judged& machine : machines) {
        list["machines"].push_back(std::move(machine.json));
        if (!json) {
            std::cout << Escaped(machine.path) << ": " << Escaped(machine.summary) << '\n';
        }
    }
    if (json) {
        WriteJson(list);
    }
    return machines.front().status;
}

} // namespace

std::unique_ptr<World> OpenToldWorld(const std::string& file, LANGID language) {
    std::string error;
    std::unique_ptr<World> world = OpenWorld(file, language, error);
    if (!world) {
        std::cerr << "kvrhost: " << Escaped(error) << '\n';
    }
    return world;
}

int Diagnose(const std::vector<std::string>& paths, bool json) {
    const std::vector<std::string> files = FilesOf(paths);
    if (files.empty() && !paths.empty()) {
        std::cerr << "kvrhost: there is no export in " << Escaped(paths.front()) << '\n';
        return status_unreadable;
    }
    if (files.size() > 1) {
        return DiagnoseSeveral(files, json);
    }
    const std::string file = files.empty() ? "" : files.front();
    const std::unique_ptr<World> world = OpenToldWorld(file);
    if (!world) {
        return status_unreadable;
    }
    const Records records = world->Describe();
    const std::vector<Finding> findings = Diagnose(records);
    if (json) {
        WriteJson(DiagnosisJson(records, findings, file));
    } else {
        Write(DiagnosisLines(records, findings));
    }
    return !CanBeJudged(records) ? status_unreadable : findings.empty() ? status_sound : status_found;
}

int Diff(const std::string& before, const std::string& after, bool json) {
    Records records[2];
    for (const auto& [file, its_records] : {std::pair{&before, &records[0]}, {&after, &records[1]}}) {
        const std::unique_ptr<World> world = OpenToldWorld(*file);
        if (!world) {
            return status_unreadable;
        }
        *its_records = world->Describe();
    }
    const std::vector<Difference> differences = Differences(records[0], records[1]);
    if (json) {
        Json list = {
            {"old", before}, {"new", after}, {"differences", Json::array()}, {"notCompared", Json::array()}};
        for (const Difference& difference : differences) {
            list["differences"].push_back(
                {{"place", NameOf(difference.place)},
                 {"device", difference.device.empty() ? Json() : Json(difference.device)},
                 {"name", difference.name.empty() ? Json() : Json(ToUtf8(difference.name))},
                 {"sentence", difference.text}});
        }
        for (const MissingPlace& missing : NotCompared(records[0], records[1])) {
            list["notCompared"].push_back(missing.json);
        }
        WriteJson(list);
    } else {
        Write(DifferenceLines(records[0], records[1]));
    }
    return !differences.empty()                         ? status_found
           : (records[0].known & records[1].known) == 0 ? status_unreadable
                                                        : status_sound;
}

int CheckReport(const std::string& file) {
    std::ifstream in(PathOf(file), std::ios::binary);
    std::string text;
    for (char block[4096]; in.read(block, sizeof block), in.gcount() > 0;) {
        text.append(block, static_cast<std::size_t>(in.gcount()));
    }
    std::string error;
    check::Report wine, report;
    check::ReadReport(check::WineReport(), wine, error);
    if (in.bad() || !in.is_open()) {
        error = "it can't be read";
    }
    if (!error.empty() || !check::ReadReport(text, report, error)) {
        std::cerr << "kvrhost: " << Escaped(file + ": " + error) << '\n';
        return status_unreadable;
    }
    const std::vector<check::Difference> differences = check::Compare(report, wine);
    Write(check::ComparisonLines(report, differences));
    return differences.empty() ? status_sound : status_found;
}

int Report(const std::string& machine, const std::string& file, bool over) {
    const std::unique_ptr<World> world = OpenToldWorld(machine);
    if (!world) {
        return status_unreadable;
    }
    std::istringstream nothing;
    std::ostringstream unheard;
    const std::unique_ptr<LineSource> no_lines = LinesOf(nothing);
    LineSeat seat(*no_lines, unheard);
    Session session(*world, seat);
    if (world->File() != nullptr) {
        session.Execute("mend");
    }
    std::error_code none;
    std::string error = file + " exists; --over replaces it";
    if ((!over && fs::exists(PathOf(file), none)) ||
        !WriteReport(session, file, "What the command mend would change:", error)) {
        std::cerr << "kvrhost: " << Escaped(error) << '\n';
        return status_unreadable;
    }
    return status_sound;
}

} // namespace host
