#include "tests/machines.h"

#include <algorithm>

#include "board_page/advanced_port_control.h"
#include "device_model/board_discovery.h"
#include "resources/resource_ids.h"

namespace machines {
namespace {

struct NumberValue {
    const char16_t* name;
    u32 number;
};

void SetNumbers(sim::Values& key, std::initializer_list<NumberValue> values) {
    for (const NumberValue& value : values) {
        key.SetDword(value.name, value.number);
    }
}

sim::Text Decimal(u32 number) {
    return sim::FromUtf8(std::to_string(number));
}

void AddChannelBlock(sim::Values& key, BoardPlace place, u32 channel, u32 type) {
    SetNumbers(key, {{u"BoardPciBusNumber", place.bus},
                     {u"BoardIrq", place.irq},
                     {u"ChlNumber", channel},
                     {u"ChlType", type},
                     {u"ChlVersion", 1},
                     {u"ChlEventLength", 0x40},
                     {u"ChlMemLength", 0x1000},
                     {u"ChlPortLength", 8},
                     {u"ChlOpened", 0}});
    key.SetQword(u"ChlEventAddr", 0xFEB00000 + 0x40ull * channel);
    key.SetQword(u"ChlMemAddr", 0x1FEC00000 + 0x1000ull * channel);
    key.SetQword(u"ChlPortAddr", 0xE000 + 8ull * channel);
}

// The values of a channel's own kind; `prefix` is for the two kinds that differ in nothing else.
void AddSpiCan(sim::Values& key, const sim::Text& prefix, u32 channel) {
    for (const char16_t* name :
         {u"SpiNrDevice", u"SpiClkRate", u"Number", u"CS", u"GpioInputBits", u"GpioOutputBits"}) {
        key.SetDword(prefix + name, channel);
    }
    key.SetText(prefix + u"Name", prefix + u" " + Decimal(channel));
}

void AddClassValues(sim::Values& key, u32 channelClass, u32 channel) {
    switch (channelClass) {
    case ClassUart:
        SetNumbers(key, {{u"UartTxFifoSize", 128},
                         {u"UartRxFifoSize", 128},
                         {u"UartClkRate", 14745600},
                         {u"UartCapability", 0xFF},
                         {u"UartDefCntFifoSettings", 0},
                         {u"UartDefCntAdvanceSettings", 0},
                         {u"UartFifoEnable", 1},
                         {u"UartTxFifoLowHigh", 128},
                         {u"UartRxFifoLowHigh", 112},
                         {u"UartMode", 1},
                         {u"UartAHDC", 0},
                         {u"UartCS", 0},
                         {u"UartAutoRS422485", 0},
                         {u"UartRS422Termination", 0},
                         {u"UartRS485Termination", 0}});
        break;
    case ClassDio:
        SetNumbers(key, {{u"DioNrBank", 4},
                         {u"DioCapability", 1},
                         {u"DioDiSamplingFreq", 1000},
                         {u"DioDiFilterLowerBound", 2}});
        break;
    case ClassMcp251x:
        AddSpiCan(key, u"Mcp251x", channel);
        break;
    case ClassMcp251xFd:
        AddSpiCan(key, u"Mcp251xFd", channel);
        break;
    case ClassCan:
        for (const char16_t* name :
             {u"KvrCanCapability", u"KvrCanTxMsgQueueSize", u"KvrCanTxEventQueueSize",
              u"KvrCanRxMsgQueueSize", u"KvrCanNrRxFilterGroup", u"KvrCanSystemClkRate",
              u"KvrCanReferenceClkRate", u"KvrCanFifoTXMMax", u"KvrCanFifoTXEMax", u"KvrCanFifoRXMMax"}) {
            key.SetDword(name, 8);
        }
        break;
    }
}

std::size_t AddDevice(sim::Machine& machine, const sim::Text& kind, const sim::Text& description) {
    sim::Device device;
    device.instance_id = kind + u"\\" + Decimal(static_cast<u32>(machine.devices.size()));
    device.description = description;
    machine.devices.push_back(device);
    return machine.devices.size() - 1;
}

void AddInterface(sim::Machine& machine, std::size_t device, u32 channelClass) {
    const sim::Text path = u"\\\\?\\" + machine.devices[device].instance_id;
    machine.interfaces.push_back({InterfaceClass(channelClass), path, device});
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
    for (std::size_t i = 0; value && i + 1 < value->data.size(); i += 2) {
        text += static_cast<char16_t>(value->data[i] | value->data[i + 1] << 8);
    }
    return text.substr(0, text.find(u'\0'));
}

} // namespace

GUID InterfaceClass(u32 channelClass) {
    constexpr GUID classes[] = {
        {0x86E0D1E0, 0x8089, 0x11D0, {0x9C, 0xE4, 0x08, 0x00, 0x3E, 0x30, 0x1F, 0x73}},
        {0xD169C409, 0xDB38, 0x43F5, {0x87, 0xA2, 0x5C, 0xB9, 0x5E, 0xF2, 0xCA, 0xC3}},
        {0xC64BD006, 0x0A75, 0x4A56, {0x9B, 0x99, 0x17, 0x61, 0x61, 0x33, 0x82, 0x30}},
        {0x219EE0B6, 0x8597, 0x4826, {0xB1, 0x0F, 0xDA, 0xAE, 0x1E, 0x13, 0x2C, 0x02}},
        {0xBD052268, 0xEA5E, 0x4FD3, {0xB7, 0xE4, 0x39, 0x97, 0x8E, 0xA8, 0x5C, 0xC9}},
    };
    return classes[channelClass - ClassUart];
}

std::size_t AddBoard(sim::Machine& machine, BoardPlace place, u32 nrController) {
    const std::size_t index = AddDevice(machine, u"PCI\\Board", u"Multi-function board");
    sim::Values& key = machine.devices[index].key;
    AddChannelBlock(key, place, 0, 0);
    SetNumbers(key, {{u"BoardMajorVersion", 1},
                     {u"BoardMinorVersion", 2},
                     {u"BoardNrController", nrController},
                     {u"ConfigModel", 7},
                     {u"ConfigBrand", 1}});
    key.SetText(u"BoardModelName", u"KVR-8");
    return index;
}

std::size_t AddChannel(sim::Machine& machine, BoardPlace place, u32 channelClass, u32 channel) {
    const std::size_t index = AddDevice(machine, u"KVR\\Channel", u"Board channel");
    sim::Values& key = machine.devices[index].key;
    AddChannelBlock(key, place, channel, channelClass);
    AddClassValues(key, channelClass, channel);
    AddInterface(machine, index, channelClass);
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
    AddBoard(machine, {}, static_cast<u32>(numbers.size()) + 1);
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
    return TextOf(lines ? lines->Find(PortName(number) + u":") : nullptr);
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

std::size_t Count(const sim::Machine& machine, std::string_view name) {
    return static_cast<std::size_t>(std::ranges::count(machine.journal, name, &sim::JournalEntry::name));
}

OpenDevice::~OpenDevice() {
    SetupDiDestroyDeviceInfoList(set);
}

OpenBoard::OpenBoard(std::size_t index) : device(index) {
    params.DeviceInfoSet = device.set;
    params.DeviceInfoData = &device.data;
    std::ranges::fill(params.InterfaceSet, INVALID_HANDLE_VALUE);
    initiated = BoardInitiate(&params, &status);
}

OpenBoard::~OpenBoard() {
    BoardDeinitiate(&params);
}

void SortInDialog(sim::Machine& machine, BPPCHL* channel) {
    machine.user = [](HWND front) {
        if (sim::BoxStyle(front) != 0) {
            SendMessageW(front, WM_COMMAND, IDOK, 0);
        } else {
            SendMessageW(front, WM_COMMAND, IDC_SORT_COM, 0);
            SendMessageW(front, WM_COMMAND, IDCANCEL, 0);
        }
    };
    KvrBoardUartAdvancedDlgShow(nullptr, channel);
    machine.user = nullptr;
}

void Forget(sim::Machine& machine) {
    machine.journal.clear();
    machine.boxes.clear();
    machine.faults = {};
}

} // namespace machines
