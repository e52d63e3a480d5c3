#include "check/windows/steps.h"

#include <algorithm>

#include "check/windows/device_handles.h"
#include "check/windows/own_machine.h"
#include "check/windows/software_devices.h"
#include "host/worlds/windows/registry.h"
#include "platform/port_usage.h"

namespace check {
namespace {

using host::PortNumber, host::StoreValue, host::StoreValues, host::Text;

constexpr const WCHAR* ports_section = L"Ports";
constexpr std::string_view own_objects = "\\Device\\KvrCheck";

bool IsOwnDevice(const std::string& id) {
    return host::Folded(id).starts_with(host::Folded(own_devices));
}

bool IsOwnNumber(unsigned long number) {
    return number >= first_number && number <= last_number;
}

unsigned long NumberOf(const Step& step) {
    long number = 0;
    return host::ParseNumber(step.what, number) && number > 0 ? static_cast<unsigned long>(number) : 0;
}

// --- Numbers: their marks in the database, DOS names and settings lines ---

// Calls `use` with the open database. Returns its status, or that of the opening.
template <class Use> LONG WithDatabase(const Use& use) {
    HCOMDB database = nullptr;
    LONG status = ComDBOpen(&database);
    if (status == ERROR_SUCCESS) {
        status = use(database);
        ComDBClose(database);
    }
    return status;
}

Made ClaimNumber(const Step& step, std::string& error) {
    const LONG status = WithDatabase(
        [&](HCOMDB database) { return ComDBClaimPort(database, NumberOf(step), FALSE, nullptr); });
    error = "COM" + step.what + " is refused: error " + std::to_string(status);
    return status == ERROR_SUCCESS ? Made::Done : Made::Refused;
}

Text NameOfNumber(unsigned long number) {
    return FromUtf8(host::ComName(number));
}

// Takes the name of a number from the check's objects, and from no other.
void UndefineName(unsigned long number) {
    const Text name = NameOfNumber(number);
    WCHAR target[MAX_PATH] = {};
    if (QueryDosDeviceW(name.c_str(), target, ARRAYSIZE(target)) && ToUtf8(target).starts_with(own_objects)) {
        DefineDosDeviceW(DDD_REMOVE_DEFINITION | DDD_RAW_TARGET_PATH | DDD_EXACT_MATCH_ON_REMOVE,
                         name.c_str(), target);
    }
}

bool IsHeldByAnother(unsigned long number, const host::Records& records) {
    return std::ranges::any_of(host::NumberIn(records, number).holders,
                               [&](std::size_t holder) { return !IsOwnDevice(records.devices[holder].id); });
}

void FreeNumber(const Step& step, const host::Records& before) {
    const unsigned long number = NumberOf(step);
    UndefineName(number);
    if (!IsHeldByAnother(number, before)) {
        WriteProfileStringW(ports_section, (NameOfNumber(number) + L":").c_str(), nullptr);
        WithDatabase([&](HCOMDB database) { return ComDBReleasePort(database, number); });
    }
}

bool IsNumberLeft(const Step& step, const host::Records& now) {
    const unsigned long number = NumberOf(step);
    const host::NumberRecord& record = host::NumberIn(now, number);
    return !IsHeldByAnother(number, now) &&
           (record.claimed || !record.lines.empty() || !record.targets.empty());
}

bool IsNumber(const std::string& what) {
    const unsigned long number = NumberOf({nullptr, what});
    return IsOwnNumber(number) && what == std::to_string(number);
}

// --- Devices ---

Made MakeDevice(const Step& step, std::string& error) {
    const OwnDevice& device = *FindOwnDevice(step.what);
    error = MakeSoftwareDevice(device.id, device.description, device.interfaces);
    return error.empty() ? Made::Done : Made::InPart;
}

void RemoveDevice(const Step& step, const host::Records&) {
    RemoveSoftwareDevice(step.what);
}

bool IsDeviceLeft(const Step& step, const host::Records&) {
    return OpenDevice(step.what).IsOpen();
}

// --- The serial map: its key, if there is none, and the ports' entries ---

HKEY OpenMap() {
    HKEY map = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, host::serial_map_key, 0, KEY_READ | KEY_WRITE, &map);
    return map;
}

Made MakeMapKey(const Step&, std::string& error) {
    HKEY map = nullptr;
    const LSTATUS status = RegCreateKeyExW(HKEY_LOCAL_MACHINE, host::serial_map_key, 0, nullptr,
                                           REG_OPTION_VOLATILE, KEY_READ, nullptr, &map, nullptr);
    error = "there is no serial map: error " + std::to_string(status);
    if (status == ERROR_SUCCESS) {
        RegCloseKey(map);
    }
    return status == ERROR_SUCCESS ? Made::Done : Made::Refused;
}

// A driver may have used it by now.
void RemoveMapKey(const Step&, const host::Records&) {
    if (host::RegistryKey(OpenMap()).Values().empty()) {
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, host::serial_map_key);
    }
}

