#include "host/diagnosis/diagnosis.h"

#include <algorithm>
#include <iterator>

#include "host/diagnosis/model.h"

namespace host {
namespace {

constexpr const char* restart = "Restart the port, or the machine.";
constexpr const char* number_anew = "Give it a free number: open {open}, Advanced.";
constexpr const char* driver =
    "Restart the board; if that does not help, reinstall its driver, which publishes these values.";
constexpr const char* not_on_board = "Its board can't set it up, and a sort leaves it out.";

// Worst first.
constexpr Rule rules[] = {
    {"same-name", DevicesPlace, Severity::Serious, false, "More than one device is named {com}: {what}.",
     "A program that opens it reaches only one of them.", nullptr,
     "Give one of them a free number: open {open}, Advanced.", FindSharedNames},
    {"twice-in-serial-map", SerialMapPlace, Severity::Serious, false,
     "{com} is live twice: {what} in the serial map.", "It is chance which of them a program opens.", nullptr,
     restart, FindNumbersMappedTwice},
    {"not-in-serial-map", DevicesPlace | InterfacesPlace | SerialMapPlace, Severity::Serious, false,
     "{com} should be live and is not: {device} has it, but the serial map does not.",
     "Programs can't open it. Its driver has not started, or has started under another number.", nullptr,
     restart, FindUnmappedPorts},
    {"no-com-name", DevicesPlace, Severity::Serious, false,
     "{device} has a name that is not COM and a number: {what}.",
     "Programs that look for COM ports don't find it.", nullptr, number_anew, FindOddNames},
    {"board-unreadable", DevicesPlace, Severity::Serious, false, "{device} gets no page: {what}.",
     "The buffers and the numbers of its ports can't be set there.", nullptr, driver, FindUnreadableBoards},
    {"channel-unreadable", DevicesPlace | InterfacesPlace, Severity::Serious, false,
     "{port} is missing on its board's page: {what}.", not_on_board, nullptr, driver, FindUnreadableChannels},
    {"channel-without-board", DevicesPlace | InterfacesPlace, Severity::Serious, false,
     "{port} is on no board's page: {what}.", not_on_board, nullptr, driver, FindChannelsWithoutBoard},
    {"channel-twice", DevicesPlace | InterfacesPlace, Severity::Serious, false,
     "{port} has the channel number of another one: {what}.", "The board's page can't tell the two apart.",
     nullptr, driver, FindChannelsTwice},
    {"channel-beyond-board", DevicesPlace | InterfacesPlace, Severity::Serious, false,
     "{port} is missing on its board's page: {what}.", not_on_board, nullptr, driver,
     FindChannelsBeyondBoard},
    {"type-no-uart", DevicesPlace | InterfacesPlace, Severity::Serious, false,
     "{port} has no page of its own that works: {what}.",
     "Its number and its line settings can't be changed there.", nullptr, driver, FindOtherTypes},
    {"mode-impossible", DevicesPlace | InterfacesPlace, Severity::Serious, false,
     "{port} is set to an electrical interface that it can't do: {what}.",
     "Until one is chosen, nobody can say what it does on the cable.", nullptr,
     "Choose the one that the cable needs: open the board, select the port, Advanced.", FindImpossibleModes},
    {"unclaimed-port", DevicesPlace | InterfacesPlace | DatabasePlace, Severity::Minor, true,
     "{device} uses {com}, but the number is not marked as in use.",
     "The next port that Windows installs may get the same number.", "claim {com}", nullptr,
     FindUnclaimedPorts},
    {"stale-claim", DevicesPlace | DatabasePlace | SerialMapPlace, Severity::Minor, true,
     "{com} is marked as in use, but nothing uses it: no device has it, present or absent, and no port is "
     "live on "
     "it.",
     "Windows gives no port a number that is marked so.", "free {com}", nullptr, FindStaleClaims},
    {"trigger-impossible", DevicesPlace | InterfacesPlace, Severity::Minor, false,
     "{port} has a buffer level that its page can't show: {what}.",
     "The slider there does not stand at the level that is set.", nullptr,
     "Move the slider and press Apply: open the board, select the port.", FindImpossibleTriggers},
    {"friendly-number", DevicesPlace, Severity::Minor, false,
     "Device Manager lists {port} under another number than its own: {what}.",
     "Whoever goes by that list takes the wrong port.", nullptr,
     "Give it its number once more: open {open}, Advanced.", FindOtherFriendlyNumbers},
    {"misread-line", DevicesPlace | SettingsPlace, Severity::Minor, false,
     "The page of {com} shows other settings than are stored: {what}.",
     "The next OK there stores what is shown.", nullptr, "Look at them and choose them again: open {open}.",
     FindMisreadLines},
    {"ghost-claim", DevicesPlace | InterfacesPlace | DatabasePlace | SerialMapPlace, Severity::Harmless,
     false, "{com} is kept for a device that is not there: {device}.",
     "No other port can have that number meanwhile.", "free {com} --even-so",
     "If that device will not come back, uninstall it, or free its number.", FindGhostClaims},
    {"orphan-line", DevicesPlace | SerialMapPlace | SettingsPlace, Severity::Harmless, true,
     "{com} has stored settings, but there is no such port: {what}.",
     "A new port with that number would begin with them.", "forget {key}", nullptr, FindOrphanLines},
    {"held-open", DevicesPlace | InterfacesPlace, Severity::Harmless, false,
     "A program has {com} open: ChlOpened of {device} says so.", "Its number can't be changed meanwhile.",
     nullptr, "Close that program first.", FindOpenPorts},
    {"numbers-unordered", DevicesPlace | InterfacesPlace, Severity::Harmless, false,
     "The ports of {device} are not numbered in the order of their channels: {what}.",
     "Whoever counts the connectors takes the wrong one.", nullptr,
     "Sort them: open {open}, Advanced, Sort UART.", FindUnorderedNumbers},
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
            sentence.front() = sentence.starts_with("device ") ? 'D' : sentence.front();
            findings.push_back({rule.name, rule.severity, std::move(subject), std::move(sentence),
                                rule.effect, rule.safe, std::move(command), std::move(remedy)});
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
