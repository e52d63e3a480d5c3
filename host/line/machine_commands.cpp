#include <filesystem>

#include "host/line/command.h"
#include "host/line/interpreter.h"
#include "host/line/ports_table.h"
#include "host/screen/listing.h"
#include "host/text.h"

namespace host {
namespace {

void Devices(Interpreter& host, const Words&) {
    host.Write(ListDevices(host.world().Devices()));
}

void Store(Interpreter& host, const Words& words) {
    host.Write(ListStore(host.world().Store(host.FindDevice(words[1]).id)));
}

void Ports(Interpreter& host, const Words&) {
    host.Write(PortsTable(host.world()));
}

void Journal(Interpreter& host, const Words&) {
    const std::vector<std::string> lines = host.world().Journal();
    host.Write(lines, "  ");
    if (lines.empty()) {
        host.Tell("  nothing");
    }
}

void Export(Interpreter& host, const Words& words) {
    std::string error;
    if (!host.world().Export(FileToWrite(words), error)) {
        throw Refusal(error);
    }
}

constexpr Command commands[] = {
    {"devices", "", "lists the devices: number, kind, name, instance id", &Devices},
    {"store", "DEVICE", "lists what the device store holds", &Store},
    {"ports", "", "lists all places that hold a port's number; ! marks what disagrees", &Ports},
    {"journal", "", "tells what the library has changed outside itself since the last time", &Journal},
    {"export", "[--over] FILE", "writes the machine as a registry file; --over replaces one that exists",
     &Export},
};

} // namespace

std::string FileToWrite(const Words& words) {
    const std::string& file = words.back();
    const bool over = words.size() > 2;
    if (over && words[1] != "--over") {
        throw Refusal(Quoted(words[1]) + " is none of --over");
    }
    std::error_code none;
    if (!over && std::filesystem::exists(std::filesystem::path(FromUtf8(file)), none)) {
        throw Refusal(file + " exists; " + words[0] + " --over " + file + " replaces it");
    }
    return file;
}

std::span<const Command> MachineCommands() {
    return commands;
}

} // namespace host
