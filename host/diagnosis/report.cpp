#include "host/diagnosis/report.h"

#include <algorithm>
#include <set>

#include <nlohmann/json.hpp>

#include "host/diagnosis/number_ranges.h"
#include "host/text.h"

namespace host {
namespace {

using Lines = std::vector<std::string>;

constexpr int columns = 80;
constexpr const char* indent = "    ";

// A paragraph. All its lines but the first are indented.
void Add(Lines& lines, const std::string& text) {
    const Lines broken = BrokenAt(text, columns - 4);
    for (const std::string& line : broken) {
        lines.push_back((&line == &broken.front() ? "" : indent) + line);
    }
}

std::string MendingOf(const Finding& finding) {
    if (finding.safe) {
        return "safe to mend: " + finding.command;
    }
    if (finding.command.empty()) {
        return "not safe without a look, by hand: " + finding.remedy;
    }
    return "not safe without a look, by hand: " + finding.remedy + "; or: " + finding.command;
}

void AddMissing(Lines& lines, const Records& records) {
    for (const MissingPlace& missing : MissingPlaces(records.known)) {
        Add(lines, std::string{"not known: "} + missing.name +
                       "; nothing is concluded from that. To know it, export");
        lines.push_back(indent + std::string{missing.key});
    }
}

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

std::string SoundLine(const Sound& sound) {
    std::string line = "sound: ";
    if (!sound.numbers.empty()) {
        line += "COM " + RangesOf(sound.numbers);
    }
    for (const std::string& board : sound.boards) {
        line += (line.ends_with(' ') ? "" : "; ") + board;
    }
    return line.ends_with(' ') ? line + "no port and no board" : line;
}

} // namespace

Lines FindingLines(const Finding& finding) {
    Lines lines;
    Add(lines, Escaped(finding.sentence));
    for (const std::string& line : BrokenAt(Escaped(MendingOf(finding)), columns - 4)) {
        lines.push_back(indent + line);
    }
    return lines;
}

Lines DiagnosisLines(const Records& records, const std::vector<Finding>& findings) {
    Lines lines;
    AddMissing(lines, records);
    for (const Finding& finding : findings) {
        std::ranges::copy(FindingLines(finding), std::back_inserter(lines));
    }
    Add(lines, SoundLine(SoundOf(records, findings)));
    return lines;
}

std::string DiagnosisJson(const Records& records, const std::vector<Finding>& findings,
                          const std::string& machine) {
    using Json = nlohmann::ordered_json;
    Json list = {{"machine", machine}, {"notKnown", Json::array()}, {"findings", Json::array()}};
    for (const MissingPlace& missing : MissingPlaces(records.known)) {
        list["notKnown"].push_back({{"place", missing.json}, {"export", missing.key}});
    }
    for (const Finding& finding : findings) {
        const auto text = [](const std::string& each) { return each.empty() ? Json() : Json(each); };
        const unsigned long number = finding.subject.number;
        list["findings"].push_back({{"rule", finding.rule},
                                    {"number", number ? Json(number) : Json()},
                                    {"device", text(finding.subject.id)},
                                    {"sentence", finding.sentence},
                                    {"safe", finding.safe},
                                    {"command", text(finding.command)},
                                    {"remedy", text(finding.remedy)}});
    }
    list["sound"] = {{"numbers", SoundOf(records, findings).numbers}};
    // Invalid UTF-8 becomes U+FFFD.
    return list.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

Lines NumberLines(const Records& records, unsigned long number) {
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
            for (const std::string& line : BrokenAt(each, columns - 17)) {
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
    const std::vector<Finding> own = FindingsOf(Diagnose(records), number, records);
    for (const Finding& finding : own) {
        std::ranges::copy(FindingLines(finding), std::back_inserter(lines));
    }
    if (own.empty()) {
        lines.push_back(ComName(number) + ": nothing is wrong with what is known of it.");
    }
    return lines;
}

} // namespace host
