// What the host needs from the machine around it, and everything that differs between its two builds: on the
// simulated machine `simulated/world.cpp` answers from a `sim::Machine`, on Windows `windows/world.cpp` from
// the system itself. Everything else in this folder is the same code for both, and reads and operates windows
// through `platform/platform.h`.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/worlds/file_machine.h"
#include "host/worlds/records.h"
#include "platform/platform.h"

namespace host {

class World {
public:
    virtual ~World() = default;

    // What the machine is called: its file, "the sample machine", "this machine".
    virtual std::string Name() = 0;
    // What a person is told about it at the start.
    virtual std::string Greeting() { return Name(); }

    // The commands that show it if it is started without any input, one per line; none unless nothing on the
    // machine can be harmed.
    virtual std::vector<std::string> Tour() { return {}; }

    // The machine as it is now.
    virtual Records Describe() = 0;

    // What can be done with a machine from a file; null for a machine whose changes take effect at once.
    virtual FileMachine* File() { return nullptr; }

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
};

// The world that the host works on. `file` is the registry export of the machine to simulate, empty for the
// sample machine; a `language` of 0 keeps the machine's own. Null, with a reason in `error`, on failure.
std::unique_ptr<World> OpenWorld(const std::string& file, LANGID language, std::string& error);

} // namespace host
