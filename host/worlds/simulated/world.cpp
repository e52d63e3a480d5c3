#include "host/worlds/simulated/world.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

#include "host/languages.h"
#include "host/machine_file/machine_file.h"
#include "host/machine_file/machine_places.h"
#include "host/machine_file/patch.h"
#include "host/text.h"
#include "host/whole_file.h"
#include "host/worlds/channel_classes.h"
#include "host/worlds/simulated/page_provider.h"
#include "host/worlds/simulated/tour.h"
#include "reporting/module_entry.h"

namespace host {
namespace {

// Only a board's own device has this value.
constexpr std::u16string_view board_value = u"BoardNrController";

// Nothing for a device without a sheet.
std::optional<Role> RoleOf(const sim::Device& device) {
    if (sim::EqualNoCase(device.class_name, u"Ports") || device.key.Find(u"PortName") != nullptr) {
        return Role::Port;
    }
    if (device.key.Find(board_value) != nullptr) {
        return Role::Board;
    }
    return {};
}

struct MachineMoment : Moment {
    explicit MachineMoment(const sim::MachineState& now) : state(now) {}
    sim::MachineState state;
};

StoreValues ValuesOf(const sim::Values& values) {
    StoreValues result;
    for (const sim::Value& value : values.list) {
        result.push_back({value.name, value.type, value.data});
    }
    return result;
}

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
    machine_.journal_reads = false;
    DllMain(sim::LibraryInstance(), DLL_PROCESS_ATTACH, nullptr);
}

SimulatedWorld::~SimulatedWorld() {
    DllMain(sim::LibraryInstance(), DLL_PROCESS_DETACH, nullptr);
}

// An interface may belong to a device without a sheet: a channel that is not a port.
void SimulatedWorld::DescribeDevices(Records& records) {
    std::vector<std::vector<ChannelInterface>> channels(machine_.devices.size());
    std::vector<bool> has_interface(machine_.devices.size()), is_present(machine_.devices.size());
    for (const sim::Interface& one : machine_.interfaces) {
        has_interface[one.device] = true;
        is_present[one.device] = is_present[one.device] || one.linked;
        if (const unsigned channel_class = ChannelClassOf(one.class_guid)) {
            channels[one.device].push_back({channel_class, one.linked});
        }
    }
    for (std::size_t index = 0; index < machine_.devices.size(); ++index) {
        const sim::Device& device = machine_.devices[index];
        const std::optional<Role> role = RoleOf(device);
        if (!role && channels[index].empty()) {
            continue;
        }
        DeviceRecord& record = records.devices.emplace_back();
        record.id = ToUtf8(device.instance_id);
        record.role = role.value_or(Role::Channel);
        record.description = ToUtf8(device.description.value_or(u""));
        record.friendly_name = ToUtf8(device.friendly_name.value_or(u""));
        record.present = !has_interface[index] || is_present[index];
        record.store = ValuesOf(device.key);
        std::ranges::sort(record.store, NameOrder(), &StoreValue::name);
        record.interfaces = std::move(channels[index]);
    }
    ListDevices(records);
}

Records SimulatedWorld::Describe() {
    Records records;
    const auto knows = [&](Place place, bool is_known) { records.known |= is_known ? unsigned{place} : 0u; };
    const auto holds = [&](std::u16string_view key) {
        return file_.root.Find(Below(file_.control_set, key)) != nullptr;
    };
    knows(DevicesPlace, holds(devices_key));
    knows(InterfacesPlace, holds(interfaces_key));
    DescribeDevices(records);
    if (const auto usage = CurrentPortUsage(file_, machine_)) {
        knows(DatabasePlace, true);
        records.usage = *usage;
    }
    knows(SerialMapPlace, machine_.serial_map_exists);
    records.serial_map = ValuesOf(machine_.serial_map);
    if (const sim::Values* const lines = machine_.ProfileSection(u"Ports", false)) {
        knows(SettingsPlace, true);
        records.settings_lines = ValuesOf(*lines);
    }
    for (const auto& [name, target] : machine_.dos_names) {
        records.dos_names.emplace_back(ToUtf8(name), ToUtf8(target));
    }
    records.dos_names_derived = true;
    JoinNumbers(records);
    return records;
}

bool SimulatedWorld::RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) {
    const auto device = std::ranges::find_if(
        machine_.devices, [&](const sim::Device& entry) { return ToUtf8(entry.instance_id) == id; });
    if (device == machine_.devices.end()) {
        return false;
    }
    const std::optional<Role> role = RoleOf(*device);
    if (!role) {
        return false;
    }
    const sim::Operator before = std::exchange(machine_.user, attend);
    SP_DEVINFO_DATA data{};
    const HDEVINFO set =
        sim::OpenDeviceSet(static_cast<std::size_t>(device - machine_.devices.begin()), data);
    SP_PROPSHEETPAGE_REQUEST request{sizeof request, SPPSR_ENUM_ADV_DEVICE_PROPERTIES, set, &data};
    std::vector<HPROPSHEETPAGE> pages;
    ProviderOf (*role)(&request, AddPage, reinterpret_cast<LPARAM>(&pages));
    if (!pages.empty()) {
        const sim::Text name =
            device->friendly_name.value_or(device->description.value_or(device->instance_id));
        sim::RunSheet(name + u" Properties", pages);
    }
    SetupDiDestroyDeviceInfoList(set);
    machine_.user = before;
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

bool SimulatedWorld::IsUnsaved() {
    return saved_ && !IsStill(*saved_);
}

bool SimulatedWorld::Export(const std::string& file, std::string& told) {
    if (!SaveMachine(file_, machine_, file, told)) {
        return false;
    }
    if (PortDatabase(file_) == nullptr && machine_.port_usage != sim::PortUsage{}) {
        told = "the COM port database was not in the file that was read, and is left out";
    }
    saved_ = Now();
    return true;
}

bool SimulatedWorld::Patch(const Records& original, const std::string& file, bool over, std::string& told) {
    std::error_code none;
    if (!over && std::filesystem::exists(PathOf(UndoPath(file)), none)) {
        told = UndoPath(file) + " exists; patch --over " + file + " replaces it";
        return false;
    }
    if (!WritePatch({original, Describe(), file_.control_set, Name()}, file, told)) {
        return false;
    }
    told = file + " holds what has changed, " + UndoPath(file) + " takes it back";
    saved_ = Now();
    return true;
}

std::shared_ptr<const Moment> SimulatedWorld::Now() {
    const auto now = std::make_shared<const MachineMoment>(machine_);
    saved_ = saved_ ? saved_ : now;
    return now;
}

bool SimulatedWorld::IsStill(const Moment& moment) {
    return static_cast<const MachineMoment&>(moment).state == machine_;
}

void SimulatedWorld::ComeBackTo(const Moment& moment) {
    static_cast<sim::MachineState&>(machine_) = static_cast<const MachineMoment&>(moment).state;
}

bool SimulatedWorld::Fail(const std::string& operation, std::size_t call) {
    sim::FaultPlan& plan = machine_.faults;
    if (operation.empty()) {
        plan.at_call.clear();
    } else if (!std::ranges::binary_search(sim::Operations(), operation)) {
        return false;
    } else {
        // The keys of the counts must outlive the plan, which this string need not.
        const auto seen = plan.count_by_name.find(operation);
        plan.at_call.emplace_back(operation, call + (seen != plan.count_by_name.end() ? seen->second : 0));
    }
    return true;
}

std::vector<std::string> SimulatedWorld::Operations() {
    return {sim::Operations().begin(), sim::Operations().end()};
}

bool OpenMachineFile(const std::string& path, MachineFile& file, std::string& error) {
    std::ifstream from_file;
    std::istringstream sample{std::string{SampleMachine()}};
    if (!path.empty()) {
        std::error_code none;
        from_file.open(PathOf(path), std::ios::binary);
        if (!from_file || std::filesystem::is_directory(PathOf(path), none)) {
            error = "can't open " + path + (from_file ? ": it is a folder" : "");
            return false;
        }
    }
    Problem problem;
    if (LoadMachine(path.empty() ? static_cast<std::istream&>(sample) : from_file, path, file, problem)) {
        return true;
    }
    error =
        problem.file + ':' + std::to_string(problem.line) + ": expected " + problem.expected +
        ". Unless somebody has edited it, ask for the file again: it was cut off or changed on its way, or "
        "it is no export of registry version 5.";
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

    std::string Name() override { return path_.empty() ? "the sample machine" : path_; }
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
