#include "host/worlds/windows/system.h"

#include "host/worlds/windows/observers.h"

namespace host {

void AttachTo(HMODULE library) {
    Observe(library);
}

std::vector<std::pair<std::wstring, std::wstring>> SerialDosNames() {
    std::vector<std::pair<std::wstring, std::wstring>> names;
    for (int number = 1; number <= COMDB_MAX_PORTS_ARBITRATED; ++number) {
        const std::wstring name = TEXT("COM") + std::to_wstring(number);
        WCHAR target[MAX_PATH];
        if (QueryDosDeviceW(name.c_str(), target, ARRAYSIZE(target))) {
            names.emplace_back(name, target);
        }
    }
    return names;
}

bool UseLanguage(LANGID language) {
    return SetThreadUILanguage(language) == language;
}

} // namespace host
