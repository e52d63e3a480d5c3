// What the board's driver must publish for a page, and what is wrong with it: one value that is missing or
// too long makes its whole device unreadable for the pages.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/worlds/records.h"

namespace host {

struct PublishedValue {
    std::string_view name;
    std::size_t bytes; // the most that are read
};

// Why a value can't be read.
struct ValueFault {
    std::string_view name;
    std::string what; // "is missing", "is too long: texts of 300 bytes, at most 128 are read"
};

inline constexpr unsigned uart_class = 1;

// Whether a port belongs to a board at all. Other ports belong to other drivers.
bool IsChannel(const StoreValues& store);

// The faults of a board's own device.
std::vector<ValueFault> BoardFaults(const StoreValues& store);
// The faults of a channel of a class from 1 to 5, as its board's page reads it.
std::vector<ValueFault> ChannelFaults(const StoreValues& store, unsigned channel_class);
// The faults of a port, as its own page reads it.
std::vector<ValueFault> PortFaults(const StoreValues& store);

// "UartMode is missing; ChlNumber is too long: ...". If there are many, the first ones and how many more
// there are.
std::string ToldShortly(const std::vector<ValueFault>& faults);

// The name of an electrical interface, a UartMode; "none" and its number if it is none.
std::string ModeName(unsigned long mode);
// The bits of UartCapability that a mode needs; nothing if it is no mode.
std::optional<unsigned long> NeededBy(unsigned long mode);

// Why the library has no page for a device with a sheet; empty if it has one. Of a port whose PortName can't
// be read the page opens after an error.
std::string WhyNoPage(Role role, const StoreValues& store);
// The values of a board or a port that its driver must publish and that can't be read. None for a port that
// is not a channel of a board.
std::vector<ValueFault> StoreFaults(Role role, const StoreValues& store);

} // namespace host
