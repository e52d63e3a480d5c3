// The system itself as the host's world: its devices, its registry, its windows.
#include "host/worlds/world.h"

#include <algorithm>
#include <optional>

#include "host/worlds/channel_classes.h"
#include "host/worlds/store_values.h"
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

// The device as the host lists it, without its presence and its provider; nothing if it is neither a board
// nor a port.
std::optional<Device> Describe(HDEVINFO set, SP_DEVINFO_DATA& data) {
    Device device;
    device.id = InstanceId(set, &data);
    const RegistryKey key(HardwareKey(set, data));
    if (Property(set, data, SPDRP_CLASS) == TEXT("Ports") || key.Has(TEXT("PortName"))) {
        device.kind = DeviceKind::Port;
    } else if (!key.Has(TEXT("BoardNrController"))) { // only a board's own device has it
        return {};
    }
    device.description = Property(set, data, SPDRP_DEVICEDESC);
    device.friendly_name = Property(set, data, SPDRP_FRIENDLYNAME);
    return device;
}

bool SameText(const std::string& left, const std::string& right) {
    return CompareStringOrdinal(FromUtf8(left).c_str(), -1, FromUtf8(right).c_str(), -1, TRUE) == CSTR_EQUAL;
}

bool Before(const Text& left, const Text& right) {
    return CompareStringOrdinal(left.c_str(), -1, right.c_str(), -1, TRUE) == CSTR_LESS_THAN;
}

// The devices that have an interface of any class, or a present one with DIGCF_PRESENT.
std::vector<std::string> InterfaceOwners(DWORD flags) {
    std::vector<std::string> ids;
    const DeviceSet set(
        SetupDiGetClassDevsW(nullptr, nullptr, nullptr, DIGCF_ALLCLASSES | DIGCF_DEVICEINTERFACE | flags));
    SP_DEVINFO_DATA data = EmptyDevice();
    for (DWORD index = 0; SetupDiEnumDeviceInfo(set.Handle(), index, &data); ++index) {
        ids.push_back(InstanceId(set.Handle(), &data));
    }
    return ids;
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
        Devices(); // from now on what their libraries do and trace is observed
    }

    std::string Greeting() override {
        return IsElevated()
                   ? "This machine, live, as administrator: what the pages change is changed here"
                   : "This machine, live, without an administrator's rights: the pages can't open the "
                     "device keys, so no sheet has a page and nothing can be changed";
    }

    bool KnowsDevices() override { return true; }

    std::vector<Device> Devices() override {
        std::vector<Device> devices;
        const std::vector<std::string> with_interface = InterfaceOwners(0),
                                       present = InterfaceOwners(DIGCF_PRESENT);
        const auto among = [](const std::vector<std::string>& ids, const std::string& id) {
            return std::any_of(ids.begin(), ids.end(),
                               [&](const std::string& each) { return SameText(each, id); });
        };
        const DeviceSet set(SetupDiGetClassDevsW(nullptr, nullptr, nullptr, DIGCF_ALLCLASSES));
        SP_DEVINFO_DATA data = EmptyDevice();
        for (DWORD index = 0; SetupDiEnumDeviceInfo(set.Handle(), index, &data); ++index) {
            if (std::optional<Device> device = Describe(set.Handle(), data)) {
                if (among(with_interface, device->id)) {
                    device->present = among(present, device->id);
                }
                device->provider_fault = providers_.Of(set.Handle(), data).fault;
                devices.push_back(std::move(*device));
            }
        }
        std::sort(devices.begin(), devices.end(), [](const Device& left, const Device& right) {
            return left.kind != right.kind ? left.kind == DeviceKind::Board
                                           : Before(FromUtf8(left.id), FromUtf8(right.id));
        });
        return devices;
    }

    std::vector<StoreValue> Store(const std::string& id) override {
        const DeviceSet set(SetupDiCreateDeviceInfoList(nullptr, nullptr));
        SP_DEVINFO_DATA data = EmptyDevice();
        if (!SetupDiOpenDeviceInfoW(set.Handle(), FromUtf8(id).c_str(), nullptr, 0, &data)) {
            return {};
        }
        std::vector<StoreValue> values = RegistryKey(HardwareKey(set.Handle(), data)).Values();
        std::sort(values.begin(), values.end(), [](const StoreValue& left, const StoreValue& right) {
            return Before(left.name, right.name);
        });
        return values;
    }

    std::optional<std::vector<Interface>> Interfaces() override {
        std::vector<Interface> interfaces;
        for (const GUID& interface_class : channel_interface_classes) {
            const DeviceSet set(
                SetupDiGetClassDevsW(&interface_class, nullptr, nullptr, DIGCF_DEVICEINTERFACE));
            SP_DEVICE_INTERFACE_DATA one{};
            one.cbSize = sizeof one;
            for (DWORD index = 0;
                 SetupDiEnumDeviceInterfaces(set.Handle(), nullptr, &interface_class, index, &one); ++index) {
                // Asks for the device alone, because the path does not fit.
                SP_DEVINFO_DATA data = EmptyDevice();
                SetupDiGetDeviceInterfaceDetailW(set.Handle(), &one, nullptr, 0, nullptr, &data);
                interfaces.push_back({InstanceId(set.Handle(), &data),
                                      Property(set.Handle(), data, SPDRP_DEVICEDESC),
                                      ChannelClassOf(interface_class), (one.Flags & SPINT_ACTIVE) != 0});
            }
        }
        return interfaces;
    }

    PortRecords Ports() override {
        PortRecords records;
        records.dos_names = SerialDosNames();
        if (const RegistryKey map(HKEY_LOCAL_MACHINE, serial_map_key, KEY_READ); map.Handle()) {
            records.serial_map = map.Texts();
        }
        // The [Ports] section of the profile is kept there.
        if (const RegistryKey ports(HKEY_LOCAL_MACHINE, ports_key, KEY_READ); ports.Handle() != nullptr) {
            records.settings_lines = ports.Texts();
        }
        // Read directly, because opening the database through its own operations would create a missing one.
        const std::vector<StoreValue> arbiter =
            RegistryKey(HKEY_LOCAL_MACHINE, arbiter_key, KEY_READ).Values();
        const StoreValue* const usage = FindValue(arbiter, "ComDB");
        if (usage != nullptr && usage->type == REG_BINARY && !usage->data.empty()) {
            records.usage = usage->data;
        }
        return records;
    }

    bool RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) override {
        const DeviceSet set(SetupDiCreateDeviceInfoList(nullptr, nullptr));
        SP_DEVINFO_DATA data = EmptyDevice();
        if (!SetupDiOpenDeviceInfoW(set.Handle(), FromUtf8(id).c_str(), nullptr, 0, &data)) {
            return false;
        }
        const std::optional<Device> device = Describe(set.Handle(), data);
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

    bool HasUnsavedChanges() override { return false; }

    bool Export(const std::string&, std::string& told) override {
        told = "a real machine is exported by its own registry editor";
        return false;
    }

    bool Patch(const std::string&, const std::vector<std::string>&, const std::string&,
               const std::vector<std::string>&, std::string& error) override {
        error = "what is changed here is changed already: a patch is made from an export";
        return false;
    }

    std::unique_ptr<Moment> Now() override { return nullptr; }
    bool IsStill(const Moment&) override { return true; }
    void ComeBackTo(const Moment&) override {}
    bool Fail(const std::string&, std::size_t) override { return false; }

private:
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
