#include "host/diagnosis/diagnosis.h"

#include <algorithm>
#include <iterator>

#include "host/diagnosis/model.h"

namespace host {
namespace {

constexpr const char* restart = "restart the port or the machine";
constexpr const char* number_anew = "open {open}, Advanced, and give it a number that is free";
constexpr const char* driver =
    "the board's driver publishes these values: restart the board, or reinstall its "
    "driver";

// Worst first.
constexpr Rule rules[] = {
    {"same-name", DevicesPlace, false,
     "{com} is the name of more than one device, and only one of them can be reached by it: {what}.", nullptr,
     "open {open}, Advanced, and give one of them a number that is free", FindSharedNames},
    {"stale-claim", DevicesPlace | DatabasePlace | SerialMapPlace, true,
     "{com} is in use and nothing is there: the database has it claimed, but no device has it, present or "
     "absent, and no port is live on it.",
     "free {com}", nullptr, FindStaleClaims},
    {"unclaimed-port", DevicesPlace | InterfacesPlace | DatabasePlace, true,
     "{com} is not claimed although {device} has it: the next new port may be given the same number.",
     "claim {com}", nullptr, FindUnclaimedPorts},
    {"no-com-name", DevicesPlace, false, "{device} has a name that is not COM and a number: {what}.", nullptr,
     number_anew, FindOddNames},
    {"not-in-serial-map", DevicesPlace | InterfacesPlace | SerialMapPlace, false,
     "{com} is not live: {device} has it, but the serial map does not, so its driver has not started or has "
     "started under another number.",
     nullptr, restart, FindUnmappedPorts},
    {"twice-in-serial-map", SerialMapPlace, false, "{com} is live more than once: {what} in the serial map.",
     nullptr, restart, FindNumbersMappedTwice},
    {"board-unreadable", DevicesPlace, false, "{device} gets no page: {what}.", nullptr, driver,
     FindUnreadableBoards},
    {"channel-unreadable", DevicesPlace | InterfacesPlace, false,
     "{port} is not on the page of its board: {what}.", nullptr, driver, FindUnreadableChannels},
    {"channel-without-board", DevicesPlace | InterfacesPlace, false,
     "{port} is on the page of no board: {what}.", nullptr, driver, FindChannelsWithoutBoard},
    {"channel-twice", DevicesPlace | InterfacesPlace, false,
     "{port} has a number that another channel of its board has too: {what}.", nullptr, driver,
     FindChannelsTwice},
    {"channel-beyond-board", DevicesPlace | InterfacesPlace, false,
     "{port} is not on the page of its board: {what}.", nullptr, driver, FindChannelsBeyondBoard},
    {"type-no-uart", DevicesPlace | InterfacesPlace, false, "{port} gets no page of its own: {what}.",
     nullptr, driver, FindOtherTypes},
    {"mode-impossible", DevicesPlace | InterfacesPlace, false,
     "{port} is set to a mode that it does not support: {what}.", nullptr,
     "open the board, select the port, Advanced, and choose its type", FindImpossibleModes},
    {"trigger-impossible", DevicesPlace | InterfacesPlace, false,
     "{port} has a trigger level that its page cannot show: {what}.", nullptr,
     "open the board, select the port, move the slider and press Apply", FindImpossibleTriggers},
    {"friendly-number", DevicesPlace, false, "{port} is shown with another number than it has: {what}.",
     nullptr, number_anew, FindOtherFriendlyNumbers},
    {"ghost-claim", DevicesPlace | InterfacesPlace | DatabasePlace | SerialMapPlace, false,
     "{com} is kept for {device}, and for nothing else.", "free {com} --even-so",
     "uninstall that device if it will not come back", FindGhostClaims},
    {"misread-line", DevicesPlace | SettingsPlace, false,
     "{com} has settings that its page cannot show as they are written: {what}.", nullptr,
     "open {open} and choose them again", FindMisreadLines},
    {"orphan-line", DevicesPlace | SerialMapPlace | SettingsPlace, true,
     "{com} has settings and nothing is there: {what}.", "forget {key}", nullptr, FindOrphanLines},
    {"held-open", DevicesPlace | InterfacesPlace, false,
     "{com} is held open by a program, so its number cannot be changed: ChlOpened of {device} says so.",
     nullptr, "close that program", FindOpenPorts},
    {"numbers-unordered", DevicesPlace | InterfacesPlace, false,
     "{device} has COM numbers that do not ascend with its channels: {what}.", nullptr,
     "open {open}, Advanced, Sort UART", FindUnorderedNumbers},
};

std::string Filled(const char* text, const Subject& subject) {
    const std::string com = ComName(subject.number);
    const std::pair<std::string_view, std::string> blanks[] = {
        {"{com}", com},
        {"{port}", (subject.number ? com + ", " : "") + subject.device + ','},
        {"{device}", subject.device},
        {"{open}", subject.open},
        {"{what}", subject.what},
        {"{key}", subject.key}};
    std::string result;
    std::string_view rest = text != nullptr ? text : "";
    while (!rest.empty()) {
        const auto* const blank =
            std::ranges::find_if(blanks, [&](const auto& each) { return rest.starts_with(each.first); });
        const std::size_t plain = blank != std::end(blanks) ? 0 : rest.find('{', 1);
        result += blank != std::end(blanks) ? std::string_view(blank->second) : rest.substr(0, plain);
        rest.remove_prefix(blank != std::end(blanks) ? blank->first.size() : std::min(plain, rest.size()));
    }
    return result;
}

} // namespace

std::vector<Finding> Diagnose(const Records& records) {
    const Model model(records);
    std::vector<Finding> findings;
    for (const Rule& rule : rules) {
        if (!model.Knows(rule.needs)) {
            continue;
        }
        Found found;
        rule.find(model, found);
        for (Subject& subject : found) {
            std::string sentence = Filled(rule.sentence, subject), command = Filled(rule.command, subject),
                        remedy = Filled(rule.remedy, subject);
            findings.push_back({rule.name, std::move(subject), std::move(sentence), rule.safe,
                                std::move(command), std::move(remedy)});
        }
    }
    return findings;
}

std::vector<Finding> FindingsOf(const std::vector<Finding>& findings, unsigned long number,
                                const Records& records) {
    const NumberRecord& its = NumberIn(records, number);
    std::vector<Finding> own;
    std::ranges::copy_if(findings, std::back_inserter(own), [&](const Finding& finding) {
        return finding.subject.number == number || std::ranges::any_of(its.holders, [&](std::size_t holder) {
                   return records.devices[holder].id == finding.subject.id;
               });
    });
    return own;
}

} // namespace host
