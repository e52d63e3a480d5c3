#include "host/worlds/windows/system.h"

#include "host/worlds/windows/observers.h"

namespace host {

void AttachTo(HMODULE library) {
    Observe(library);
}

TextPairs SerialDosNames() {
    TextPairs names;
    for (int number = 1; number <= COMDB_MAX_PORTS_ARBITRATED; ++number) {
        const std::string name = ComName(static_cast<unsigned long>(number));
        WCHAR target[MAX_PATH];
        if (QueryDosDeviceW(FromUtf8(name).c_str(), target, ARRAYSIZE(target))) {
            names.emplace_back(name, ToUtf8(target));
        }
    }
    return names;
}

bool UseLanguage(LANGID language) {
    return SetThreadUILanguage(language) == language;
}

} // namespace host
