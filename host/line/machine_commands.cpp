#include <filesystem>

#include "host/diagnosis/published_values.h"
#include "host/line/command.h"
#include "host/line/interpreter.h"
#include "host/line/ports_table.h"
#include "host/screen/listing.h"
#include "host/text.h"

namespace host {
namespace {

void Devices(Interpreter& host, const Words&) {
    const std::vector<Device> devices = host.world().Devices();
    Lines lines = ListDevices(devices);
    for (std::size_t index = 0; index < devices.size(); ++index) {
        const Device& device = devices[index];
        const std::string reason = device.provider_fault.empty()
                                       ? WhyNoPage(device.kind, host.world().Store(device.id))
                                       : device.provider_fault;
        if (!reason.empty()) {
            lines[index] += "  (no page: " + reason + ')';
        }
    }
    host.Write(lines);
}

void Store(Interpreter& host, const Words& words) {
    const Device device = host.FindDevice(words[1]);
    const std::vector<StoreValue> store = host.world().Store(device.id);
    host.Write(ListStore(store));
    for (const ValueFault& fault : StoreFaults(device.kind, store)) {
        host.Tell("  " + std::string{fault.name} + ' ' + fault.what);
    }
}

void Ports(Interpreter& host, const Words&) {
    host.Write(PortsTable(host.world(), host.Width()));
}

void Journal(Interpreter& host, const Words&) {
    const std::vector<std::string> lines = host.world().Journal();
    host.Write(lines, "  ");
    if (lines.empty()) {
        host.Tell("  nothing");
    }
}

void Export(Interpreter& host, const Words& words) {
    std::string told;
    if (!host.world().Export(FileToWrite(words), told)) {
        throw Refusal(told);
    }
    if (!told.empty()) {
        host.Tell(told);
    }
}

} // namespace

std::string FileToWrite(const Words& words) {
    const std::string& file = words.back();
    const bool over = words.size() > 2;
    if (over && words[1] != "--over") {
        throw Refusal(Quoted(words[1]) + " is not --over");
    }
    std::error_code none;
    if (!over && std::filesystem::exists(std::filesystem::path(FromUtf8(file)), none)) {
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