bool IsMapKeyLeft(const Step&, const host::Records&) {
    const host::RegistryKey map(OpenMap());
    return map.Handle() != nullptr && map.Values().empty();
}

bool WriteValue(HKEY key, const StoreValue& value) {
    return RegSetValueExW(key, value.name.c_str(), 0, value.type, value.data.data(),
                          static_cast<DWORD>(value.data.size())) == ERROR_SUCCESS;
}

const StoreValue* FindEntry(const std::string& object) {
    return host::FindValue(TheOwnMachine().serial_map, object);
}

Made WriteEntry(const Step& step, std::string& error) {
    error = step.what + " can't be entered in the serial map";
    return WriteValue(host::RegistryKey(OpenMap()).Handle(), *FindEntry(step.what)) ? Made::Done
                                                                                    : Made::Refused;
}

void DeleteEntry(const Step& step, const host::Records&) {
    RegDeleteValueW(host::RegistryKey(OpenMap()).Handle(), FromUtf8(step.what).c_str());
}

bool IsEntryLeft(const Step& step, const host::Records& now) {
    return host::FindValue(now.serial_map, step.what) != nullptr;
}

} // namespace

struct StepKind {
    const char* word;
    bool (*is_own)(const std::string& what);
    Made (*make)(const Step& step, std::string& error);
    void (*take_back)(const Step& step, const host::Records& before);
    bool (*remains)(const Step& step, const host::Records& now);
};

namespace {

constexpr const char* map_name = "SERIALCOMM";

constexpr StepKind kinds[] = {
    {"number", IsNumber, ClaimNumber, FreeNumber, IsNumberLeft},
    {"device", [](const std::string& what) { return FindOwnDevice(what) != nullptr; }, MakeDevice,
     RemoveDevice, IsDeviceLeft},
    {"map", [](const std::string& what) { return what == map_name; }, MakeMapKey, RemoveMapKey, IsMapKeyLeft},
    {"entry", [](const std::string& what) { return FindEntry(what) != nullptr; }, WriteEntry, DeleteEntry,
     IsEntryLeft},
};
enum { NumberKind, DeviceKind, MapKind, EntryKind };

// Fails with what could not be given its values.
std::string FurnishDevice(const OwnDevice& own) {
    OpenDevice device(own.id);
    if (!own.friendly_name.empty()) {
        SetupDiSetDeviceRegistryPropertyW(device.Set(), device.Data(), SPDRP_FRIENDLYNAME,
                                          reinterpret_cast<const BYTE*>(own.friendly_name.c_str()),
                                          static_cast<DWORD>((own.friendly_name.size() + 1) * sizeof(WCHAR)));
    }
    const host::RegistryKey key(SetupDiCreateDevRegKeyW(device.Set(), device.Data(), DICS_FLAG_GLOBAL, 0,
                                                        DIREG_DEV, nullptr, nullptr));
    return std::ranges::all_of(own.store,
                               [&](const StoreValue& value) { return WriteValue(key.Handle(), value); })
               ? ""
               : own.id + " can't be given its values";
}

void FurnishNumber(unsigned long number) {
    const OwnMachine& machine = TheOwnMachine();
    const Text name = NameOfNumber(number), key = name + L":";
    UndefineName(number);
    for (const StoreValue& entry : machine.serial_map) {
        if (TextIn(entry.data) == name) {
            DefineDosDeviceW(DDD_RAW_TARGET_PATH, name.c_str(), entry.name.c_str());
        }
    }
    const StoreValue* const line = host::FindValue(machine.settings_lines, ToUtf8(key));
    WriteProfileStringW(ports_section, key.c_str(), line != nullptr ? TextIn(line->data).c_str() : nullptr);
    WithDatabase([&](HCOMDB database) {
        return IsPortClaimed(machine.usage.data(), static_cast<u32>(number))
                   ? ComDBClaimPort(database, number, FALSE, nullptr)
                   : ComDBReleasePort(database, number);
    });
}

} // namespace

