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

// Applications are notified while both keys exist, so that one that reads on the notice finds the port under
// either name. A write that fails costs the line: the port then gets the default line. A deletion that fails
// leaves the old line, which the next port of that name inherits. A notice that fails costs little:
// applications read the line when they open the port.
void MoveSettingsLine(const WCHAR* oldKey, const WCHAR* newKey) {
    WCHAR value[SettingsLineCapacity] = {};
    GetProfileStringW(PortsSection, oldKey, TEXT(""), value, ARRAYSIZE(value));
    WriteProfileStringW(PortsSection, newKey, value[0] != 0 ? value : DefaultSettingsLine);
    SendNotifyMessageW(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(PortsSection));
    WriteProfileStringW(PortsSection, oldKey, nullptr);
}

} // namespace

void Kavro_COMPortMigratePortSettings(const WCHAR* oldName, const WCHAR* newName) {
    TraceScope trace;
    // Without memory the line stays under the old name, and the port gets the default line when it is next
    // read.
    WCHAR* oldKey = AllocateSettingsKey(oldName);
    if (oldKey == nullptr) {
        return;
    }
    WCHAR* newKey = AllocateSettingsKey(newName);
    if (newKey == nullptr) {
        LocalFree(oldKey);
        return;
    }
    MoveSettingsLine(oldKey, newKey);
    LocalFree(oldKey);
    LocalFree(newKey);
}
