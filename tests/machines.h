// Machines for the tests: functions that make boards and ports, and functions that read the places in which a
// port's number is kept.
//
// A maker adds to a machine and returns the device's index. A UART and a mainboard port have every place in
// agreement: PortName, friendly name, DOS name, serial map, database, and a settings line of their own. The
// target of a port, "\Device\Serial3", never changes, and identifies the port of a DOS name or of a value in
// the serial map.
#pragma once

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "device_model/channel_list.h"
#include "simulated/machine.h"

namespace machines {

// The identity of a board: devices with the same place belong to one board.
struct BoardPlace {
    u32 bus = 3;
    u32 irq = 17;
};

GUID InterfaceClass(u32 channel_class);

// The board's own device, with the values of a board whose BoardNrController is `nr_controller`.
std::size_t AddBoard(sim::Machine& machine, BoardPlace place, u32 nr_controller);
// A channel with readable values. For a UART it is a port as well; see the next function.
std::size_t AddChannel(sim::Machine& machine, BoardPlace place, u32 channel_class, u32 channel);
// A UART with FIFOs of 128 bytes and every capability, in RS-232, on a COM number.
std::size_t AddUart(sim::Machine& machine, BoardPlace place, u32 channel, u32 number);
// A port that belongs to no board.
std::size_t AddMainboardPort(sim::Machine& machine, u32 number);
// A board at device 0. Its UARTs, the devices from 1 on, are the channels 1, 2, 3, ... on these numbers. It
// has room for one more channel.
sim::Machine BoardOn(const std::vector<u32>& numbers);

sim::Text PortName(u32 number);
// The settings line that a port is made with. Each device has its own.
sim::Text LineOf(std::size_t device);
void SetLine(sim::Machine& machine, u32 number, std::u16string_view line);
// The line under "COM5:"; empty if there is none.
sim::Text Line(sim::Machine& machine, u32 number);

// What the places hold for one port.
struct Places {
    sim::Text port_name;
    sim::Text friendly_name;
    sim::Text dos_name;      // the names with the port's target, separated by blanks
    sim::Text serial_map;    // what the map holds for the port's target
    bool claimed = false;    // the number in `port_name`, in the database
    sim::Text settings_line; // of the number in `port_name`
    friend bool operator==(const Places&, const Places&) = default;
};
std::ostream& operator<<(std::ostream& out, const Places& places);

Places PlacesOf(sim::Machine& machine, std::size_t device);
// What the places hold if all agree on a number.
Places PlacesAt(const sim::Machine& machine, std::size_t device, u32 number);

// "name detail" of each journal entry of these kinds.
std::vector<std::string> Journal(const sim::Machine& machine, std::initializer_list<sim::Reach> reaches);
// The details of an operation in the journal, one for each time, and how many there are.
std::vector<std::string> Details(const sim::Machine& machine, std::string_view name);
std::size_t Count(const sim::Machine& machine, std::string_view name);
// The operations that the fault plan has made fail, with the number of the call.
std::vector<std::pair<std::string_view, std::size_t>> FailedCalls(const sim::Machine& machine);

// A device as the device manager passes it, open as long as this lasts.
struct OpenDevice {
    explicit OpenDevice(std::size_t device) : set(sim::OpenDeviceSet(device, data)) {}
    ~OpenDevice();
    OpenDevice(const OpenDevice&) = delete;
    OpenDevice& operator=(const OpenDevice&) = delete;

    SP_DEVINFO_DATA data{};
    HDEVINFO set;
};

// A board as its page has it: read by BoardInitiate, released at the end. `params` is zero before.
struct OpenBoard {
    explicit OpenBoard(std::size_t device = 0);
    ~OpenBoard();
    // The record of a channel number; null if there is none.
    BPPCHL* Channel(u32 number) const { return BoardChlByNumber(&params, number); }

    OpenDevice device;
    BoardParams params{};
    u32 status = 0;
    bool initiated = false;
};

// Whether this is a long run, which tries everything and takes too long for every day.
bool IsLongRun();

// Empties the journal and the list of boxes, and removes all faults.
void Forget(sim::Machine& machine);

} // namespace machines
