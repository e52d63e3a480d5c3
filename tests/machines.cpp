#include "tests/machines.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>

#include "device_model/board_discovery.h"

namespace machines {
namespace {

sim::Text Decimal(u32 number) {
    return sim::FromUtf8(std::to_string(number));
}

// Names of values, each followed by its number; "#" stands for the channel's number.
void SetNumbers(sim::Values& key, const char* names_and_numbers, u32 channel = 0) {
    std::istringstream words(names_and_numbers);
    for (std::string name, number; words >> name >> number;) {
        key.SetDword(sim::FromUtf8(name), number == "#" ? channel : static_cast<u32>(std::stoul(number)));
    }
}

void AddChannelBlock(sim::Values& key, BoardPlace place, u32 channel, u32 type) {
    key.SetDword(u"BoardPciBusNumber", place.bus);
    key.SetDword(u"BoardIrq", place.irq);
    key.SetDword(u"ChlType", type);
    SetNumbers(key,
               "ChlNumber # ChlVersion 1 ChlEventLength 64 ChlMemLength 4096 ChlPortLength 8 ChlOpened 0",
               channel);
    key.SetQword(u"ChlEventAddr", 0xFEB00000 + 0x40ull * channel);
    key.SetQword(u"ChlMemAddr", 0x1FEC00000 + 0x1000ull * channel);
    key.SetQword(u"ChlPortAddr", 0xE000 + 8ull * channel);
}

// By class.
constexpr const char* class_values[ChannelClassCount] = {
    "UartTxFifoSize 128 UartRxFifoSize 128 UartClkRate 14745600 UartCapability 255 "
    "UartDefCntFifoSettings 0 UartDefCntAdvanceSettings 0 "
    "UartFifoEnable 1 UartTxFifoLowHigh 128 UartRxFifoLowHigh 112 "
    "UartMode 1 UartAHDC 0 UartCS 0 UartAutoRS422485 0 UartRS422Termination 0 UartRS485Termination 0",
    "DioNrBank 4 DioCapability 1 DioDiSamplingFreq 1000 DioDiFilterLowerBound 2",
    "Mcp251xSpiNrDevice # Mcp251xSpiClkRate # Mcp251xNumber # Mcp251xCS # "
    "Mcp251xGpioInputBits # Mcp251xGpioOutputBits #",
    "Mcp251xFdSpiNrDevice # Mcp251xFdSpiClkRate # Mcp251xFdNumber # Mcp251xFdCS # "
    "Mcp251xFdGpioInputBits # Mcp251xFdGpioOutputBits #",
    "KvrCanCapability 8 KvrCanTxMsgQueueSize 8 KvrCanTxEventQueueSize 8 KvrCanRxMsgQueueSize 8 "
    "KvrCanNrRxFilterGroup 8 KvrCanSystemClkRate 8 KvrCanReferenceClkRate 8 KvrCanFifoTXMMax 8 "
    "KvrCanFifoTXEMax 8 KvrCanFifoRXMMax 8"};

void AddClassValues(sim::Values& key, u32 channel_class, u32 channel) {
    SetNumbers(key, class_values[channel_class - ClassUart], channel);
    if (channel_class == ClassMcp251x || channel_class == ClassMcp251xFd) {
        const sim::Text kind = channel_class == ClassMcp251x ? u"Mcp251x" : u"Mcp251xFd";
        key.SetText(kind + u"Name", kind + u" " + Decimal(channel));
    }
}

std::size_t AddDevice(sim::Machine& machine, const sim::Text& kind, const sim::Text& description) {
    sim::Device device;
    device.instance_id = kind + u"\\" + Decimal(static_cast<u32>(machine.devices.size()));
    device.description = description;
    machine.devices.push_back(device);
    return machine.devices.size() - 1;
}

void AddInterface(sim::Machine& machine, std::size_t device, u32 channel_class) {
    const sim::Text path = u"\\\\?\\" + machine.devices[device].instance_id;
    machine.interfaces.push_back({InterfaceClass(channel_class), path, device});
}

sim::Text TargetOf(std::size_t device) {
    return u"\\Device\\Serial" + Decimal(static_cast<u32>(device));
}

sim::Text FriendlyName(const sim::Device& device, u32 number) {
    return device.description.value_or(u"") + u" (" + PortName(number) + u")";
}

void PutOnNumber(sim::Machine& machine, std::size_t index, u32 number) {
    sim::Device& device = machine.devices[index];
    device.class_name = u"Ports";
    device.friendly_name = FriendlyName(device, number);
    device.key.SetText(u"PortName", PortName(number));
    machine.dos_names.emplace_back(PortName(number), TargetOf(index));
    machine.serial_map.SetText(TargetOf(index), PortName(number));
    sim::SetClaimed(machine.port_usage, number, true);
    SetLine(machine, number, LineOf(index));
}

sim::Text TextOf(const sim::Value* value) {
    sim::Text text;
    for (std::size_t i = 0; value != nullptr && i + 1 < value->data.size(); i += 2) {
        text += static_cast<char16_t>(value->data[i] | value->data[i + 1] << 8);
    }
    return text.substr(0, text.find(u'\0'));
}

} // namespace

GUID InterfaceClass(u32 channel_class) {
    constexpr GUID classes[] = {
        {0x86E0D1E0, 0x8089, 0x11D0, {0x9C, 0xE4, 0x08, 0x00, 0x3E, 0x30, 0x1F, 0x73}},
        {0xD169C409, 0xDB38, 0x43F5, {0x87, 0xA2, 0x5C, 0xB9, 0x5E, 0xF2, 0xCA, 0xC3}},
        {0xC64BD006, 0x0A75, 0x4A56, {0x9B, 0x99, 0x17, 0x61, 0x61, 0x33, 0x82, 0x30}},
        {0x219EE0B6, 0x8597, 0x4826, {0xB1, 0x0F, 0xDA, 0xAE, 0x1E, 0x13, 0x2C, 0x02}},
        {0xBD052268, 0xEA5E, 0x4FD3, {0xB7, 0xE4, 0x39, 0x97, 0x8E, 0xA8, 0x5C, 0xC9}},
    };
    return classes[channel_class - ClassUart];
}

std::size_t AddBoard(sim::Machine& machine, BoardPlace place, u32 nr_controller) {
    const std::size_t index = AddDevice(machine, u"PCI\\Board", u"Multi-function board");
    sim::Values& key = machine.devices[index].key;
    AddChannelBlock(key, place, 0, 0);
    key.SetDword(u"BoardNrController", nr_controller);
    SetNumbers(key, "BoardMajorVersion 1 BoardMinorVersion 2 ConfigModel 7 ConfigBrand 1");
    key.SetText(u"BoardModelName", u"KVR-8");
    return index;
}

std::size_t AddChannel(sim::Machine& machine, BoardPlace place, u32 channel_class, u32 channel) {
    const std::size_t index = AddDevice(machine, u"KVR\\Channel", u"Board channel");
    sim::Values& key = machine.devices[index].key;
    AddChannelBlock(key, place, channel, channel_class);
    AddClassValues(key, channel_class, channel);
    AddInterface(machine, index, channel_class);
    return index;
}

std::size_t AddUart(sim::Machine& machine, BoardPlace place, u32 channel, u32 number) {
    const std::size_t index = AddChannel(machine, place, ClassUart, channel);
    PutOnNumber(machine, index, number);
    return index;
}

std::size_t AddMainboardPort(sim::Machine& machine, u32 number) {
    const std::size_t index = AddDevice(machine, u"ACPI\\PNP0501", u"Communications Port");
    AddInterface(machine, index, ClassUart);
    PutOnNumber(machine, index, number);
    return index;
}

sim::Machine BoardOn(const std::vector<u32>& numbers) {
    sim::Machine machine;
    AddBoard(machine, {}, static_cast<u32>(numbers.size()) + 2);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        AddUart(machine, {}, static_cast<u32>(i) + 1, numbers[i]);
    }
    return machine;
}

