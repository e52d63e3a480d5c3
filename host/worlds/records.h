// What is known about a machine's ports and boards, in plain records: the one description of it. Each world
// fills it, and everything that is said about the machine follows from it alone.
//
// A COM number is kept in several places, and a machine may be known in only some of them: a registry export
// holds some, rarely all, and a live system may refuse to show one. A place that is not known is empty here,
// and nothing is concluded from that. All texts are UTF-8 as they were stored, so they must be escaped when
// they are shown.
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
    std::size_t listed = 0; // its number among the devices with a sheet, from 1; 0 without a sheet
    std::string description, friendly_name; // may be empty
    bool present = true;                    // false if it has interfaces and none of them is there
    // Why nothing can be asked for its pages; empty if something can, or if that is not known.
    std::string provider_fault;
    StoreValues store; // the values of its hardware key, in the order of their names
    std::vector<ChannelInterface> interfaces;
};

// The database can hold no higher one.
constexpr unsigned long highest_com_number = 4096;

// What all places say about one number.
struct NumberRecord {
    bool claimed = false;
    std::vector<std::size_t> holders; // indices of the devices with this number in PortName
    std::vector<std::string> mapped;  // the objects in the serial map
    std::vector<std::string>
        lines; // the settings lines; several if their keys differ in case or in zeros before the number
    std::vector<std::string> targets; // of its DOS names
};

using TextPairs = std::vector<std::pair<std::string, std::string>>;

struct Records {
    unsigned known = 0;   // places
    unsigned written = 0; // of these, the ones that were not read: only what has been written there is known
    // First those with a sheet, boards before ports, each in the order of their instance ids; then other
    // channels.
    std::vector<DeviceRecord> devices;
    // The COM port database: number n is bit (n - 1) % 8 of byte (n - 1) / 8, and free beyond the last byte.
    std::vector<BYTE> usage;
    StoreValues serial_map;     // named by the object of a live port; "COM5"
    StoreValues settings_lines; // named "COM5:"
    TextPairs dos_names;        // "COM5" and its target
    bool dos_names_derived =
        false; // they were derived from the serial map: they are shown, but are no evidence

    // All numbers that occur anywhere, joined from the places above.
    std::map<unsigned long, NumberRecord> numbers;
};

// Puts the devices in their order and numbers those with a sheet.
void ListDevices(Records& records);

// Fills `numbers`.
void JoinNumbers(Records& records);

// The record of a number that may occur nowhere.
const NumberRecord& NumberIn(const Records& records, unsigned long number);

// How many devices have a sheet: the first ones.
std::size_t CountListed(const Records& records);

// A place that is not known, and the registry key to export so that it is.
struct MissingPlace {
    Place place;
    const char* name; // "the serial map"
    const char* json; // "serialMap"
    const char* key;
};
// The places that are not among the known ones.
std::vector<MissingPlace> MissingPlaces(unsigned known);

// --- Names ----------------------------------------------------------------------------------------------

// The number of a port's name: the digits after the letters COM, in either case; 0 for any other text.
unsigned long PortNumber(std::string_view name);
// The number in the last pair of parentheses of a friendly name; 0 if there is none.
unsigned long FriendlyNumber(std::string_view name);
// The number of a settings line's key, "COM5:".
unsigned long LineNumber(std::string_view key);

// "COM5".
std::string ComName(unsigned long number);

// The friendly name, else the description, else the instance id, as it is shown.
std::string NameOf(const DeviceRecord& device);

// The name of a device in a sentence: "device 5 (Multi-function board serial port)", with "absent" if it is
// known to be. A device that is not in the list is named by its instance id.
std::string LabelOf(const Records& records, const DeviceRecord& device);

} // namespace host
