#include "check/windows/own_machine.h"

#include <objbase.h>

#include <algorithm>
#include <sstream>

#include "check/windows/embedded.h"
#include "host/machine_file/registry_export.h"

namespace check {
namespace {

using host::Text, host::StoreValue, host::TextIn;

constexpr std::basic_string_view<WCHAR>
    devices_key = L"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum\\",
    interfaces_key = L"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\DeviceClasses\\",
    hardware_key = L"\\Device Parameters";

class Receiver : public host::ExportReceiver {
public:
    explicit Receiver(OwnMachine& machine) : machine_(machine) {}

    host::KeyUse Key(std::basic_string_view<WCHAR> path) override {
        path_ = path;
        if (path.starts_with(devices_key) && !path.ends_with(hardware_key)) {
            machine_.devices.push_back({ToUtf8(path.substr(devices_key.size())), {}, {}, {}, {}});
        }
        return host::KeyUse::Wanted;
    }

    void SetValue(std::basic_string_view<WCHAR> name, DWORD type, std::span<const BYTE> data) override {
        const StoreValue value{Text(name), type, {data.begin(), data.end()}};
        if (path_.ends_with(hardware_key)) {
            machine_.devices.back().store.push_back(value);
        } else if (path_.ends_with(L"\\SERIALCOMM")) {
            machine_.serial_map.push_back(value);
        } else if (path_.ends_with(L"\\Ports")) {
            machine_.settings_lines.push_back(value);
        } else if (name == L"ComDB") {
            machine_.usage = value.data;
        } else if (name == L"DeviceDesc") {
            machine_.devices.back().description = TextIn(data);
        } else if (name == L"FriendlyName") {
            machine_.devices.back().friendly_name = TextIn(data);
        } else if (name == L"DeviceInstance") {
            const Text guid =
                path_.substr(interfaces_key.size(), path_.find(L'}') + 1 - interfaces_key.size());
            // The key of an interface comes right behind its device.
            CLSIDFromString(guid.c_str(), &machine_.devices.back().interfaces.emplace_back());
        }
    }

    void DeleteKey(std::basic_string_view<WCHAR>) override {}
    void DeleteValue(std::basic_string_view<WCHAR>) override {}

private:
    OwnMachine& machine_;
    Text path_;
};

} // namespace

const OwnMachine& TheOwnMachine() {
    static const OwnMachine machine = [] {
        OwnMachine read;
        Receiver receiver(read);
        std::istringstream file{std::string(OwnMachineFile())};
        host::Problem none;
        ReadExport(file, "machine.reg", receiver, none);
        return read;
    }();
    return machine;
}

const OwnDevice* FindOwnDevice(const std::string& id) {
    const auto& devices = TheOwnMachine().devices;
    const auto found = std::ranges::find_if(
        devices, [&](const OwnDevice& device) { return host::Folded(device.id) == host::Folded(id); });
    return found != devices.end() ? &*found : nullptr;
}

} // namespace check
