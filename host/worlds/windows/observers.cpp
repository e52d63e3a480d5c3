#include "host/worlds/windows/observers.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <utility>

#include "host/text.h"
#include "host/worlds/windows/import_table.h"

namespace host {
namespace {

std::vector<std::string> journal;
World::TraceListener trace_listener;
constexpr std::size_t no_call = static_cast<std::size_t>(-1);
std::map<HKEY, std::string> keys; // the keys that the library holds, with their names in the journal

struct OpenBox {
    HWND window; // null until it is created
    UINT style;
};
std::vector<OpenBox> boxes; // the outermost first

// What was in the import table before: the system's own function, or its replacement.
#define NEXT(function) decltype(&::function) Next##function = nullptr
NEXT(RegOpenKeyExW);
NEXT(RegCloseKey);
NEXT(RegSetValueExW);
NEXT(SetupDiOpenDevRegKey);
NEXT(SetupDiSetDeviceRegistryPropertyW);
NEXT(SetupDiSetDeviceInstallParamsW);
NEXT(SetupDiSetClassInstallParamsW);
NEXT(SetupDiCallClassInstaller);
NEXT(DefineDosDeviceW);
NEXT(ComDBReleasePort);
NEXT(ComDBClaimPort);
NEXT(WriteProfileStringW);
NEXT(SendNotifyMessageW);
NEXT(MessageBoxW);
NEXT(OutputDebugStringA);
#undef NEXT

std::size_t being_made = no_call; // the line of the call in progress

// Writes the line and makes the call.
template <class Call> auto Journaled(std::string line, const Call& call) {
    journal.push_back(std::move(line));
    const std::size_t outer = std::exchange(being_made, journal.size() - 1);
    const auto result = call();
    const std::size_t made = std::exchange(being_made, outer);
    if (trace_listener) {
        trace_listener(journal[made], true);
    }
    return result;
}

std::string Utf8(LPCWSTR text) {
    return text != nullptr ? ToUtf8(text) : std::string{};
}

std::string FunctionShown(DI_FUNCTION function) {
    return function == DIF_PROPERTYCHANGE ? "DIF_PROPERTYCHANGE" : "function " + std::to_string(function);
}

std::string PropertyShown(DWORD property) {
    return property == SPDRP_FRIENDLYNAME ? "friendly name" : "property " + std::to_string(property);
}

LSTATUS WINAPI ObservedRegOpenKeyExW(HKEY root, LPCWSTR path, DWORD options, REGSAM access, PHKEY key) {
    const LSTATUS status = NextRegOpenKeyExW(root, path, options, access, key);
    if (status == ERROR_SUCCESS) {
        const std::string name = Utf8(path);
        const std::string last = name.substr(name.rfind('\\') + 1);
        keys[*key] = Folded(last) == "serialcomm" ? "SERIALCOMM" : name;
    }
    return status;
}

LSTATUS WINAPI ObservedRegCloseKey(HKEY key) {
    keys.erase(key);
    return NextRegCloseKey(key);
}

LSTATUS WINAPI ObservedRegSetValueExW(HKEY key, LPCWSTR name, DWORD reserved, DWORD type, const BYTE* data,
                                      DWORD bytes) {
    const auto found = keys.find(key);
    return Journaled("RegSetValueExW " + (found == keys.end() ? "?" : found->second) + ' ' + Utf8(name) +
                         " = " + ValueInJournal(type, {data, bytes}),
                     [&] { return NextRegSetValueExW(key, name, reserved, type, data, bytes); });
}

HKEY WINAPI ObservedSetupDiOpenDevRegKey(HDEVINFO set, SP_DEVINFO_DATA* data, DWORD scope, DWORD profile,
                                         DWORD type, REGSAM access) {
    const HKEY key = NextSetupDiOpenDevRegKey(set, data, scope, profile, type, access);
    if (key != INVALID_HANDLE_VALUE) {
        keys[key] = InstanceId(set, data);
    }
    return key;
}

BOOL WINAPI ObservedSetupDiSetDeviceRegistryPropertyW(HDEVINFO set, SP_DEVINFO_DATA* data, DWORD property,
                                                      const BYTE* buffer, DWORD bytes) {
    return Journaled(
        "SetupDiSetDeviceRegistryPropertyW " + InstanceId(set, data) + ' ' + PropertyShown(property) + " = " +
            Quoted(ToUtf8(TextIn({buffer, bytes}))),
        [&] { return NextSetupDiSetDeviceRegistryPropertyW(set, data, property, buffer, bytes); });
}

BOOL WINAPI ObservedSetupDiSetDeviceInstallParamsW(HDEVINFO set, SP_DEVINFO_DATA* data,
                                                   SP_DEVINSTALL_PARAMS_W* params) {
    char flags[16];
    std::snprintf(flags, sizeof flags, "0x%08X", static_cast<unsigned>(params->Flags));
    return Journaled("SetupDiSetDeviceInstallParamsW " + InstanceId(set, data) + " flags " + flags,
                     [&] { return NextSetupDiSetDeviceInstallParamsW(set, data, params); });
}

BOOL WINAPI ObservedSetupDiSetClassInstallParamsW(HDEVINFO set, SP_DEVINFO_DATA* data,
                                                  SP_CLASSINSTALL_HEADER* params, DWORD bytes) {
    return Journaled("SetupDiSetClassInstallParamsW " + InstanceId(set, data) + ' ' +
                         FunctionShown(params->InstallFunction),
                     [&] { return NextSetupDiSetClassInstallParamsW(set, data, params, bytes); });
}

BOOL WINAPI ObservedSetupDiCallClassInstaller(DI_FUNCTION function, HDEVINFO set, SP_DEVINFO_DATA* data) {
    return Journaled("SetupDiCallClassInstaller " + InstanceId(set, data) + ' ' + FunctionShown(function),
                     [&] { return NextSetupDiCallClassInstaller(function, set, data); });
}

BOOL WINAPI ObservedDefineDosDeviceW(DWORD flags, LPCWSTR name, LPCWSTR target) {
    return Journaled("DefineDosDeviceW " +
                         (target != nullptr ? Utf8(name) + " -> " + Utf8(target) : "remove " + Utf8(name)),
                     [&] { return NextDefineDosDeviceW(flags, name, target); });
}

LONG WINAPI ObservedComDBReleasePort(HCOMDB database, DWORD number) {
    return Journaled("ComDBReleasePort " + std::to_string(number),
                     [&] { return NextComDBReleasePort(database, number); });
}

LONG WINAPI ObservedComDBClaimPort(HCOMDB database, DWORD number, BOOL force, PBOOL forced) {
    return Journaled("ComDBClaimPort " + std::to_string(number) + (force ? " force" : ""),
                     [&] { return NextComDBClaimPort(database, number, force, forced); });
}

BOOL WINAPI ObservedWriteProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR value) {
    return Journaled("WriteProfileStringW [" + Utf8(section) + "] " + Utf8(key) +
                         (value != nullptr ? " = " + Quoted(Utf8(value)) : " deleted"),
                     [&] { return NextWriteProfileStringW(section, key, value); });
}

BOOL WINAPI ObservedSendNotifyMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Journaled(message == WM_WININICHANGE ? "SendNotifyMessageW WM_WININICHANGE " +
                                                      Quoted(Utf8(reinterpret_cast<LPCWSTR>(lParam)))
                                                : "SendNotifyMessageW " + std::to_string(message),
                     [&] { return NextSendNotifyMessageW(window, message, wParam, lParam); });
}

