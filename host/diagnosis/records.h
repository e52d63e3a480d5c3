// What is known about a machine's ports and boards, in plain records. Any source of a machine can fill them,
// and everything that is said about the machine follows from them alone.
//
// A COM number is kept in several places, and a machine may be known in only some of them. A place that is
// not known is empty here, and nothing is concluded from that. All texts are UTF-8 as they were stored, so
// they must be quoted when they are shown.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/worlds/store_values.h"

namespace host {

// The places, as bits: `Records::known` and the needs of a rule are combinations of them.
enum Place : unsigned {
    DevicesPlace = 1,
    InterfacesPlace = 2, // which devices are present, and the class of each channel
    DatabasePlace = 4,
    SerialMapPlace = 8,
    SettingsPlace = 16,
    AllPlaces = 31,
};

enum class Role {
    Board,
    Port,    // a serial port, of a board or not
    Channel, // a channel of a board that is not a port
};

// An interface of one of the five classes through which a board finds its channels.
struct ChannelInterface {
    unsigned channel_class = 0; // 1 to 5: UART, digital I/O, Mcp251x, Mcp251xFd, CAN
    bool present = false;
};

struct DeviceRecord {
    std::string id; // the instance id
    Role role = Role::Port;
    std::size_t listed = 0; // its place in the list of the devices with a sheet, from 1; 0 without a sheet
    std::string description, friendly_name; // may be empty
    bool present = true;                    // has a meaning only if the interfaces are known
    std::vector<StoreValue> store;
    std::vector<ChannelInterface> interfaces;
};

using TextPairs = std::vector<std::pair<std::string, std::string>>;

struct Records {
    unsigned known = 0; // places
    std::vector<DeviceRecord> devices;
    std::vector<bool> claimed;      // in the COM port database, COM1 first; beyond the end all are free
    TextPairs serial_map;           // the object of a live port and "COM5"
    TextPairs settings_lines;       // "COM5:" and the line
    TextPairs dos_names;            // "COM5" and its target
    bool dos_names_derived = false; // they were derived from the serial map and are no evidence
};

// --- What the records say about one number --------------------------------------------------------------

struct NumberRecord {
    bool claimed = false;
    std::vector<std::size_t> holders; // indices of the devices with this number in PortName
    std::vector<std::string> mapped;  // the objects in the serial map
    std::vector<std::string> lines;   // the settings lines; several only if their keys differ in case
    std::vector<std::string> targets; // of its DOS names
};

// All numbers that occur anywhere.
using NumberRecords = std::map<unsigned long, NumberRecord>;

NumberRecords NumbersOf(const Records& records);

// --- Names ----------------------------------------------------------------------------------------------

// The number of a port's name: the digits after the letters COM, in either case; 0 for any other text.
unsigned long PortNumber(std::string_view name);
// The number in the last pair of parentheses of a friendly name; 0 if there is none.
unsigned long FriendlyNumber(std::string_view name);
// The number of a settings line's key, "COM5:".
unsigned long LineNumber(std::string_view key);

// "COM5".
std::string ComName(unsigned long number);

// The text of a value; empty if it is missing.
std::string StoredText(const std::vector<StoreValue>& store, std::string_view name);
// A number as the pages read it: a shorter value fills only its own bytes. 0 if it is missing or longer.
unsigned long StoredNumber(const std::vector<StoreValue>& store, std::string_view name);

// The name of a device in a sentence: "device 5 (Multi-function board serial port)", with "absent" if it is
// known to be. A device that is not in the list is named by its instance id.
std::string LabelOf(const Records& records, const DeviceRecord& device);

} // namespace host
