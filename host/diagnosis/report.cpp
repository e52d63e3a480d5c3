#include "host/diagnosis/report.h"

#include <algorithm>
#include <set>

#include <nlohmann/json.hpp>

#include "host/diagnosis/number_ranges.h"
#include "host/text.h"

namespace host {
namespace {

using Lines = std::vector<std::string>;

constexpr int usual_columns = 80;
constexpr const char* indent = "    ";

// A paragraph. All its lines but the first are indented.
void Add(Lines& lines, const std::string& text, int columns = usual_columns) {
    const Lines broken = BrokenAt(text, columns - 4);
    for (const std::string& line : broken) {
        lines.push_back((&line == &broken.front() ? "" : indent) + line);
    }
}

// Findings that differ only in their numbers are told as one.
struct Group {
    const Finding* first = nullptr;
    std::vector<unsigned long> numbers;
    Lines commands;
};

std::vector<Group> GroupsOf(const std::vector<Finding>& findings) {
    std::vector<Group> groups;
    for (const Finding& finding : findings) {
        const bool is_alone = !finding.subject.device.empty() || !finding.subject.what.empty();
        if (groups.empty() || is_alone || groups.back().first->rule != finding.rule) {
            groups.push_back({&finding, {}, {}});
        }
        groups.back().numbers.push_back(finding.subject.number);
        if (!finding.command.empty()) {
            groups.back().commands.push_back(finding.command);
        }
    }
    return groups;
}

// "COM9, COM10 and COM33 are": the sentence of a group, made from that of its first finding.
std::string SentenceOf(const Group& group) {
    std::string sentence = Escaped(group.first->sentence);
    const std::string first = ComName(group.numbers.front());
    if (group.numbers.size() == 1 || !sentence.starts_with(first + " is ")) {
        return sentence;
    }
    std::string all;
    for (std::size_t index = 0; index < group.numbers.size(); ++index) {
        all += (index == 0                          ? ""
                : index + 1 == group.numbers.size() ? " and "
                                                    : ", ") +
               ComName(group.numbers[index]);
    }
    std::string plural = all + " are " + sentence.substr(first.size() + 4);
    for (const auto& [one, several] :
         {std::pair{" uses it:", " uses them:"}, {" has it,", " has them,"}, {" on it.", " on them."}}) {
        if (const std::size_t at = plural.find(one); at != std::string::npos) {
            plural.replace(at, std::string_view(one).size(), several);
        }
    }
    return plural;
}

void AddGroup(Lines& lines, const Group& group, int columns = usual_columns) {
    const Finding& finding = *group.first;
    Add(lines, SentenceOf(group), columns);
    const std::string remedy = finding.remedy.empty() ? "" : ' ' + Escaped(finding.remedy);
    for (const std::string& line : BrokenAt(finding.effect + remedy, columns - 4)) {
        lines.push_back(indent + line);
    }
    for (const std::string& command : group.commands) {
        lines.push_back(indent + std::string{"> "} + Escaped(command));
    }
}

void AddMissing(Lines& lines, unsigned known) {
    for (const MissingPlace& missing : MissingPlaces(known)) {
        Add(lines, std::string{"Nothing is known of "} + missing.name +
                       ", so some things were not checked. Export this too:");
        lines.push_back(indent + std::string{missing.key});
    }
}

constexpr const char* severity_names[] = {"serious", "minor", "harmless"};

// The numbers of the ports that nothing was found about, and the boards.
struct Sound {
    std::vector<unsigned long> numbers;
    std::vector<std::string> boards; // their labels
};

Sound SoundOf(const Records& records, const std::vector<Finding>& findings) {
    std::set<std::string> ids;
    std::set<unsigned long> numbers;
    for (const Finding& finding : findings) {
        ids.insert(finding.subject.id);
        numbers.insert(finding.subject.number);
    }
    Sound sound;
    for (const auto& [number, record] : records.numbers) {
        const bool has_finding =
            numbers.contains(number) || std::ranges::any_of(record.holders, [&](std::size_t holder) {
                return ids.contains(records.devices[holder].id);
            });
        if (!record.holders.empty() && !has_finding) {
            sound.numbers.push_back(number);
        }
    }
    for (const DeviceRecord& device : records.devices) {
        if (device.role == Role::Board && !ids.contains(device.id)) {
            sound.boards.push_back(LabelOf(records, device));
        }
    }
    return sound;
}

std::string SoundLine(const Records& records, const Sound& sound) {
    std::string line = sound.numbers.empty() ? "" : "COM " + RangesOf(sound.numbers);
    for (const std::string& board : sound.boards) {
        line += (line.empty() ? "" : "; ") + board;
    }
    const char* const how =
        (records.known & AllPlaces) == AllPlaces ? "In order: " : "In order as far as was checked: ";
    return line.empty() ? line : how + line + '.';
}

} // namespace

bool CanBeJudged(const Records& records) {
    return records.known != 0;
}

std::string Summary(const Records& records, const std::vector<Finding>& findings) {
    if (!CanBeJudged(records)) {
        return "This can't be judged: it holds none of the five places that keep a port's number.";
    }
    if (findings.empty()) {
        return (records.known & AllPlaces) == AllPlaces ? "Nothing is wrong."
                                                        : "Nothing is wrong with what could be checked.";
    }
    std::string counts;
    for (std::size_t severity = 0; severity < std::size(severity_names); ++severity) {
        const auto count = std::ranges::count(findings, static_cast<Severity>(severity), &Finding::severity);
        if (count != 0) {
            counts += (counts.empty() ? "" : ", ") + std::to_string(count) + ' ' + severity_names[severity];
        }
    }
    return (findings.size() == 1 ? "One thing is wrong: "
                                 : std::to_string(findings.size()) + " things are wrong: ") +
           counts + '.';
}

const char* NameOf(Severity severity) {
    return severity_names[static_cast<std::size_t>(severity)];
}

Lines FindingLines(const Finding& finding, int columns) {
    Lines lines;
    AddGroup(lines, GroupsOf({finding}).front(), columns);
    return lines;
}

Lines DiagnosisLines(const Records& records, const std::vector<Finding>& findings) {
    Lines lines = {Summary(records, findings)};
    for (const Group& group : GroupsOf(findings)) {
        AddGroup(lines, group);
    }
    if (std::ranges::any_of(findings, &Finding::safe)) {
        Add(lines,
            "The command mend does all that is safe to do from here, and patch FILE makes a file of it "
            "for the machine to import.");
    }
    AddMissing(lines, records.known);
    if (const std::string sound = SoundLine(records, SoundOf(records, findings)); !sound.empty()) {
        Add(lines, sound);
    }
    return lines;
}

nlohmann::ordered_json DiagnosisJson(const Records& records, const std::vector<Finding>& findings,
                                     const std::string& machine) {
    using Json = nlohmann::ordered_json;
    Json list = {{"machine", machine},
                 {"judged", CanBeJudged(records)},
                 {"notKnown", Json::array()},
                 {"findings", Json::array()}};
    for (const MissingPlace& missing : MissingPlaces(records.known)) {
        list["notKnown"].push_back({{"place", missing.json}, {"export", missing.key}});
    }
    for (const Finding& finding : findings) {
        const auto text = [](const std::string& each) { return each.empty() ? Json() : Json(each); };
        const unsigned long number = finding.subject.number;
        list["findings"].push_back({{"rule", finding.rule},
                                    {"severity", NameOf(finding.severity)},
                                    {"number", number ? Json(number) : Json()},
                                    {"device", text(finding.subject.id)},
                                    {"sentence", finding.sentence},
                                    {"effect", finding.effect},
                                    {"safe", finding.safe},
                                    {"command", text(finding.command)},
                                    {"remedy", text(finding.remedy)}});
    }
    list["sound"] = {{"numbers", SoundOf(records, findings).numbers}};
    return list;
}

Lines NumberLines(const Records& records, const std::vector<Finding>& findings, unsigned long number) {
    const NumberRecord& record = NumberIn(records, number);
    Lines devices, objects, targets, settings;
    for (const std::size_t holder : record.holders) {
        const DeviceRecord& device = records.devices[holder];
        devices.push_back(LabelOf(records, device) + "; shown as " + Quoted(device.friendly_name) + "; " +
                          Escaped(device.id));
    }
    std::ranges::transform(record.mapped, std::back_inserter(objects), Escaped);
    for (const std::string& target : record.targets) {
        targets.push_back("-> " + Escaped(target) +
                          (records.dos_names_derived ? " (derived from the serial map)" : ""));
    }
    std::ranges::transform(record.lines, std::back_inserter(settings), Quoted);

    Lines lines;
    const auto place = [&](const char* name, unsigned known, const Lines& told) {
        const std::string shown = PaddedTo(std::string{"  "} + name, 17);
        if ((records.known & known) != known || told.empty()) {
            lines.push_back(shown + ((records.known & known) == known ? "none" : "not known"));
            return;
        }
        bool first = true;
        for (const std::string& each : told) {
            for (const std::string& line : BrokenAt(each, usual_columns - 17)) {
                lines.push_back((first ? shown : std::string(17, ' ')) + line);
                first = false;
            }
        }
    };
    place("devices", DevicesPlace, devices);
    place("database", DatabasePlace, {record.claimed ? "claimed" : "free"});
    place("serial map", SerialMapPlace, objects);
    place("DOS name", records.dos_names_derived ? SerialMapPlace : 0u, targets);
    place("settings line", SettingsPlace, settings);
    const std::vector<Finding> own = FindingsOf(findings, number, records);
    for (const Finding& finding : own) {
        std::ranges::copy(FindingLines(finding), std::back_inserter(lines));
    }
    if (own.empty()) {
        lines.push_back(ComName(number) + ": nothing is wrong with what is known of it.");
    }
    return lines;
}

} // namespace host