// The first window that is created for a message box is the box.
LRESULT CALLBACK NoteBox(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && !boxes.back().window) {
        boxes.back().window = reinterpret_cast<HWND>(wParam);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

int WINAPI ObservedMessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT style) {
    boxes.push_back({nullptr, style});
    const HHOOK hook = SetWindowsHookExW(WH_CBT, &NoteBox, nullptr, GetCurrentThreadId());
    const int answer = NextMessageBoxW(owner, text, caption, style);
    UnhookWindowsHookEx(hook);
    boxes.pop_back();
    return answer;
}

void WINAPI ObservedOutputDebugStringA(LPCSTR text) {
    if (trace_listener) {
        const std::string line = text;
        trace_listener(line.substr(0, line.find('\n')), false);
    }
    NextOutputDebugStringA(text);
}

template <class Function>
void ObserveCall(HMODULE library, const char* name, Function* observer, Function*& next) {
    if (void* const stood = Redirect(library, name, reinterpret_cast<void*>(observer))) {
        next = reinterpret_cast<Function*>(stood);
    }
}

} // namespace

std::string InstanceId(HDEVINFO set, SP_DEVINFO_DATA* data) {
    WCHAR id[MAX_PATH] = {};
    return SetupDiGetDeviceInstanceIdW(set, data, id, ARRAYSIZE(id), nullptr) ? ToUtf8(id) : std::string{};
}

void Observe(HMODULE library) {
#define OBSERVE(function) ObserveCall(library, #function, &Observed##function, Next##function)
    OBSERVE(RegOpenKeyExW);
    OBSERVE(RegCloseKey);
    OBSERVE(RegSetValueExW);
    OBSERVE(SetupDiOpenDevRegKey);
    OBSERVE(SetupDiSetDeviceRegistryPropertyW);
    OBSERVE(SetupDiSetDeviceInstallParamsW);
    OBSERVE(SetupDiSetClassInstallParamsW);
    OBSERVE(SetupDiCallClassInstaller);
    OBSERVE(DefineDosDeviceW);
    OBSERVE(ComDBReleasePort);
    OBSERVE(ComDBClaimPort);
    OBSERVE(WriteProfileStringW);
    OBSERVE(SendNotifyMessageW);
    OBSERVE(MessageBoxW);
    OBSERVE(OutputDebugStringA);
#undef OBSERVE
}

void NoteFailure() {
    if (being_made != no_call) {
        journal[being_made] += " (failed)";
    }
}

std::vector<std::string> TakeJournal() {
    return std::exchange(journal, {});
}

bool ObserveTrace(World::TraceListener hear) {
    trace_listener = std::move(hear);
    return NextOutputDebugStringA != nullptr;
}

UINT OpenBoxStyle(HWND box) {
    const auto found =
        std::find_if(boxes.begin(), boxes.end(), [box](const OpenBox& each) { return each.window == box; });
    return found == boxes.end() ? 0 : found->style;
}

} // namespace host
