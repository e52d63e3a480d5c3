// The records of a machine as the rules need them: its numbers, and its boards with their channels.
#pragma once

#include <optional>
#include <vector>

#include "host/diagnosis/diagnosis.h"

namespace host {

// A channel as a board finds it, through a present interface.
struct ChannelRecord {
    std::size_t device = 0; // index in the records
    unsigned channel_class = 0;
    unsigned long number = 0;         // on its board
    bool readable = false;            // all its values can be read
    std::optional<std::size_t> board; // index of the device that has the same identity
};

struct Model {
    explicit Model(const Records& machine);

    const Records& records;
    std::vector<std::size_t> boards; // indices of the present devices
    std::vector<ChannelRecord> channels;

    bool Knows(unsigned places) const { return (records.known & places) == places; }
    bool IsPresent(std::size_t device) const { return records.devices[device].present; }
    // The device with its label, its number and its name for `open`.
    Subject About(std::size_t device) const;
};

// Takes the findings of a rule.
using Found = std::vector<Subject>;

struct Rule {
    const char* name;
    unsigned needs; // places
    Severity severity;
    bool safe;
    const char* sentence; // what is wrong; {com}, {device} and so on are replaced by the finding's values
    const char* effect;   // what follows from it
    const char* command;  // what mends it, with the same values; null if there is none
    const char* remedy;
    void (*find)(const Model& model, Found& found);
};

// --- The conditions -------------------------------------------------------------------------------------

// Each is about one device or one number. The rule that uses it says what it means.
void FindStaleClaims(const Model& model, Found& found);
void FindGhostClaims(const Model& model, Found& found);
void FindSharedNames(const Model& model, Found& found);
void FindUnclaimedPorts(const Model& model, Found& found);
void FindOddNames(const Model& model, Found& found);
void FindUnmappedPorts(const Model& model, Found& found);
void FindNumbersMappedTwice(const Model& model, Found& found);
void FindOtherFriendlyNumbers(const Model& model, Found& found);
void FindOrphanLines(const Model& model, Found& found);
void FindMisreadLines(const Model& model, Found& found);
void FindOpenPorts(const Model& model, Found& found);

void FindUnreadableBoards(const Model& model, Found& found);
void FindUnreadableChannels(const Model& model, Found& found);
void FindChannelsWithoutBoard(const Model& model, Found& found);
void FindChannelsTwice(const Model& model, Found& found);
void FindChannelsBeyondBoard(const Model& model, Found& found);
void FindOtherTypes(const Model& model, Found& found);
void FindImpossibleModes(const Model& model, Found& found);
void FindImpossibleTriggers(const Model& model, Found& found);
void FindUnorderedNumbers(const Model& model, Found& found);

} // namespace host
