// The system itself as the host's world: its devices, its registry, its windows.
#include "host/worlds/world.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "host/worlds/channel_classes.h"
#include "host/worlds/windows/attendance.h"
#include "host/worlds/windows/observers.h"
#include "host/worlds/windows/providers.h"
#include "host/worlds/windows/registry.h"
#include "host/worlds/windows/system.h"

namespace host {
namespace {

// A device information set, destroyed by the destructor.
class DeviceSet {
public:
    explicit DeviceSet(HDEVINFO set) : set_(set) {}
    ~DeviceSet() { SetupDiDestroyDeviceInfoList(set_); }
    DeviceSet(const DeviceSet&) = delete;
    DeviceSet& operator=(const DeviceSet&) = delete;

    HDEVINFO Handle() const { return set_; }

private:
    HDEVINFO set_;
};

SP_DEVINFO_DATA EmptyDevice() {
    SP_DEVINFO_DATA data{};
    data.cbSize = sizeof data;
    return data;
}

Text Property(HDEVINFO set, SP_DEVINFO_DATA& data, DWORD property) {
    WCHAR text[256] = {};
    const bool found =
        SetupDiGetDeviceRegistryPropertyW(set, &data, property, nullptr, reinterpret_cast<BYTE*>(text),
                                          sizeof text - sizeof(WCHAR), nullptr) != FALSE;
    return found ? Text(text) : Text();
}

HKEY HardwareKey(HDEVINFO set, SP_DEVINFO_DATA& data) {
    return SetupDiOpenDevRegKey(set, &data, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ);
}

bool Before(const Text& left, const Text& right) {
    return CompareStringOrdinal(left.c_str(), -1, right.c_str(), -1, TRUE) == CSTR_LESS_THAN;
}

// The device without its presence, its provider and its interfaces; nothing if it is neither a board nor a
// port.
std::optional<DeviceRecord> DescribeDevice(HDEVINFO set, SP_DEVINFO_DATA& data) {
    DeviceRecord device;
    device.id = InstanceId(set, &data);
    device.store = RegistryKey(HardwareKey(set, data)).Values();
    if (Property(set, data, SPDRP_CLASS) != TEXT("Ports") && FindValue(device.store, "PortName") == nullptr) {
        if (FindValue(device.store, "BoardNrController") == nullptr) { // only a board's own device has it
            return {};
        }
        device.role = Role::Board;
    }
    device.description = ToUtf8(Property(set, data, SPDRP_DEVICEDESC));
    device.friendly_name = ToUtf8(Property(set, data, SPDRP_FRIENDLYNAME));
    std::ranges::sort(device.store, &Before, &StoreValue::name);
    return device;
}

// The devices that have an interface of any class, or a present one with DIGCF_PRESENT, by folded instance
// id.
std::set<std::string> InterfaceOwners(DWORD flags) {
    std::set<std::string> ids;
    const DeviceSet set(
        SetupDiGetClassDevsW(nullptr, nullptr, nullptr, DIGCF_ALLCLASSES | DIGCF_DEVICEINTERFACE | flags));
    SP_DEVINFO_DATA data = EmptyDevice();
    for (DWORD index = 0; SetupDiEnumDeviceInfo(set.Handle(), index, &data); ++index) {
        ids.insert(Folded(InstanceId(set.Handle(), &data)));
    }
    return ids;
}

// Calls `take` with each interface through which a board finds its channels, and with the set and the device
// it is in.
template <class Take> void ForEachChannel(const Take& take) {
    for (const GUID& interface_class : channel_interface_classes) {
        const DeviceSet set(SetupDiGetClassDevsW(&interface_class, nullptr, nullptr, DIGCF_DEVICEINTERFACE));
        SP_DEVICE_INTERFACE_DATA one{};
        one.cbSize = sizeof one;
        for (DWORD index = 0;
             SetupDiEnumDeviceInterfaces(set.Handle(), nullptr, &interface_class, index, &one); ++index) {
            // Asks for the device alone, because the path does not fit.
            SP_DEVINFO_DATA data = EmptyDevice();
            SetupDiGetDeviceInterfaceDetailW(set.Handle(), &one, nullptr, 0, nullptr, &data);
            take(ChannelInterface{ChannelClassOf(interface_class), (one.Flags & SPINT_ACTIVE) != 0},
                 set.Handle(), data);
        }
    }
}

BOOL CALLBACK TakePage(HPROPSHEETPAGE page, LPARAM pages) {
    reinterpret_cast<std::vector<HPROPSHEETPAGE>*>(pages)->push_back(page);
    return TRUE;
}

// A sheet that has ended stays on the screen until its loop notices. Whoever operates it must see it go at
// once.
LRESULT CALLBACK HideWhenEnded(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    const LRESULT result = DefSubclassProc(sheet, message, wParam, lParam);
    if ((message == WM_COMMAND || message == WM_SYSCOMMAND || message == WM_CLOSE ||
         message == PSM_PRESSBUTTON) &&
        !PropSheet_GetCurrentPageHwnd(sheet)) {
        ShowWindow(sheet, SW_HIDE);
    }
    return result;
}

void ShowSheet(const Text& title, std::vector<HPROPSHEETPAGE>& pages) {
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_MODELESS;
    header.pszCaption = title.c_str();
    header.nPages = static_cast<UINT>(pages.size());
    header.phpage = pages.data();
    const HWND sheet = reinterpret_cast<HWND>(PropertySheetW(&header));
    if (sheet == nullptr || sheet == INVALID_HANDLE_VALUE) {
        return;
    }
    SetWindowSubclass(sheet, &HideWhenEnded, 0, 0);
    MSG message;
    while (PropSheet_GetCurrentPageHwnd(sheet) && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!PropSheet_IsDialogMessage(sheet, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    RemoveWindowSubclass(sheet, &HideWhenEnded, 0);
    DestroyWindow(sheet);
}

bool IsElevated() {
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        return false;
    }
    TOKEN_ELEVATION elevation{};
    DWORD bytes = 0;
    const bool known =
        GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &bytes) != FALSE;
    CloseHandle(token);
    return known && elevation.TokenIsElevated != 0;
}

class System : public World {
public:
    System() {
        Describe(); // from now on what the devices' libraries do and trace is observed
    }