sim::Text PortName(u32 number) {
    return u"COM" + Decimal(number);
}

sim::Text LineOf(std::size_t device) {
    return Decimal(1200 + static_cast<u32>(device)) + u",e,7,1";
}

void SetLine(sim::Machine& machine, u32 number, std::u16string_view line) {
    machine.ProfileSection(u"Ports", true)->SetText(PortName(number) + u":", line);
}

sim::Text Line(sim::Machine& machine, u32 number) {
    const sim::Values* lines = machine.ProfileSection(u"Ports", false);
    return TextOf(lines != nullptr ? lines->Find(PortName(number) + u":") : nullptr);
}

std::ostream& operator<<(std::ostream& out, const Places& places) {
    const auto show = [](const sim::Text& text) { return '"' + sim::ToUtf8(text) + "\" "; };
    return out << "PortName " << show(places.port_name) << "friendly " << show(places.friendly_name) << "DOS "
               << show(places.dos_name) << "map " << show(places.serial_map)
               << (places.claimed ? "claimed" : "free") << " line " << show(places.settings_line);
}

Places PlacesOf(sim::Machine& machine, std::size_t device) {
    Places places;
    places.port_name = TextOf(machine.devices[device].key.Find(u"PortName"));
    places.friendly_name = machine.devices[device].friendly_name.value_or(u"");
    for (const auto& [name, target] : machine.dos_names) {
        if (target == TargetOf(device)) {
            places.dos_name += (places.dos_name.empty() ? u"" : u" ") + name;
        }
    }
    places.serial_map = TextOf(machine.serial_map.Find(TargetOf(device)));
    const u32 number = ComNumberFromName(places.port_name.c_str());
    places.claimed = sim::IsClaimed(machine.port_usage, number);
    places.settings_line = Line(machine, number);
    return places;
}

