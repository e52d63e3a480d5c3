#include "check/windows/software_devices.h"

#include <map>
#include <memory>

#include "check/windows/device_handles.h"
#include "check/windows/parts.h"
#include "platform/text.h"

namespace check {
namespace {

template <class Function> struct SystemCall {
    Function* function = nullptr;
    void From(HMODULE system, const char* name) {
        function = reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(system, name)));
    }
};

struct {
    SystemCall<decltype(SwDeviceCreate)> create;
    SystemCall<decltype(SwDeviceInterfaceRegister)> register_interface;
    SystemCall<decltype(SwDeviceClose)> close;
} calls;

std::map<std::string, HSWDEVICE> made; // by instance id

// What the system says of a new device. It may say so after this process has given up waiting.
struct CreateResult {
    HANDLE given = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HRESULT result = E_FAIL;
    ~CreateResult() { CloseHandle(given); }
};

void WINAPI TakeAnswer(HSWDEVICE, HRESULT result, void* context, PCWSTR) {
    const std::unique_ptr<std::shared_ptr<CreateResult>> answer(
        static_cast<std::shared_ptr<CreateResult>*>(context));
    (*answer)->result = result;
    SetEvent((*answer)->given);
}

std::string Failed(const std::string& id, const char* call, HRESULT result) {
    return id + ": " + call + " gives " + Hex(static_cast<DWORD>(result));
}

} // namespace

bool HasSoftwareDevices() {
    static const HMODULE system = LoadLibraryExW(L"cfgmgr32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (system != nullptr) {
        calls.create.From(system, "SwDeviceCreate");
        calls.register_interface.From(system, "SwDeviceInterfaceRegister");
        calls.close.From(system, "SwDeviceClose");
    }
    return calls.create.function != nullptr && calls.register_interface.function != nullptr &&
           calls.close.function != nullptr;
}

std::string MakeSoftwareDevice(const std::string& id, const std::wstring& description,
                               const std::vector<GUID>& interfaces) {
    constexpr DWORD longest_wait = 60000; // milliseconds
    const std::string own = own_devices;
    const std::wstring name = FromUtf8(id.substr(own.size()));
    const std::wstring enumerator =
        FromUtf8(own.substr(own.find('\\') + 1, own.rfind('\\') - own.find('\\') - 1));
    SW_DEVICE_CREATE_INFO info{};
    info.cbSize = sizeof info;
    info.pszInstanceId = name.c_str();
    info.pszDeviceDescription = description.c_str();
    info.CapabilityFlags = SWDeviceCapabilitiesSilentInstall | SWDeviceCapabilitiesNoDisplayInUI;
    const auto answer = std::make_shared<CreateResult>();
    auto context = std::make_unique<std::shared_ptr<CreateResult>>(answer);
    HSWDEVICE device = nullptr;
    HRESULT result = calls.create.function(enumerator.c_str(), L"HTREE\\ROOT\\0", &info, 0, nullptr,
                                           &TakeAnswer, context.get(), &device);
    if (FAILED(result)) {
        return Failed(id, "SwDeviceCreate", result);
    }
    context.release(); // the answer takes it
    made[id] = device;
    if (WaitForSingleObject(answer->given, longest_wait) != WAIT_OBJECT_0) {
        return id + ": the system does not answer";
    }
    if (FAILED(answer->result)) {
        return Failed(id, "the system", answer->result);
    }
    for (const GUID& interface_class : interfaces) {
        result =
            calls.register_interface.function(device, &interface_class, nullptr, 0, nullptr, TRUE, nullptr);
        if (FAILED(result)) {
            return Failed(id, "SwDeviceInterfaceRegister", result);
        }
    }
    return {};
}

void RemoveSoftwareDevice(const std::string& id) {
    if (const auto found = made.find(id); found != made.end()) {
        calls.close.function(found->second);
        made.erase(found);
    }
    OpenDevice device(id);
    if (device.IsOpen()) {
        SP_REMOVEDEVICE_PARAMS params{};
        params.ClassInstallHeader.cbSize = sizeof params.ClassInstallHeader;
        params.ClassInstallHeader.InstallFunction = DIF_REMOVE;
        params.Scope = DI_REMOVEDEVICE_GLOBAL;
        SetupDiSetClassInstallParamsW(device.Set(), device.Data(), &params.ClassInstallHeader, sizeof params);
        SetupDiCallClassInstaller(DIF_REMOVE, device.Set(), device.Data());
    }
}

} // namespace check