    std::string Name() override { return "this machine"; }

    std::string Greeting() override {
        return IsElevated()
                   ? "This machine, live, as administrator: what the pages change is changed here"
                   : "This machine, live, without an administrator's rights: the pages can't open the "
                     "device keys, so no sheet has a page and nothing can be changed";
    }

    Records Describe() override {
        Records records;
        records.known = DevicesPlace | InterfacesPlace;
        DescribeDevices(records);
        records.dos_names = SerialDosNames();
        const RegistryKey map(HKEY_LOCAL_MACHINE, serial_map_key, KEY_READ);
        records.known |= map.Handle() != nullptr ? SerialMapPlace : 0u;
        records.serial_map = map.Texts();
        // The [Ports] section of the profile is kept there.
        const RegistryKey ports(HKEY_LOCAL_MACHINE, ports_key, KEY_READ);
        records.known |= ports.Handle() != nullptr ? SettingsPlace : 0u;
        records.settings_lines = ports.Texts();
        // Read directly, because opening the database through its own operations would create a missing one.
        const StoreValues arbiter = RegistryKey(HKEY_LOCAL_MACHINE, arbiter_key, KEY_READ).Values();
        const StoreValue* const usage = FindValue(arbiter, "ComDB");
        if (usage != nullptr && usage->type == REG_BINARY && !usage->data.empty()) {
            records.known |= DatabasePlace;
            records.usage = usage->data;
        }
        JoinNumbers(records);
        return records;
    }

    bool RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) override {
        const DeviceSet set(SetupDiCreateDeviceInfoList(nullptr, nullptr));
        SP_DEVINFO_DATA data = EmptyDevice();
        if (!SetupDiOpenDeviceInfoW(set.Handle(), FromUtf8(id).c_str(), nullptr, 0, &data)) {
            return false;
        }
        const std::optional<DeviceRecord> device = DescribeDevice(set.Handle(), data);
        if (!device) {
            return false;
        }
        const Provider provider = providers_.Of(set.Handle(), data);
        if (!provider.ask) {
            return true;
        }
        const Attendance attendance(attend);
        SP_PROPSHEETPAGE_REQUEST request{sizeof request, SPPSR_ENUM_ADV_DEVICE_PROPERTIES, set.Handle(),
                                         &data};
        std::vector<HPROPSHEETPAGE> pages;
        if (provider.ask(&request, &TakePage, reinterpret_cast<LPARAM>(&pages)) && !pages.empty()) {
            ShowSheet(FromUtf8(NameOf(*device)) + TEXT(" Properties"), pages);
        }
        return true;
    }

    std::vector<std::string> Journal() override { return TakeJournal(); }

    bool HearTrace(TraceListener hear) override { return ObserveTrace(std::move(hear)); }

    UINT BoxStyle(HWND box) override { return OpenBoxStyle(box); }

private:
    // An interface may belong to a device without a sheet: a channel that is not a port.
    void DescribeDevices(Records& records) {
        std::map<std::string, std::size_t> places; // in the records, by folded instance id
        const std::set<std::string> owners = InterfaceOwners(0), present = InterfaceOwners(DIGCF_PRESENT);
        const DeviceSet set(SetupDiGetClassDevsW(nullptr, nullptr, nullptr, DIGCF_ALLCLASSES));
        SP_DEVINFO_DATA data = EmptyDevice();
        for (DWORD index = 0; SetupDiEnumDeviceInfo(set.Handle(), index, &data); ++index) {
            if (std::optional<DeviceRecord> device = DescribeDevice(set.Handle(), data)) {
                const std::string id = Folded(device->id);
                device->present = !owners.contains(id) || present.contains(id);
                device->provider_fault = providers_.Of(set.Handle(), data).fault;
                places.emplace(id, records.devices.size());
                records.devices.push_back(std::move(*device));
            }
        }
        ForEachChannel([&](const ChannelInterface& one, HDEVINFO its_set, SP_DEVINFO_DATA& its_data) {
            const std::string id = InstanceId(its_set, &its_data);
            const auto [place, is_new] = places.try_emplace(Folded(id), records.devices.size());
            if (is_new) {
                DeviceRecord& channel = records.devices.emplace_back();
                channel.id = id;
                channel.role = Role::Channel;
                channel.description = ToUtf8(Property(its_set, its_data, SPDRP_DEVICEDESC));
                channel.store = RegistryKey(HardwareKey(its_set, its_data)).Values();
                channel.present = false;
            }
            DeviceRecord& owner = records.devices[place->second];
            owner.interfaces.push_back(one);
            owner.present = owner.present || (owner.role == Role::Channel && one.present);
        });
        ListDevices(records);
    }

    Providers providers_;
};

} // namespace

std::unique_ptr<World> OpenWorld(const std::string& file, LANGID language, std::string& error) {
    if (!file.empty()) {
        error = "the machine is this one; import " + file + " with the registry editor";
        return nullptr;
    }
    // The system's own libraries are used, whatever is beside the program or in the current folder.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (language != 0 && !UseLanguage(language)) {
        error = "the system knows no language " + std::to_string(language);
        return nullptr;
    }
    return std::make_unique<System>();
}

} // namespace host
