// What the board's driver must publish for a page, and what of it is wrong: a value that is missing or too
// long makes its whole device unreadable for the pages.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/diagnosis/records.h"

namespace host {

struct PublishedValue {
    std::string_view name;
    std::size_t bytes; // the most it may have
};

// What keeps a value from being read.
struct ValueFault {
    std::string_view name;
    std::string what; // "is missing", "is too long: texts of 300 bytes, at most 128 are read"
};

// Of a board's own device.
std::vector<ValueFault> BoardFaults(const std::vector<StoreValue>& store);
// Of a channel of a class from 1 to 5, as its board's page reads it.
std::vector<ValueFault> ChannelFaults(const std::vector<StoreValue>& store, unsigned channel_class);
// Of a port, as its own page reads it.
std::vector<ValueFault> PortFaults(const std::vector<StoreValue>& store);

// "UartMode is missing; ChlNumber is too long: ..."; of many the first ones, and how many more there are.
std::string ToldShortly(const std::vector<ValueFault>& faults);

} // namespace host
