// The records of a machine as the rules look at them: its numbers, and its boards with their channels.
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
    std::optional<std::size_t> board; // index of the device whose identity it has
};

struct Model {
    explicit Model(const Records& machine);

    const Records& records;
    NumberRecords numbers;
    std::vector<std::size_t> boards; // indices of the present devices
    std::vector<ChannelRecord> channels;

    bool Knows(unsigned places) const { return (records.known & places) == places; }
    bool IsPresent(std::size_t device) const { return records.devices[device].present; }
    // With its label, its number and how it is opened.
    Subject About(std::size_t device) const;
};

// A rule hands each of its findings to this.
using Found = std::vector<Subject>;

struct Rule {
    const char* name;
    unsigned needs; // places
    bool safe;
    const char* sentence; // {com}, {device} and so on stand for what the finding says
    const char* command;  // the same; null if there is none
    const char* remedy;
    void (*find)(const Model& model, Found& found);
};

// --- The conditions -------------------------------------------------------------------------------------

// On one device or number each; what they mean says the rule that has them.
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
