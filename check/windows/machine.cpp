#include <windows.h>

#include <uxtheme.h>

#include <cstdio>

#include "check/windows/dialog_fit.h"
#include "check/windows/parts.h"

namespace check {
namespace {

// The version without what a compatibility setting makes of it.
std::string WindowsVersion() {
    using GetVersionCall = LONG(WINAPI*)(OSVERSIONINFOW*);
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    const auto get_version = reinterpret_cast<GetVersionCall>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
    return get_version != nullptr && get_version(&version) == 0
               ? std::to_string(version.dwMajorVersion) + '.' + std::to_string(version.dwMinorVersion) + '.' +
                     std::to_string(version.dwBuildNumber)
               : "not known";
}

} // namespace

std::string Rights() {
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        return "not known";
    }
    TOKEN_ELEVATION elevation{};
    DWORD bytes = 0;
    const bool known =
        GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &bytes) != FALSE;
    CloseHandle(token);
    return !known ? "not known" : elevation.TokenIsElevated ? "administrator" : "user";
}

std::wstring OwnFolder() {
    std::wstring path(32768, 0);
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.rfind(L'\\'));
}

std::string Of(int count, int all) {
    return std::to_string(count) + " of " + std::to_string(all);
}

std::string Hex(DWORD number) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(number));
    return text;
}

void LookAtMachine(Report& report) {
    report.facts.insert(report.facts.end(),
                        {{"about.windows", "-", WindowsVersion()},
                         {"about.language", "-", std::to_string(GetUserDefaultUILanguage())},
                         {"about.dots_per_inch", "-", std::to_string(ScreenScale())},
                         {"about.theme", "-", IsThemeActive() ? "on" : "off"},
                         {"about.rights", "-", Rights()}});
}

} // namespace check
