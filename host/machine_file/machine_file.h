// The file of a simulated machine: a registry export, which regedit writes on a real machine and takes back
// there. What it holds of a machine:
//
//   ...\Enum\<enumerator>\<device>\<instance>          a device: DeviceDesc, FriendlyName, Class, ClassGUID
//       \Device Parameters                             its hardware key, with every value
//   ...\Control\DeviceClasses\{class}\##?#<path>       an interface: DeviceInstance
//       \#                                             SymbolicLink, its path; after # a reference string
//       \#\Control  or  \Control                       Linked: it is present
//   ...\Control\COM Name Arbiter                       ComDB: the numbers in use, a bit each, 1 to 512 bytes
//   HARDWARE\DEVICEMAP\SERIALCOMM                      the serial map, and with it the DOS names of its ports
//   SOFTWARE\Microsoft\Windows NT\CurrentVersion\Ports the profile's section [Ports]
//
// all below HKEY_LOCAL_MACHINE, those with dots below SYSTEM\CurrentControlSet. Where the file has nothing of
// that, the set that SYSTEM\Select names stands for it, without such a name ControlSet001. Everything else
// passes unread.
//
// A file holds some of these, rarely all. What it does not hold is not known: a machine has no value for it,
// nothing is concluded from that, and a machine that is saved holds what was read and what has changed since,
// and nothing else.
#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/machine_file/registry_export.h"
#include "host/machine_file/registry_tree.h"
#include "platform/simulated/machine.h"

namespace host {

// What a file held of a machine, value by value. One without keys is that of a machine made otherwise.
struct MachineFile {
    TreeKey root; // below HKEY_LOCAL_MACHINE
    std::size_t count = 0;
    sim::Text control_set = u"SYSTEM\\CurrentControlSet"; // the path of the one that the machine works with
};

// Reads what a file holds. False if it is malformed, with the first line that is wrong; `file` is then as it
// was. `name` is the file's, for the problem.
bool LoadMachine(std::istream& in, const std::string& name, MachineFile& file, Problem& problem);

// Gives the machine what the file holds of one; what no file holds, such as its language, stays. The devices
// come in the order of the file, the interfaces in that of a registry.
void GiveMachine(const MachineFile& file, sim::Machine& machine);

// The COM port database as the file has it; null if it has none, and the machine's numbers in use are then
// only those that were claimed since.
const sim::Value* PortDatabase(const MachineFile& file);

// The database with what has been claimed and released since; nothing if the file has none. It keeps its
// length unless a number beyond its end has been claimed.
std::optional<std::vector<BYTE>> CurrentPortUsage(const MachineFile& file, const sim::Machine& machine);

// What the file held, with what has changed in the machine since.
MachineFile Changed(const MachineFile& file, const sim::Machine& machine);

// Writes what the file held, with what has changed in the machine since. A COM port database that the file
// does not hold is left out even if numbers were claimed or released: to import one that knows of nothing
// else would free every other number. False if it can't be written, with the reason.
bool SaveMachine(const MachineFile& file, const sim::Machine& machine, const std::string& path,
                 std::string& error);

// The export that stands for a machine where none is given.
std::string_view SampleMachine();

} // namespace host