std::vector<Step> AllSteps() {
    std::vector<Step> steps;
    for (unsigned long number = first_number; number <= last_number; ++number) {
        steps.push_back({&kinds[NumberKind], std::to_string(number)});
    }
    for (const OwnDevice& device : TheOwnMachine().devices) {
        steps.push_back({&kinds[DeviceKind], device.id});
    }
    if (host::RegistryKey(HKEY_LOCAL_MACHINE, host::serial_map_key, KEY_READ).Handle() == nullptr) {
        steps.push_back({&kinds[MapKind], map_name});
    }
    for (const StoreValue& entry : TheOwnMachine().serial_map) {
        steps.push_back({&kinds[EntryKind], ToUtf8(entry.name)});
    }
    return steps;
}

std::string LineOf(const Step& step) {
    return std::string(step.kind->word) + ' ' + step.what;
}

bool ReadStep(const std::string& line, Step& step) {
    const std::size_t blank = line.find(' ');
    const auto kind = std::ranges::find(kinds, line.substr(0, blank), &StepKind::word);
    if (blank == std::string::npos || kind == std::end(kinds) || !kind->is_own(line.substr(blank + 1))) {
        return false;
    }
    step = {kind, line.substr(blank + 1)};
    return true;
}

Made Make(const Step& step, std::string& error) {
    const Made made = step.kind->make(step, error);
    if (made == Made::Done) {
        error.clear();
    }
    return made;
}

void TakeBack(const Step& step, const host::Records& before) {
    step.kind->take_back(step, before);
}

bool Remains(const Step& step, const host::Records& now) {
    return step.kind->remains(step, now);
}

std::string Furnish(const host::Records& before) {
    for (const OwnDevice& device : TheOwnMachine().devices) {
        if (std::string error = FurnishDevice(device); !error.empty()) {
            return error;
        }
    }
    for (const StoreValue& entry : TheOwnMachine().serial_map) {
        WriteValue(host::RegistryKey(OpenMap()).Handle(), entry);
    }
    for (unsigned long number = first_number; number <= last_number; ++number) {
        if (!IsHeldByAnother(number, before)) {
            FurnishNumber(number);
        }
    }
    return {};
}

void KeepOwn(host::Records& records) {
    std::erase_if(records.devices, [](const host::DeviceRecord& device) { return !IsOwnDevice(device.id); });
    std::erase_if(records.serial_map,
                  [](const StoreValue& entry) { return !ToUtf8(entry.name).starts_with(own_objects); });
    std::erase_if(records.settings_lines,
                  [](const StoreValue& line) { return !IsOwnNumber(host::LineNumber(ToUtf8(line.name))); });
    std::erase_if(records.dos_names, [](const auto& name) { return !IsOwnNumber(PortNumber(name.first)); });
    for (unsigned long number = 1; number <= records.usage.size() * 8; ++number) {
        if (!IsOwnNumber(number)) {
            records.usage[PortUsageByte(static_cast<u32>(number))] &=
                static_cast<BYTE>(~PortUsageMask(static_cast<u32>(number)));
        }
    }
    records.numbers.clear();
    host::ListDevices(records);
    host::JoinNumbers(records);
}

} // namespace check
