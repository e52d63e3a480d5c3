#include "host/worlds/simulated/world.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <tuple>

#include "board_page/board_page_provider.h"
#include "host/languages.h"
#include "host/machine_file/machine_file.h"
#include "host/machine_file/machine_places.h"
#include "host/machine_file/patch.h"
#include "host/text.h"
#include "host/worlds/channel_classes.h"
#include "host/worlds/simulated/tour.h"
#include "reporting/module_entry.h"
#include "uart_page/uart_page_provider.h"

namespace host {
namespace {

// Only a board's own device has this value.
constexpr std::u16string_view board_value = u"BoardNrController";

std::optional<DeviceKind> KindOf(const sim::Device& device) {
    if (sim::EqualNoCase(device.class_name, u"Ports") || device.key.Find(u"PortName") != nullptr) {
        return DeviceKind::Port;
    }
    if (device.key.Find(board_value) != nullptr) {
        return DeviceKind::Board;
    }
    return {};
}

bool Holds(const MachineFile& file, std::u16string_view key) {
    return file.root.Find(Below(file.control_set, key)) != nullptr;
}

// What a file holds of the machine, and what follows from it.
struct MachineMoment : Moment {
    explicit MachineMoment(const sim::Machine& machine)
        : devices(machine.devices), interfaces(machine.interfaces), dos_names(machine.dos_names),
          serial_map(machine.serial_map), serial_map_exists(machine.serial_map_exists),
          port_usage(machine.port_usage), profile(machine.profile) {}

