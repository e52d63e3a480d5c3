// What the host needs from the machine around it, and everything that differs between its two builds: on the
// simulated machine `simulated/world.cpp` answers from a `sim::Machine`, on Windows `windows/world.cpp` from
// the system itself. Everything else in this folder is the same code for both, and reads and operates windows
// through `platform/platform.h`.
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

// What is known and what is not. A registry export holds some of the places that keep a number, rarely all,
// and a live system may refuse to show one. An optional without a value is a place that is not known: nobody
// can say whether it is empty, and nothing may be concluded from it. An empty list is a place that is known
// to hold nothing.

// A device whose sheet can be opened: one with the values of a board, or a serial port.
struct Device {
    std::string id; // the instance id, "PCI\VEN_1B5C&...", UTF-8
    DeviceKind kind = DeviceKind::Board;
    Text description;            // may be empty
    Text friendly_name;          // may be empty
    std::optional<bool> present; // not known for a device without interfaces
    // Why nothing can be asked for its pages; empty if something can, or if that is not known.
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
    // The DOS names of a machine file are derived from its serial map: they are shown, but are no evidence.
    bool dos_names_are_derived = false;
    std::optional<NamedTexts> serial_map;     // value name and "COM5"
    std::optional<NamedTexts> settings_lines; // "COM5:" and its line
    // The COM port database: number n is bit (n - 1) % 8 of byte (n - 1) / 8, and free beyond the last byte.
    std::optional<std::vector<BYTE>> usage;
};

// Whether the database has claimed a number. False if it is not known.
bool IsClaimed(const PortRecords& records, unsigned long number);

// An interface of one of the five classes through which a board finds its channels. Its device need not have
// a sheet.
struct Interface {
    std::string device;         // the instance id
    Text description;           // the device's
    unsigned channel_class = 0; // 1 UART, 2 digital I/O, 3 Mcp251x, 4 Mcp251xFd, 5 CAN
    bool present = false;
};

// The whole state of a machine at one moment.
struct Moment {
    virtual ~Moment() = default;
};

class World {
public:
    virtual ~World() = default;

    // What a person is told about this machine at the start.
    virtual std::string Greeting() = 0;

    // The commands that show it if it is started without any input, one per line; none unless nothing on the
    // machine can be harmed.
    virtual std::vector<std::string> Tour() { return {}; }

    // Whether Devices lists all of them: a list may also be short because the file has no devices.
    virtual bool KnowsDevices() = 0;

    // Boards first, then ports, each in the order of their instance ids.
    virtual std::vector<Device> Devices() = 0;

    // The device store: the values of the hardware key, by name without regard to case.
    virtual std::vector<StoreValue> Store(const std::string& id) = 0;

    // Nothing if they are not known.
    virtual std::optional<std::vector<Interface>> Interfaces() = 0;

    virtual PortRecords Ports() = 0;

    // Calls the device's provider and runs the sheet with its page. Returns when the sheet has closed, or at
    // once if there is no provider or it gives no page. `attend` is called whenever a modal window waits for
    // its user, message boxes included; it operates that window and returns once it has ended or there is
    // nothing left to do. False if there is no such device.
    virtual bool RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) = 0;

    // What the library has changed outside itself since the last call, one line per operation, followed by
    // "(failed)" if it was made to fail:
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

    // From now on `hear` is called with each line of the library's trace, without its line feed, and between
    // them, at its place, with each line that the journal gets, with `change` true. An empty function ends
    // that. False if this library traces nothing.
    using TraceListener = std::function<void(const std::string& line, bool change)>;
    virtual bool HearTrace(TraceListener hear) = 0;

    // The style that a message box in front was opened with; 0 if `box` is not one.
    virtual UINT BoxStyle(HWND box) = 0;

    // Whether the machine differs from what was read or last exported. Never true of a world whose changes
    // take effect at once.
    virtual bool HasUnsavedChanges() = 0;

    // Writes the machine as a registry export. Returns false, with a reason in `told`, if the file can't be
    // written or this world can't be exported. On success `told` says which changes it leaves out.
    virtual bool Export(const std::string& file, std::string& told) = 0;

    // Writes what has changed since the machine was read, as a patch for its registry, and beside it a file
    // that takes it back, each with its comments first. Returns false with a reason in `error` if that fails
    // or there is nothing to write.
    virtual bool Patch(const std::string& file, const std::vector<std::string>& comments,
                       const std::string& undo_file, const std::vector<std::string>& undo_comments,
                       std::string& error) = 0;

    // The present state of the machine, to come back to; null if this world can't set its machine back. No
    // sheet may be open when it is set back.
    virtual std::unique_ptr<Moment> Now() = 0;
    virtual bool IsStill(const Moment& moment) = 0;
    virtual void ComeBackTo(const Moment& moment) = 0;

    // Makes the n-th call of an operation of the system from now on fail, counted from 1; without a name,
    // none any more. False if operations can't be made to fail.
    virtual bool Fail(const std::string& operation, std::size_t call) = 0;
};

// The world that the host works on. `file` is the registry export of the machine to simulate, empty for the
// sample machine; a `language` of 0 keeps the machine's own. Null, with a reason in `error`, on failure.
std::unique_ptr<World> OpenWorld(const std::string& file, LANGID language, std::string& error);

} // namespace host
