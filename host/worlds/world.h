// What the host needs of the machine around it, and the whole of what differs between its two builds: on the
// simulated machine `simulated/world.cpp` answers from a `sim::Machine`, on Windows `windows/world.cpp` from
// the system itself. Everything else in this folder is the same code for both, and reads and operates windows
// by the operations of `platform/platform.h`.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/text.h"
#include "platform/platform.h"

namespace host {

enum class DeviceKind { Board, Port };

// What is known and what is not. A registry export holds some of the places in which a number stands, rarely
// all; a live system may refuse to tell one. An optional without value is a place that is not known: whether
// it is empty or not nobody can say, and nothing may be concluded from it. An empty list is a place that is
// known to hold nothing.

// A device whose sheet can be opened: one with the values of a board, or a serial port.
struct Device {
    std::string id; // the instance id, "PCI\VEN_1B5C&...", UTF-8
    DeviceKind kind = DeviceKind::Board;
    Text description;            // may be empty
    Text friendly_name;          // may be empty
    std::optional<bool> present; // not known of a device without interfaces
    // Why nobody can be asked for its pages; empty if somebody can, or if that is not known.
    std::string provider_fault;
};

// The friendly name, else the description, else the instance id, as it is shown.
std::string NameOf(const Device& device);

struct StoreValue {
    Text name;
    DWORD type = 0;
    std::vector<BYTE> data;
};

using NamedTexts = std::vector<std::pair<Text, Text>>;

// Every place outside the devices that holds a port's number.
struct PortRecords {
    NamedTexts dos_names; // "COM5" and its target
    // The DOS names of a machine file are those that its serial map makes: shown, but no evidence.
    bool dos_names_are_derived = false;
    std::optional<NamedTexts> serial_map;     // value name and "COM5"
    std::optional<NamedTexts> settings_lines; // "COM5:" and its line
    // The COM port database: number n is bit (n - 1) % 8 of byte (n - 1) / 8, and free beyond the last byte.
    std::optional<std::vector<BYTE>> usage;
};

// Whether the database has claimed a number. False where it is not known.
bool IsClaimed(const PortRecords& records, unsigned long number);

// An interface of one of the five classes by which a board finds its channels; its device may be one without
// a sheet.
struct Interface {
    std::string device;         // the instance id
    Text description;           // the device's
    unsigned channel_class = 0; // 1 UART, 2 digital I/O, 3 Mcp251x, 4 Mcp251xFd, 5 CAN
    bool present = false;
};

// All that a machine was at one moment.
struct Moment {
    virtual ~Moment() = default;
};

class World {
public:
    virtual ~World() = default;

    // What a person is told of this machine at the start.
    virtual std::string Greeting() = 0;

    // The commands to show it by when it is started without any input, a line each; none but of a machine on
    // which nothing can be harmed.
    virtual std::vector<std::string> Tour() { return {}; }

    // Whether Devices has them all: a list may also be short because the file has no devices.
    virtual bool KnowsDevices() = 0;

    // Boards first, then ports, each in the order of their instance ids.
    virtual std::vector<Device> Devices() = 0;

    // The device store: the values of the hardware key, by name without regard to case.
    virtual std::vector<StoreValue> Store(const std::string& id) = 0;

    // Nothing if they are not known.
    virtual std::optional<std::vector<Interface>> Interfaces() = 0;

    virtual PortRecords Ports() = 0;

    // Calls the device's provider and runs the sheet with its page; comes back when the sheet has closed, or
    // at once when there is no provider or it gives no page. `attend` is called whenever a modal window waits
    // for its user, message boxes included; it operates that window and comes back once it has ended or there
    // is nothing left to do. False if there is no such device.
    virtual bool RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) = 0;

    // What the library has changed outside itself since the last call, a line an operation, with
    // "(failed)" behind it if it has been made to fail:
    //   RegSetValueExW <instance id> <value> = <data>      (numbers in decimal, texts in quotes)
    //   RegSetValueExW SERIALCOMM <value> = "COM5"
    //   DefineDosDeviceW COM5 -> <target>  /  DefineDosDeviceW remove COM5
    //   ComDBReleasePort 5  /  ComDBClaimPort 7 force
    //   SetupDiSetDeviceRegistryPropertyW <instance id> friendly name = "..."
    //   SetupDiSetDeviceInstallParamsW <instance id> flags 0x00004000
    //   SetupDiSetClassInstallParamsW <instance id> DIF_PROPERTYCHANGE
    //   SetupDiCallClassInstaller <instance id> DIF_PROPERTYCHANGE
    //   WriteProfileStringW [Ports] COM7: = "9600,n,8,1"  /  WriteProfileStringW [Ports] COM5: deleted
    //   SendNotifyMessageW WM_WININICHANGE "Ports"
    virtual std::vector<std::string> Journal() = 0;

    // From now on `hear` is told each line of the library's trace, without its line feed, and between them,
    // at its place, each line that the journal gets, `change` being true. An empty one ends it. False if this
    // library traces nothing.
    using TraceListener = std::function<void(const std::string& line, bool change)>;
    virtual bool HearTrace(TraceListener hear) = 0;

    // The style that a message box in front was opened with; 0 if `box` is none.
    virtual UINT BoxStyle(HWND box) = 0;

    // Whether the machine differs from what was read or last exported. Never true of a world whose changes
    // are made where they last.
    virtual bool HasUnsavedChanges() = 0;

    // Writes the machine as a registry export. False, with a reason in `told`, if the file can't be written
    // or this world has no such form of itself; where it is written, `told` is what of the changes it leaves
    // out.
    virtual bool Export(const std::string& file, std::string& told) = 0;

    // Writes what has changed since the machine was read, as a patch for its registry, and beside it what
    // takes it back, each with its comments at the head. False with a reason as above, or if there is nothing
    // to write.
    virtual bool Patch(const std::string& file, const std::vector<std::string>& comments,
                       const std::string& undo_file, const std::vector<std::string>& undo_comments,
                       std::string& error) = 0;

    // The machine as it is now, to come back to; null where a machine is not the world's to set back. No
    // sheet may be open when it is.
    virtual std::unique_ptr<Moment> Now() = 0;
    virtual bool IsStill(const Moment& moment) = 0;
    virtual void ComeBackTo(const Moment& moment) = 0;

    // Lets the n-th call from now of an operation of the system fail, n from 1; without a name, none any
    // more. False where operations can't be made to fail.
    virtual bool Fail(const std::string& operation, std::size_t call) = 0;
};

// The world that the host works on. `file` is the registry export of the machine to simulate, empty for the
// sample machine; a `language` of 0 leaves the machine's own. Null, with a reason in `error`, if it can't be
// had.
std::unique_ptr<World> OpenWorld(const std::string& file, LANGID language, std::string& error);

} // namespace host
