#include "host/worlds/simulated/world.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "board_page/board_page_provider.h"
#include "host/machine_file/machine_file.h"
#include "host/machine_file/registry_export.h"
#include "host/screen/listing.h"
#include "host/text.h"
#include "host/worlds/simulated/user_language.h"
#include "reporting/module_entry.h"
#include "uart_page/uart_page_provider.h"

namespace host {
namespace {

// What only a board's own device says.
constexpr std::u16string_view board_value = u"BoardNrController";

std::optional<DeviceKind> KindOf(const sim::Device& device) {
    if (sim::EqualNoCase(device.class_name, u"Ports") || device.key.Find(u"PortName")) {
        return DeviceKind::Port;
    }
    if (device.key.Find(board_value)) {
        return DeviceKind::Board;
    }
    return {};
}

// As the library's provider calls it: the page goes to the sheet's list.
BOOL CALLBACK AddPage(HPROPSHEETPAGE page, LPARAM pages) {
    reinterpret_cast<std::vector<HPROPSHEETPAGE>*>(pages)->push_back(page);
    return TRUE;
}

} // namespace

SimulatedWorld::SimulatedWorld(sim::Machine& machine) : machine_(machine), scope_(machine) {
    machine_.journal_reads = false;
    DllMain(sim::LibraryInstance(), DLL_PROCESS_ATTACH, nullptr);
}

SimulatedWorld::~SimulatedWorld() {
    DllMain(sim::LibraryInstance(), DLL_PROCESS_DETACH, nullptr);
}

std::vector<Device> SimulatedWorld::Devices() {
    std::vector<Device> devices;
    for (std::size_t index = 0; index < machine_.devices.size(); ++index) {
        const sim::Device& device = machine_.devices[index];
        const std::optional<DeviceKind> kind = KindOf(device);
        if (!kind) {
            continue;
        }
        const auto is_of_device = [index](const sim::Interface& entry) { return entry.device == index; };
        const auto& interfaces = machine_.interfaces;
        const bool present = std::ranges::none_of(interfaces, is_of_device) ||
                             std::ranges::any_of(interfaces, [&](const sim::Interface& entry) {
                                 return is_of_device(entry) && entry.linked;
                             });
        devices.push_back({ToUtf8(device.instance_id), *kind, device.description.value_or(u""),
                           device.friendly_name.value_or(u""), present});
    }
    std::ranges::sort(devices, [](const Device& left, const Device& right) {
        return left.kind != right.kind ? left.kind == DeviceKind::Board : Folded(left.id) < Folded(right.id);
    });
    return devices;
}

std::vector<StoreValue> SimulatedWorld::Store(const std::string& id) {
    std::vector<StoreValue> values;
    for (const sim::Device& device : machine_.devices) {
        if (ToUtf8(device.instance_id) == id) {
            for (const sim::Value& value : device.key.list) {
                values.push_back({value.name, value.type, value.data});
            }
        }
    }
    std::ranges::sort(values, {}, [](const StoreValue& value) { return Folded(ToUtf8(value.name)); });
    return values;
}

PortRecords SimulatedWorld::Ports() {
    PortRecords records;
    records.dos_names = machine_.dos_names;
    for (const sim::Value& value : machine_.serial_map.list) {
        records.serial_map.emplace_back(value.name, TextIn(value.data));
    }
    if (const sim::Values* lines = machine_.ProfileSection(u"Ports", false)) {
        for (const sim::Value& value : lines->list) {
            records.settings_lines.emplace_back(value.name, TextIn(value.data));
        }
    }
    records.usage = machine_.port_usage;
    return records;
}

bool SimulatedWorld::RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) {
    const auto device = std::ranges::find_if(
        machine_.devices, [&](const sim::Device& entry) { return ToUtf8(entry.instance_id) == id; });
    if (device == machine_.devices.end()) {
        return false;
    }
    const std::optional<DeviceKind> kind = KindOf(*device);
    if (!kind) {
        return false;
    }
    machine_.user = attend;
    SP_DEVINFO_DATA data{};
    const HDEVINFO set =
        sim::OpenDeviceSet(static_cast<std::size_t>(device - machine_.devices.begin()), data);
    SP_PROPSHEETPAGE_REQUEST request{sizeof request, SPPSR_ENUM_ADV_DEVICE_PROPERTIES, set, &data};
    std::vector<HPROPSHEETPAGE> pages;
    const auto provider = *kind == DeviceKind::Board ? KvrBoardPropPageProvider : KvrUartPropPageProvider;
    provider(&request, AddPage, reinterpret_cast<LPARAM>(&pages));
    if (!pages.empty()) {
        const sim::Text name =
            device->friendly_name.value_or(device->description.value_or(device->instance_id));
        sim::RunSheet(name + u" Properties", pages);
    }
    SetupDiDestroyDeviceInfoList(set);
    machine_.user = nullptr;
    return true;
}

std::vector<std::string> SimulatedWorld::Journal() {
    std::vector<std::string> lines;
    for (const sim::JournalEntry& entry : machine_.journal) {
        lines.push_back(std::string{entry.name} + ' ' + entry.detail + (entry.failed ? " (failed)" : ""));
    }
    machine_.journal.clear();
    return lines;
}

UINT SimulatedWorld::BoxStyle(HWND box) {
    return sim::BoxStyle(box);
}

bool SimulatedWorld::Export(const std::string& file, std::string& error) {
    return SaveMachine(machine_, file, error);
}

namespace {

struct Owned {
    sim::Machine machine;
};
struct OwnWorld : private Owned, SimulatedWorld {
    explicit OwnWorld(sim::Machine&& loaded) : Owned{std::move(loaded)}, SimulatedWorld(machine) {}
};

} // namespace

bool OpenMachine(const std::string& file, sim::Machine& machine, std::string& error) {
    std::ifstream from_file;
    std::istringstream sample{std::string{SampleMachine()}};
    if (!file.empty()) {
        from_file.open(file, std::ios::binary);
        if (!from_file) {
            error = "can't open " + file;
            return false;
        }
    }
    Problem problem;
    if (LoadMachine(file.empty() ? static_cast<std::istream&>(sample) : from_file, file, machine, problem)) {
        return true;
    }
    error = problem.file + ':' + std::to_string(problem.line) + ": expected " + problem.expected;
    return false;
}

std::unique_ptr<World> OpenWorld(const std::string& file, LANGID language, std::string& error) {
    sim::Machine machine;
    if (!OpenMachine(file, machine, error)) {
        return nullptr;
    }
    machine.language = language != 0 ? language : UserLanguage();
    return std::make_unique<OwnWorld>(std::move(machine));
}

} // namespace host
