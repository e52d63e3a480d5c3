#include "host/windows/standins/standins.h"

#include <algorithm>
#include <cwchar>

#include "host/windows/import_table.h"
#include "host/windows/registry.h"

namespace host {
namespace {

std::vector<std::pair<std::wstring, std::wstring>> dos_names;

auto FindDosName(LPCWSTR name) {
    return std::find_if(dos_names.begin(), dos_names.end(),
                        [name](const auto& entry) { return _wcsicmp(entry.first.c_str(), name) == 0; });
}

DWORD WINAPI StandInQueryDosDeviceW(LPCWSTR name, LPWSTR target, DWORD capacity) {
    const auto found = FindDosName(name);
    if (found == dos_names.end()) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return 0;
    }
    // A list with one text: the text's terminator and the list's.
    const DWORD length = static_cast<DWORD>(found->second.size()) + 2;
    if (capacity < length) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return 0;
    }
    std::copy_n(found->second.c_str(), length - 1, target);
    target[length - 1] = 0;
    return length;
}

BOOL WINAPI StandInDefineDosDeviceW(DWORD flags, LPCWSTR name, LPCWSTR target) {
    const auto found = FindDosName(name);
    if (flags & DDD_REMOVE_DEFINITION) {
        if (found == dos_names.end()) {
            SetLastError(ERROR_FILE_NOT_FOUND);
            return FALSE;
        }
        dos_names.erase(found);
    } else if (found != dos_names.end()) {
        found->second = target;
    } else {
        dos_names.emplace_back(name, target);
    }
    return TRUE;
}

BOOL WINAPI StandInSetupDiSetClassInstallParamsW(HDEVINFO, SP_DEVINFO_DATA*, SP_CLASSINSTALL_HEADER*, DWORD) {
    return TRUE;
}

BOOL WINAPI StandInSetupDiCallClassInstaller(DI_FUNCTION, HDEVINFO, SP_DEVINFO_DATA*) {
    return TRUE;
}

// Windows keeps the section in the registry. Here it lies in a file, and the registry follows it.
BOOL WINAPI StandInWriteProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR value) {
    if (_wcsicmp(section, L"Ports") == 0) {
        const RegistryKey ports(HKEY_LOCAL_MACHINE, PortsKey, KEY_READ | KEY_WRITE);
        if (value) {
            const DWORD bytes = static_cast<DWORD>((std::wcslen(value) + 1) * sizeof(WCHAR));
            RegSetValueExW(ports.Handle(), key, 0, REG_SZ, reinterpret_cast<const BYTE*>(value), bytes);
        } else {
            RegDeleteValueW(ports.Handle(), key);
        }
    }
    return WriteProfileStringW(section, key, value);
}

void TakeProfileFromRegistry() {
    WriteProfileStringW(L"Ports", nullptr, nullptr);
    for (const auto& [key, line] : RegistryKey(HKEY_LOCAL_MACHINE, PortsKey, KEY_READ).Texts()) {
        WriteProfileStringW(L"Ports", key.c_str(), line.c_str());
    }
}

} // namespace

bool IsStandInSystem() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

void UseStandIns(HMODULE library) {
    dos_names.clear();
    for (const auto& [device, port] : RegistryKey(HKEY_LOCAL_MACHINE, SerialMapKey, KEY_READ).Texts()) {
        if (!port.empty() && FindDosName(port.c_str()) == dos_names.end()) {
            dos_names.emplace_back(port, device);
        }
    }
    TakeProfileFromRegistry();
    const std::pair<const char*, void*> replacements[] = {
        {"QueryDosDeviceW", reinterpret_cast<void*>(&StandInQueryDosDeviceW)},
        {"DefineDosDeviceW", reinterpret_cast<void*>(&StandInDefineDosDeviceW)},
        {"SetupDiSetClassInstallParamsW", reinterpret_cast<void*>(&StandInSetupDiSetClassInstallParamsW)},
        {"SetupDiCallClassInstaller", reinterpret_cast<void*>(&StandInSetupDiCallClassInstaller)},
        {"WriteProfileStringW", reinterpret_cast<void*>(&StandInWriteProfileStringW)},
    };
    for (const auto& [name, function] : replacements) {
        Redirect(library, name, function);
    }
}

std::vector<std::pair<std::wstring, std::wstring>> SerialDosNames() {
    if (IsStandInSystem()) {
        return dos_names;
    }
    std::vector<std::pair<std::wstring, std::wstring>> names;
    for (int number = 1; number <= 256; ++number) {
        const std::wstring name = L"COM" + std::to_wstring(number);
        WCHAR target[MAX_PATH];
        if (QueryDosDeviceW(name.c_str(), target, ARRAYSIZE(target))) {
            names.emplace_back(name, target);
        }
    }
    return names;
}

bool UseLanguage(LANGID language) {
    if (!IsStandInSystem()) {
        return SetThreadUILanguage(language) == language;
    }
    // The stand-in looks resources up by the thread's locale, and makes a language without a country one with
    // its default country. So the locale goes to its place in the thread's block itself.
    const LCID locale = MAKELCID(language, SORT_DEFAULT);
    if (!IsValidLocale(locale, LCID_INSTALLED)) {
        return false;
    }
    __asm__ volatile("movl %0, %%gs:0x108" : : "r"(locale) : "memory");
    return true;
}

} // namespace host
