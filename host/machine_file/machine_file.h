// The file of a simulated machine: a registry export, which regedit writes on a real machine and takes back
// there. What it holds of a machine:
//
//   ...\Enum\<enumerator>\<device>\<instance>          a device: DeviceDesc, FriendlyName, Class, ClassGUID
//       \Device Parameters                             its hardware key, with every value
//   ...\Control\DeviceClasses\{class}\##?#<path>       an interface: DeviceInstance
//       \#                                             SymbolicLink, its path; behind # a reference string
//       \#\Control  or  \Control                       Linked: it is present
//   ...\Control\COM Name Arbiter                       ComDB: the numbers in use, a bit each
//   HARDWARE\DEVICEMAP\SERIALCOMM                      the serial map, and with it the DOS names of its ports
//   SOFTWARE\Microsoft\Windows NT\CurrentVersion\Ports the profile's section [Ports]
//
// all below HKEY_LOCAL_MACHINE, those with dots below SYSTEM\CurrentControlSet. Where the file has nothing of
// that, the set that SYSTEM\Select names stands for it, without such a name ControlSet001. Everything else
// passes unread.
#pragma once

#include <istream>
#include <string>
#include <string_view>

#include "host/machine_file/registry_export.h"
#include "platform/simulated/machine.h"

namespace host {

// Gives the machine what the file holds of one; what no file holds, such as its language, stays. The devices
// come in the order of the file, the interfaces in that of a registry. False if the file is malformed, with
// the first line that is wrong; the machine is then as it was. `name` is the file's, for the problem.
bool LoadMachine(std::istream& in, const std::string& name, sim::Machine& machine, Problem& problem);

// False if the file can't be written, with the reason.
bool SaveMachine(const sim::Machine& machine, const std::string& file, std::string& error);

// The export that stands for a machine where none is given.
std::string_view SampleMachine();

} // namespace host
