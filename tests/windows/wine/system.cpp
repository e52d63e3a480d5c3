// The live system with Wine in the place of Windows. This program answers what Wine lacks: the DOS names of
// serial ports, the two class installer calls and the profile sections that are kept in the registry. It
// takes the names and the [Ports] values from the registry as it is when the library is attached.
#include "host/worlds/windows/system.h"

#include <algorithm>
#include <cwchar>

#include "host/worlds/windows/import_table.h"
#include "host/worlds/windows/observers.h"
#include "host/worlds/windows/registry.h"
#include "tests/windows/wine/faults.h"
#include "tests/windows/wine/standins.h"

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
    // A list of one text: the text's terminator and the list's.
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

BOOL WINAPI StandInSetupDiCallClassInstaller(DI_FUNCTION function, HDEVINFO set, SP_DEVINFO_DATA* data) {
    return function == DIF_PROPERTYCHANGE || SetupDiCallClassInstaller(function, set, data);
}

// Windows keeps the [Ports] section of the profile in the registry. Wine uses a file instead, which ignores
// what is in the registry and loses the blank at the end of a line.
bool IsMapped(LPCWSTR section) {
    return section != nullptr && _wcsicmp(section, TEXT("Ports")) == 0;
}

DWORD WINAPI StandInGetProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR fallback, LPWSTR buffer,
                                      DWORD capacity) {
    if (!IsMapped(section) || key == nullptr || capacity == 0) {
        return GetProfileStringW(section, key, fallback, buffer, capacity);
    }
    std::wstring line = fallback != nullptr ? fallback : TEXT("");
    for (const StoreValue& value : RegistryKey(HKEY_LOCAL_MACHINE, ports_key, KEY_READ).Texts()) {
        if (_wcsicmp(value.name.c_str(), key) == 0) {
            const Text text = TextIn(value.data);
            // One pair of quotation marks around a value does not belong to it.
            const bool quoted = text.size() >= 2 &&
                                (text.front() == TEXT('"') || text.front() == TEXT('\'')) &&
                                text.front() == text.back();
            line = quoted ? text.substr(1, text.size() - 2) : text;
        }
    }
    const std::size_t length = std::min<std::size_t>(line.size(), capacity - 1);
    line.copy(buffer, length);
    buffer[length] = 0;
    return static_cast<DWORD>(length);
}

BOOL WINAPI StandInWriteProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR value) {
    if (!IsMapped(section) || key == nullptr) {
        return WriteProfileStringW(section, key, value);
    }
    HKEY ports = nullptr;
    if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, ports_key, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE,
                        nullptr, &ports, nullptr) != ERROR_SUCCESS) {
        return FALSE;
    }
    const LSTATUS status = value != nullptr
                               ? RegSetValueExW(ports, key, 0, REG_SZ, reinterpret_cast<const BYTE*>(value),
                                                static_cast<DWORD>((std::wcslen(value) + 1) * sizeof(WCHAR)))
                               : RegDeleteValueW(ports, key);
    RegCloseKey(ports);
    return status == ERROR_SUCCESS || value == nullptr;
}

} // namespace

void StandIn(HMODULE module) {
    dos_names.clear();
    for (const StoreValue& value : RegistryKey(HKEY_LOCAL_MACHINE, serial_map_key, KEY_READ).Texts()) {
        const Text port = TextIn(value.data);
        if (!port.empty() && FindDosName(port.c_str()) == dos_names.end()) {
            dos_names.emplace_back(port, value.name);
        }
    }
    const std::pair<const char*, void*> replacements[] = {
        {"QueryDosDeviceW", reinterpret_cast<void*>(&StandInQueryDosDeviceW)},
        {"DefineDosDeviceW", reinterpret_cast<void*>(&StandInDefineDosDeviceW)},
        {"SetupDiSetClassInstallParamsW", reinterpret_cast<void*>(&StandInSetupDiSetClassInstallParamsW)},
        {"SetupDiCallClassInstaller", reinterpret_cast<void*>(&StandInSetupDiCallClassInstaller)},
        {"GetProfileStringW", reinterpret_cast<void*>(&StandInGetProfileStringW)},
        {"WriteProfileStringW", reinterpret_cast<void*>(&StandInWriteProfileStringW)},
    };
    for (const auto& [name, function] : replacements) {
        Redirect(module, name, function);
    }
    AllowFaults(module);
}

void AttachTo(HMODULE library) {
    StandIn(library);
    Observe(library);
}

TextPairs SerialDosNames() {
    TextPairs names;
    for (const auto& [name, target] : dos_names) {
        names.emplace_back(ToUtf8(name), ToUtf8(target));
    }
    return names;
}

// Wine looks resources up by the thread's locale, and SetThreadLocale replaces a language without a country
// by the one of its default country. So the locale is written directly into the thread's block.
bool UseLanguage(LANGID language) {
    const LCID locale = MAKELCID(language, SORT_DEFAULT);
    if (!IsValidLocale(locale, LCID_INSTALLED)) {
        return false;
    }
    __asm__ volatile("movl %0, %%gs:0x108" : : "r"(locale) : "memory");
    return true;
}

} // namespace host
