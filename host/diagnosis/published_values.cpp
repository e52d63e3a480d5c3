#include "host/diagnosis/published_values.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace host {
namespace {

using Values = std::span<const PublishedValue>;

constexpr std::size_t number = 4, address = 8, text = 128;
// The page of a port with a longer name only says so.
constexpr std::size_t port_name = 40;

constexpr PublishedValue board_identity[] = {{"BoardPciBusNumber", number}, {"BoardIrq", number}};
constexpr PublishedValue board_other[] = {{"BoardMajorVersion", number},
                                          {"BoardMinorVersion", number},
                                          {"BoardNrController", number},
                                          {"BoardModelName", text}};
constexpr PublishedValue board_config[] = {{"ConfigModel", number}, {"ConfigBrand", number}};
constexpr PublishedValue channel_basic[] = {
    {"ChlNumber", number},      {"ChlType", number},     {"ChlVersion", number},   {"ChlEventAddr", address},
    {"ChlEventLength", number}, {"ChlMemAddr", address}, {"ChlMemLength", number}, {"ChlPortAddr", address},
    {"ChlPortLength", number},  {"ChlOpened", number}};
constexpr PublishedValue uart[] = {{"UartTxFifoSize", number},
                                   {"UartRxFifoSize", number},
                                   {"UartClkRate", number},
                                   {"UartCapability", number},
                                   {"UartDefCntFifoSettings", number},
                                   {"UartDefCntAdvanceSettings", number},
                                   {"UartFifoEnable", number},
                                   {"UartTxFifoLowHigh", number},
                                   {"UartRxFifoLowHigh", number},
                                   {"UartMode", number},
                                   {"UartAHDC", number},
                                   {"UartCS", number},
                                   {"UartAutoRS422485", number},
                                   {"UartRS422Termination", number},
                                   {"UartRS485Termination", number},
                                   {"PortName", text}};
constexpr PublishedValue dio[] = {{"DioNrBank", number},
                                  {"DioCapability", number},
                                  {"DioDiSamplingFreq", number},
                                  {"DioDiFilterLowerBound", number}};
constexpr PublishedValue mcp251x[] = {
    {"Mcp251xSpiNrDevice", number},   {"Mcp251xSpiClkRate", number}, {"Mcp251xName", text},
    {"Mcp251xNumber", number},        {"Mcp251xCS", number},         {"Mcp251xGpioInputBits", number},
    {"Mcp251xGpioOutputBits", number}};
constexpr PublishedValue mcp251x_fd[] = {
    {"Mcp251xFdSpiNrDevice", number},   {"Mcp251xFdSpiClkRate", number}, {"Mcp251xFdName", text},
    {"Mcp251xFdNumber", number},        {"Mcp251xFdCS", number},         {"Mcp251xFdGpioInputBits", number},
    {"Mcp251xFdGpioOutputBits", number}};
constexpr PublishedValue can[] = {{"KvrCanCapability", number},       {"KvrCanTxMsgQueueSize", number},
                                  {"KvrCanTxEventQueueSize", number}, {"KvrCanRxMsgQueueSize", number},
                                  {"KvrCanNrRxFilterGroup", number},  {"KvrCanSystemClkRate", number},
                                  {"KvrCanReferenceClkRate", number}, {"KvrCanFifoTXMMax", number},
                                  {"KvrCanFifoTXEMax", number},       {"KvrCanFifoRXMMax", number}};
constexpr PublishedValue own_name[] = {{"PortName", port_name}};

// By channel class, from 1.
constexpr Values of_class[] = {uart, dio, mcp251x, mcp251x_fd, can};

struct Mode {
    unsigned long mode, needed; // of UartCapability
    const char* name;
};
constexpr Mode modes[] = {
    {1, 0x01, "RS-232"}, {2, 0x02, "RS-422"}, {4, 0x0C, "RS-485"}, {6, 0x2E, "Auto RS-422/485"}};

std::vector<ValueFault> FaultsOf(const StoreValues& store, std::initializer_list<Values> lists) {
    std::vector<ValueFault> faults;
    for (const Values& list : lists) {
        for (const PublishedValue& wanted : list) {
            const StoreValue* const value = FindValue(store, wanted.name);
            if (value == nullptr) {
                faults.push_back({wanted.name, "is missing"});
            } else if (value->data.size() > wanted.bytes) {
                faults.push_back({wanted.name, "is too long: " + TypeName(value->type) + " of " +
                                                   std::to_string(value->data.size()) +
                                                   " bytes, of which at most " +
                                                   std::to_string(wanted.bytes) + " are read"});
            }
        }
    }
    return faults;
}

} // namespace

bool IsChannel(const StoreValues& store) {
    return FindValue(store, "BoardPciBusNumber") != nullptr || FindValue(store, "ChlNumber") != nullptr;
}

std::vector<ValueFault> BoardFaults(const StoreValues& store) {
    return FaultsOf(store, {board_identity, board_other, channel_basic, board_config});
}

std::vector<ValueFault> ChannelFaults(const StoreValues& store, unsigned channel_class) {
    return FaultsOf(store, {board_identity, channel_basic, of_class[channel_class - 1]});
}

std::vector<ValueFault> PortFaults(const StoreValues& store) {
    return FaultsOf(store, {channel_basic, own_name});
}

std::string ToldShortly(const std::vector<ValueFault>& faults) {
    constexpr std::size_t most = 3;
    std::string told;
    for (std::size_t index = 0; index < faults.size() && index < most; ++index) {
        told += (told.empty() ? "" : "; ") + std::string{faults[index].name} + ' ' + faults[index].what;
    }
    if (faults.size() > most) {
        told += "; and " + std::to_string(faults.size() - most) + " more";
    }
    return told;
}

std::string ModeName(unsigned long mode) {
    const auto* const known = std::ranges::find(modes, mode, &Mode::mode);
    return known == std::end(modes) ? "none (" + std::to_string(mode) + ')' : known->name;
}

std::optional<unsigned long> NeededBy(unsigned long mode) {
    const auto* const known = std::ranges::find(modes, mode, &Mode::mode);
    return known == std::end(modes) ? std::nullopt : std::optional(known->needed);
}

std::string WhyNoPage(Role role, const StoreValues& store) {
    const bool is_board = role == Role::Board;
    if (!is_board && !IsChannel(store)) {
        return "it is not a channel of a board";
    }
    const std::vector<ValueFault> faults = is_board ? BoardFaults(store) : FaultsOf(store, {channel_basic});
    if (!faults.empty()) {
        return ToldShortly(faults);
    }
    const unsigned long type = StoredNumber(store, "ChlType");
    return is_board || type == 1 ? std::string() : "its ChlType is " + std::to_string(type) + ", not 1";
}

std::vector<ValueFault> StoreFaults(Role role, const StoreValues& store) {
    if (role == Role::Board) {
        return BoardFaults(store);
    }
    return IsChannel(store) ? ChannelFaults(store, uart_class) : std::vector<ValueFault>();
}

} // namespace host