Places PlacesAt(const sim::Machine& machine, std::size_t device, u32 number) {
    const sim::Text name = PortName(number);
    return {name, FriendlyName(machine.devices[device], number), name, name, true, LineOf(device)};
}

std::vector<std::string> Journal(const sim::Machine& machine, std::initializer_list<sim::Reach> reaches) {
    std::vector<std::string> lines;
    for (const sim::JournalEntry& entry : machine.journal) {
        if (std::ranges::find(reaches, entry.reach) != reaches.end()) {
            lines.push_back(std::string(entry.name) + (entry.detail.empty() ? "" : " ") + entry.detail);
        }
    }
    return lines;
}

std::vector<std::string> Details(const sim::Machine& machine, std::string_view name) {
    std::vector<std::string> details;
    for (const sim::JournalEntry& entry : machine.journal) {
        if (entry.name == name) {
            details.push_back(entry.detail);
        }
    }
    return details;
}

std::size_t Count(const sim::Machine& machine, std::string_view name) {
    return Details(machine, name).size();
}

std::vector<std::pair<std::string_view, std::size_t>> FailedCalls(const sim::Machine& machine) {
    std::vector<std::pair<std::string_view, std::size_t>> failed;
    std::map<std::string_view, std::size_t> calls;
    for (const sim::JournalEntry& entry : machine.journal) {
        ++calls[entry.name];
        if (entry.failed) {
            failed.emplace_back(entry.name, calls[entry.name]);
        }
    }
    return failed;
}

OpenDevice::~OpenDevice() {
    SetupDiDestroyDeviceInfoList(set);
}

OpenBoard::OpenBoard(std::size_t index) : device(index) {
    params.DeviceInfoSet = device.set;
    params.DeviceInfoData = &device.data;
    std::ranges::fill(params.InterfaceSet, INVALID_HANDLE_VALUE);
    params.ChlCount = 1; // counted anew
    initiated = BoardInitiate(&params, &status);
}

OpenBoard::~OpenBoard() {
    BoardDeinitiate(&params);
}

bool IsLongRun() {
    return std::getenv("KVR_LONG") != nullptr;
}

void Forget(sim::Machine& machine) {
    machine.journal.clear();
    machine.boxes.clear();
    machine.faults = {};
}

} // namespace machines
