// The conditions of the rules about boards and their channels.
#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

#include "host/diagnosis/model.h"
#include "host/diagnosis/published_values.h"

namespace host {
namespace {

unsigned long Number(const Model& model, std::size_t device, std::string_view name) {
    return StoredNumber(model.records.devices[device].store, name);
}

// "channel 3", for a port with its COM number before it.
std::string ChannelName(const ChannelRecord& channel) {
    return "channel " + std::to_string(channel.number);
}

void Add(const Model& model, Found& found, std::size_t device, std::string what) {
    found.push_back(model.About(device));
    found.back().what = std::move(what);
}

// The readable channels that belong to a board.
template <class Take> void ForEachOfBoards(const Model& model, const Take& take) {
    for (const ChannelRecord& channel : model.channels) {
        if (channel.readable && channel.board) {
            take(channel);
        }
    }
}

template <class Take> void ForEachUart(const Model& model, const Take& take) {
    for (const ChannelRecord& channel : model.channels) {
        if (channel.readable && channel.channel_class == uart_class) {
            take(channel.device);
        }
    }
}

std::string Identity(const Model& model, std::size_t device) {
    return "bus " + std::to_string(Number(model, device, "BoardPciBusNumber")) + " and IRQ " +
           std::to_string(Number(model, device, "BoardIrq"));
}

bool IsWalked(const Model& model, const ChannelRecord& channel) {
    return channel.number >= 1 && channel.number < Number(model, *channel.board, "BoardNrController");
}

// --- What a UART can do ---

std::string WrongMode(unsigned long mode, unsigned long capability) {
    const std::optional<unsigned long> needed = NeededBy(mode);
    if (!needed) {
        return "UartMode is " + std::to_string(mode) + ", which stands for none";
    }
    if ((capability & *needed) == *needed) {
        return {};
    }
    char digits[24];
    std::snprintf(digits, sizeof digits, "0x%02lX", capability);
    return "UartMode is " + ModeName(mode) + ", which UartCapability " + digits + " rules out";
}

// The levels of the receive FIFO: 1, and 4, 8 and 14 sixteenths of its size.
std::string WrongTrigger(const std::vector<StoreValue>& store) {
    const unsigned long transmit = StoredNumber(store, "UartTxFifoLowHigh"),
                        transmit_size = StoredNumber(store, "UartTxFifoSize"),
                        receive = StoredNumber(store, "UartRxFifoLowHigh"),
                        receive_size = StoredNumber(store, "UartRxFifoSize"), unit = receive_size / 16;
    if (transmit < 1 || transmit > transmit_size) {
        return "UartTxFifoLowHigh is " + std::to_string(transmit) + ", not in 1 to " +
               std::to_string(transmit_size);
    }
    const std::array<unsigned long, 4> stages = {1, 4 * unit, 8 * unit, 14 * unit};
    if (std::ranges::find(stages, receive) != stages.end()) {
        return {};
    }
    std::string known;
    for (const unsigned long stage : stages) {
        known += (known.empty() ? "" : ", ") + std::to_string(stage);
    }
    return "UartRxFifoLowHigh is " + std::to_string(receive) + ", not one of " + known;
}

} // namespace

void FindUnreadableBoards(const Model& model, Found& found) {
    for (const std::size_t board : model.boards) {
        const std::vector<ValueFault> faults = BoardFaults(model.records.devices[board].store);
        if (!faults.empty()) {
            Add(model, found, board, ToldShortly(faults));
        }
    }
}

void FindUnreadableChannels(const Model& model, Found& found) {
    for (const ChannelRecord& channel : model.channels) {
        if (!channel.readable) {
            Add(model, found, channel.device,
                ToldShortly(
                    ChannelFaults(model.records.devices[channel.device].store, channel.channel_class)));
        }
    }
}

void FindChannelsWithoutBoard(const Model& model, Found& found) {
    for (const ChannelRecord& channel : model.channels) {
        if (channel.readable && !channel.board) {
            Add(model, found, channel.device,
                "it says " + Identity(model, channel.device) + ", and no board with a page does");
        }
    }
}

void FindChannelsTwice(const Model& model, Found& found) {
    std::map<std::pair<std::size_t, unsigned long>, std::size_t> first; // device by board and number
    ForEachOfBoards(model, [&](const ChannelRecord& channel) {
        const auto [there, is_new] = first.try_emplace({*channel.board, channel.number}, channel.device);
        if (!is_new) {
            Add(model, found, channel.device,
                ChannelName(channel) + " is also " +
                    LabelOf(model.records, model.records.devices[there->second]));
        }
    });
}

void FindChannelsBeyondBoard(const Model& model, Found& found) {
    ForEachOfBoards(model, [&](const ChannelRecord& channel) {
        if (!IsWalked(model, channel)) {
            Add(model, found, channel.device,
                "its ChlNumber is " + std::to_string(channel.number) + ", and BoardNrController " +
                    std::to_string(Number(model, *channel.board, "BoardNrController")) +
                    " shows those from 1 up to but not including that");
        }
    });
}

void FindOtherTypes(const Model& model, Found& found) {
    ForEachUart(model, [&](std::size_t device) {
        const unsigned long type = Number(model, device, "ChlType");
        const std::vector<ValueFault> faults = PortFaults(model.records.devices[device].store);
        if (type != 1) {
            Add(model, found, device, "its ChlType is " + std::to_string(type) + ", and only 1 is a UART");
        } else if (!faults.empty()) {
            Add(model, found, device, ToldShortly(faults));
        }
    });
}

void FindImpossibleModes(const Model& model, Found& found) {
    ForEachUart(model, [&](std::size_t device) {
        std::string wrong =
            WrongMode(Number(model, device, "UartMode"), Number(model, device, "UartCapability"));
        if (!wrong.empty()) {
            Add(model, found, device, std::move(wrong));
        }
    });
}

void FindImpossibleTriggers(const Model& model, Found& found) {
    ForEachUart(model, [&](std::size_t device) {
        std::string wrong = WrongTrigger(model.records.devices[device].store);
        if (!wrong.empty()) {
            Add(model, found, device, std::move(wrong));
        }
    });
}

void FindUnorderedNumbers(const Model& model, Found& found) {
    std::map<std::size_t, std::vector<std::pair<unsigned long, unsigned long>>>
        by_board; // numbers by channel
    ForEachOfBoards(model, [&](const ChannelRecord& channel) {
        if (channel.channel_class == uart_class && IsWalked(model, channel)) {
            by_board[*channel.board].emplace_back(
                channel.number,
                PortNumber(StoredText(model.records.devices[channel.device].store, "PortName")));
        }
    });
    for (auto& [board, numbers] : by_board) {
        std::ranges::stable_sort(numbers, {}, &std::pair<unsigned long, unsigned long>::first);
        if (!std::ranges::is_sorted(numbers, {}, &std::pair<unsigned long, unsigned long>::second)) {
            std::string in_order;
            for (const auto& [channel, number] : numbers) {
                in_order += (in_order.empty() ? "" : ", ") + std::to_string(number);
            }
            Add(model, found, board, in_order);
        }
    }
}

} // namespace host
