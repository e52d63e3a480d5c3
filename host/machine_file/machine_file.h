// The file of a simulated machine: a registry export, which regedit writes on a real machine and imports
// there again. What it holds of a machine:
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
// all below HKEY_LOCAL_MACHINE, and those with dots below SYSTEM\CurrentControlSet. If the file has nothing
// there, the control set that SYSTEM\Select names takes its place, or ControlSet001 if none is named.
// Everything else is skipped.
//
// A file holds some of these, rarely all. What it does not hold is not known: the machine has no value for
// it, nothing is concluded from that, and a saved machine holds only what was read and what has changed
// since.
#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/machine_file/registry_export.h"
#include "host/machine_file/registry_tree.h"
#include "simulated/machine.h"

namespace host {

// What a file holds of a machine, value by value. It has no keys if the machine was not made from a file.
struct MachineFile {
    TreeKey root; // below HKEY_LOCAL_MACHINE
    std::size_t count = 0;
    sim::Text control_set = u"SYSTEM\\CurrentControlSet"; // the path of the control set that the machine uses
};

// Reads what a file holds. Returns false, with the first line that is wrong, if it is malformed; `file` is
// then unchanged. `name` is the name of the file, for the problem.
bool LoadMachine(std::istream& in, const std::string& name, MachineFile& file, Problem& problem);

// Gives the machine what the file holds. What no file holds, such as the language, stays. The devices keep
// the order of the file, and the interfaces take the order of a registry.
void GiveMachine(const MachineFile& file, sim::Machine& machine);

// The COM port database of the file. Null if it has none; the machine's numbers in use are then only those
// that were claimed since.
const sim::Value* PortDatabase(const MachineFile& file);

// The database with the claims and releases made since; nothing if the file has none. It keeps its length
// unless a number beyond its end has been claimed.
std::optional<std::vector<BYTE>> CurrentPortUsage(const MachineFile& file, const sim::Machine& machine);

// What the file held, with the machine's changes since.
MachineFile Changed(const MachineFile& file, const sim::Machine& machine);

// Writes what the file held, with the machine's changes since. A COM port database that the file does not
// hold is left out even if numbers were claimed or released: importing one that knows only these would free
// every other number. Returns false with the reason if it can't be written.
bool SaveMachine(const MachineFile& file, const sim::Machine& machine, const std::string& path,
                 std::string& error);

// The export that is used if none is given.
std::string_view SampleMachine();

} // namespace host