    std::vector<sim::Device> devices;
    std::vector<sim::Interface> interfaces;
    std::vector<std::pair<sim::Text, sim::Text>> dos_names;
    sim::Values serial_map;
    bool serial_map_exists;
    sim::PortUsage port_usage;
    std::vector<std::pair<sim::Text, sim::Values>> profile;
};

// The library's provider calls this: the page is added to the sheet's list.
BOOL CALLBACK AddPage(HPROPSHEETPAGE page, LPARAM pages) {
    reinterpret_cast<std::vector<HPROPSHEETPAGE>*>(pages)->push_back(page);
    return TRUE;
}

std::string JournalLine(const sim::JournalEntry& entry) {
    return std::string{entry.name} + ' ' + entry.detail + (entry.failed ? " (failed)" : "");
}

} // namespace

SimulatedWorld::SimulatedWorld(MachineFile file, sim::Machine& machine)
    : file_(std::move(file)), machine_(machine), scope_(machine) {
    GiveMachine(file_, machine_);
    KeepAsSaved();
    machine_.journal_reads = false;
    DllMain(sim::LibraryInstance(), DLL_PROCESS_ATTACH, nullptr);
}

SimulatedWorld::~SimulatedWorld() {
    DllMain(sim::LibraryInstance(), DLL_PROCESS_DETACH, nullptr);
}

bool SimulatedWorld::KnowsDevices() {
    return Holds(file_, devices_key);
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
        std::optional<bool> present;
        if (std::ranges::any_of(interfaces, is_of_device)) {
            present = std::ranges::any_of(
                interfaces, [&](const sim::Interface& entry) { return is_of_device(entry) && entry.linked; });
        }
        devices.push_back({ToUtf8(device.instance_id),
                           *kind,
                           device.description.value_or(u""),
                           device.friendly_name.value_or(u""),
                           present,
                           {}});
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

std::optional<std::vector<Interface>> SimulatedWorld::Interfaces() {
    if (!Holds(file_, interfaces_key)) {
        return std::nullopt;
    }
    std::vector<Interface> interfaces;
    for (const sim::Interface& one : machine_.interfaces) {
        const sim::Device& device = machine_.devices[one.device];
        if (const unsigned channel_class = ChannelClassOf(one.class_guid)) {
            interfaces.push_back(
                {ToUtf8(device.instance_id), device.description.value_or(u""), channel_class, one.linked});
        }
    }
    return interfaces;
}

PortRecords SimulatedWorld::Ports() {
    const auto texts_of = [](const sim::Values& values) {
        NamedTexts texts;
        for (const sim::Value& value : values.list) {
            texts.emplace_back(value.name, TextIn(value.data));
        }
        return texts;
    };
    PortRecords records;
    records.dos_names = machine_.dos_names;
    records.dos_names_are_derived = true;
    if (machine_.serial_map_exists) {
        records.serial_map = texts_of(machine_.serial_map);
    }
    if (const sim::Values* lines = machine_.ProfileSection(u"Ports", false)) {
        records.settings_lines = texts_of(*lines);
    }
    records.usage = CurrentPortUsage(file_, machine_);
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
    std::ranges::transform(machine_.journal, std::back_inserter(lines), JournalLine);
    machine_.journal.clear();
    told_ = 0;
    return lines;
}

bool SimulatedWorld::HearTrace(TraceListener hear) {
    told_ = machine_.journal.size();
    machine_.trace = nullptr;
    if (hear) {
        machine_.trace = [this, hear = std::move(hear)](std::string_view line) {
            for (; told_ < machine_.journal.size(); ++told_) {
                hear(JournalLine(machine_.journal[told_]), true);
            }
            hear(std::string(line.substr(0, line.find('\n'))), false);
        };
    }
    return true;
}

UINT SimulatedWorld::BoxStyle(HWND box) {
    return sim::BoxStyle(box);
}

void SimulatedWorld::KeepAsSaved() {
    saved_.devices = machine_.devices;
    saved_.serial_map = machine_.serial_map;
    saved_.port_usage = machine_.port_usage;
    saved_.profile = machine_.profile;
}

bool SimulatedWorld::HasUnsavedChanges() {
    const auto contents = [](const sim::Machine& machine) {
        return std::tie(machine.devices, machine.serial_map, machine.port_usage, machine.profile);
    };
    return contents(machine_) != contents(saved_);
}

bool SimulatedWorld::Export(const std::string& file, std::string& told) {
    if (!SaveMachine(file_, machine_, file, told)) {
        return false;
    }
    if (PortDatabase(file_) == nullptr && machine_.port_usage != sim::PortUsage{}) {
        told = "the COM port database was not in the file that was read, and is left out";
    }
    KeepAsSaved();
    return true;
}

bool SimulatedWorld::Patch(const std::string& file, const std::vector<std::string>& comments,
                           const std::string& undo_file, const std::vector<std::string>& undo_comments,
                           std::string& error) {
    const MachineFile now = Changed(file_, machine_);
    const std::vector<KeyChange> changes = KeyChanges(file_, now);
    if (changes.empty()) {
        error = "nothing has changed that a patch could hold";
        return false;
    }
    if (!WritePatch(changes, comments, file, error) ||
        !WritePatch(KeyChanges(now, file_), undo_comments, undo_file, error)) {
        return false;
    }
    saved_ = machine_;
    return true;
}

std::unique_ptr<Moment> SimulatedWorld::Now() {
    return std::make_unique<MachineMoment>(machine_);
}

bool SimulatedWorld::IsStill(const Moment& moment) {
    const auto& was = static_cast<const MachineMoment&>(moment);
    return std::tie(was.devices, was.interfaces, was.dos_names, was.serial_map, was.serial_map_exists,
                    was.port_usage, was.profile) ==
           std::tie(machine_.devices, machine_.interfaces, machine_.dos_names, machine_.serial_map,
                    machine_.serial_map_exists, machine_.port_usage, machine_.profile);
}

void SimulatedWorld::ComeBackTo(const Moment& moment) {
    const auto& was = static_cast<const MachineMoment&>(moment);
    machine_.devices = was.devices;
    machine_.interfaces = was.interfaces;
    machine_.dos_names = was.dos_names;
    machine_.serial_map = was.serial_map;
    machine_.serial_map_exists = was.serial_map_exists;
    machine_.port_usage = was.port_usage;
    machine_.profile = was.profile;
}

bool SimulatedWorld::Fail(const std::string& operation, std::size_t call) {
    sim::FaultPlan& plan = machine_.faults;
    if (operation.empty()) {
        plan.at_call.clear();
    } else {
        // The keys of the counts must outlive the plan, which this string need not.
        const auto seen = plan.count_by_name.find(operation);
        plan.at_call.emplace_back(operation, call + (seen != plan.count_by_name.end() ? seen->second : 0));
    }
    return true;
}

bool OpenMachineFile(const std::string& path, MachineFile& file, std::string& error) {
    std::ifstream from_file;
    std::istringstream sample{std::string{SampleMachine()}};
    if (!path.empty()) {
        from_file.open(path, std::ios::binary);
        if (!from_file) {
            error = "can't open " + path;
            return false;
        }
    }
    Problem problem;
    if (LoadMachine(path.empty() ? static_cast<std::istream&>(sample) : from_file, path, file, problem)) {
        return true;
    }
    error = problem.file + ':' + std::to_string(problem.line) + ": expected " + problem.expected;
    return false;
}

namespace {

struct Owned {
    sim::Machine machine;
};
class OwnWorld : private Owned, public SimulatedWorld {
public:
    OwnWorld(MachineFile file, std::string path)
        : SimulatedWorld(std::move(file), machine), path_(std::move(path)) {}

    std::string Greeting() override { return path_.empty() ? "The sample machine" : path_; }
    std::vector<std::string> Tour() override {
        return path_.empty() ? TourOfSample() : std::vector<std::string>{};
    }

private:
    std::string path_;
};

} // namespace

std::unique_ptr<World> OpenWorld(const std::string& path, LANGID language, std::string& error) {
    MachineFile file;
    if (!OpenMachineFile(path, file, error)) {
        return nullptr;
    }
    auto world = std::make_unique<OwnWorld>(std::move(file), path);
    sim::Current().language = language != 0 ? language : UserLanguage();
    return world;
}

} // namespace host
