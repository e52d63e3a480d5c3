#include "com_numbers/port_settings_migration.h"

#include "com_numbers/ports_section.h"
#include "reporting/trace.h"

namespace {

// Returns null if there is no memory. The caller frees the key.
WCHAR* AllocateSettingsKey(const WCHAR* portName) {
    const u32 capacity = static_cast<u32>(lstrlenW(portName)) + 2;
    auto* key = static_cast<WCHAR*>(LocalAlloc(LPTR, capacity * sizeof(WCHAR)));
    if (key != nullptr) {
        MakeSettingsKey(key, capacity, portName);
    }
    return key;
}

// Applications are notified while both keys exist.
void MoveSettingsLine(const WCHAR* oldKey, const WCHAR* newKey) {
    WCHAR value[SettingsLineCapacity] = {};
    GetProfileStringW(PortsSection, oldKey, TEXT(""), value, ARRAYSIZE(value));
    WriteProfileStringW(PortsSection, newKey, value[0] != 0 ? value : DefaultSettingsLine);
    SendNotifyMessageW(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(PortsSection));
    WriteProfileStringW(PortsSection, oldKey, nullptr);
}

} // namespace

void Kavro_COMPortMigratePortSettings(const WCHAR* oldName, const WCHAR* newName) {
    TraceOut("----> %s( )\n", __func__);
    WCHAR* oldKey = AllocateSettingsKey(oldName);
    if (oldKey != nullptr) {
        WCHAR* newKey = AllocateSettingsKey(newName);
        if (newKey != nullptr) {
            MoveSettingsLine(oldKey, newKey);
        }
        LocalFree(oldKey);
        if (newKey != nullptr) {
            LocalFree(newKey);
        }
    }
    TraceOut("<---- %s\n", __func__);
}
