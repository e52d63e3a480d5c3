#include <filesystem>

#include "host/diagnosis/ports_table.h"
#include "host/diagnosis/published_values.h"
#include "host/screen/listing.h"
#include "host/session/command.h"
#include "host/session/session.h"
#include "host/text.h"
#include "host/whole_file.h"

namespace host {
namespace {

void Devices(Session& session, const Words&) {
    const Records records = session.world().Describe();
    Lines lines = ListDevices(records);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const DeviceRecord& device = records.devices[index];
        const std::string reason =
            device.provider_fault.empty() ? WhyNoPage(device.role, device.store) : device.provider_fault;
        if (!reason.empty()) {
            lines[index] += "  (no page: " + reason + ')';
        }
    }
    session.Tell(lines);
}

void Store(Session& session, const Words& words) {
    const DeviceRecord device = session.FindDevice(words[1]);
    session.Tell(ListStore(device.store));
    for (const ValueFault& fault : StoreFaults(device.role, device.store)) {
        session.Tell("  " + std::string{fault.name} + ' ' + fault.what);
    }
}

void Ports(Session& session, const Words&) {
    session.Tell(PortsTable(session.world().Describe(), session.Width()));
}

void Journal(Session& session, const Words&) {
    const Lines lines = session.News();
    session.Tell(lines, "  ");
    if (lines.empty()) {
        session.Tell("  nothing");
    }
}

void Export(Session& session, const Words& words) {
    FileMachine* const machine = session.world().File();
    if (machine == nullptr) {
        throw Refusal("a real machine is exported by its own registry editor");
    }
    std::string told;
    if (!machine->Export(FileToWrite(words), told)) {
        throw Refusal(told);
    }
    if (!told.empty()) {
        session.Tell(told);
    }
}

} // namespace

std::string FileToWrite(const Words& words) {
    if (words.size() > 2 && words[1] != "--over") {
        throw Refusal(Quoted(words[1]) + " is not --over");
    }
    const std::string& file = words.back();
    std::error_code none;
    if (words.size() < 3 && std::filesystem::exists(PathOf(file), none)) {
        throw Refusal(file + " exists; " + words[0] + " --over " + file + " replaces it");
    }
    return file;
}

std::span<const Command> MachineCommands() {
    static constexpr Command commands[] = {
        {"devices", "", "lists the devices: number, kind, name, instance id, and why one has no page",
         &Devices},
        {"store", "DEVICE", "lists what the device store holds, and which values are missing or too long",
         &Store},
        {"ports", "", "lists all places that hold a port's number, and which of them disagree", &Ports},
        {"journal", "", "lists what the library has changed outside itself since the last journal", &Journal},
        {"export", "[--over] FILE", "writes the machine as a registry file; --over replaces one that exists",
         &Export},
    };
    return commands;
}

} // namespace host
