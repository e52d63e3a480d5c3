// What is known of a machine's ports and boards, in plain records: whoever has a machine fills them, and all
// that is said of it is said from them alone.
//
// A COM number stands in several places, and a machine may be known in some of them only. A place that is not
// known is empty here, and nothing is concluded from that. All texts are UTF-8 as they were stored: whoever
// shows one quotes it.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/worlds/store_values.h"

namespace host {

// The places, as bits: `Records::known` and what a rule needs are made of them.
enum Place : unsigned {
    DevicesPlace = 1,
    InterfacesPlace = 2, // which devices are present, and of which class a channel is
    DatabasePlace = 4,
    SerialMapPlace = 8,
    SettingsPlace = 16,
    AllPlaces = 31,
};

enum class Role {
    Board,
    Port,    // a serial port, of a board or not
    Channel, // a board's channel that is no port
};

// An interface of one of the five classes by which a board finds its channels.
struct ChannelInterface {
    unsigned channel_class = 0; // 1 to 5: UART, digital I/O, Mcp251x, Mcp251xFd, CAN
    bool present = false;
};

struct DeviceRecord {
    std::string id; // the instance id
    Role role = Role::Port;
    std::size_t listed = 0; // its number in the list of the devices with a sheet, from 1; 0 if it has none
    std::string description, friendly_name; // may be empty
    bool present = true;                    // means something where the interfaces are known
    std::vector<StoreValue> store;
    std::vector<ChannelInterface> interfaces;
};

using TextPairs = std::vector<std::pair<std::string, std::string>>;

struct Records {
    unsigned known = 0; // places
    std::vector<DeviceRecord> devices;
    std::vector<bool> claimed;      // in the COM port database, that of COM1 first; free behind its end
    TextPairs serial_map;           // the object of a live port and "COM5"
    TextPairs settings_lines;       // "COM5:" and the line
    TextPairs dos_names;            // "COM5" and its target
    bool dos_names_derived = false; // they were made from the serial map and are no evidence
};

// --- What the records say of one number -----------------------------------------------------------------

struct NumberRecord {
    bool claimed = false;
    std::vector<std::size_t> holders; // indices of the devices whose PortName it is
    std::vector<std::string> mapped;  // the objects in the serial map
    std::vector<std::string> lines;   // the settings lines; more than one only where case differs
    std::vector<std::string> targets; // of its DOS names
};

// By COM number, all those that stand anywhere.
using NumberRecords = std::map<unsigned long, NumberRecord>;

NumberRecords NumbersOf(const Records& records);

// --- Names ----------------------------------------------------------------------------------------------

// The number of a port's name: the digits behind the letters COM, without regard to case; 0 for any other
// text.
unsigned long PortNumber(std::string_view name);
// The number in the last pair of parentheses of a friendly name; 0 without one.
unsigned long FriendlyNumber(std::string_view name);
// That of a key of the settings lines, "COM5:".
unsigned long LineNumber(std::string_view key);

// "COM5".
std::string ComName(unsigned long number);

// The text of a value; empty if it is missing.
std::string StoredText(const std::vector<StoreValue>& store, std::string_view name);
// As the pages read a number: a shorter value fills only its own bytes. 0 if it is missing or longer.
unsigned long StoredNumber(const std::vector<StoreValue>& store, std::string_view name);

// What a device is called in a sentence: "device 5 (Multi-function board serial port)", an absent one as such
// where that is known; without a number in the list, its instance id.
std::string LabelOf(const Records& records, const DeviceRecord& device);

} // namespace host
