// Who provides the pages of a device: "library.dll,Function" in EnumPropPages32 of its driver's key, or else
// of its class's key. The library is loaded from the system folder unless the value has a path.
#pragma once

#include <string>
#include <vector>

#include "host/text.h"
#include "platform/platform.h"

namespace host {

// What names a device's provider; empty if nothing does. The check's program, whose devices no INF has
// installed, has this function of its own.
Text NamedProvider(HDEVINFO set, SP_DEVINFO_DATA& data);

struct Provider {
    BOOL(APIENTRY* ask)(SP_PROPSHEETPAGE_REQUEST*, LPFNADDPROPSHEETPAGE, LPARAM) = nullptr;
    std::string fault; // why there is no provider; empty if there is one
};

// The libraries of the providers. Each is loaded and observed when it is first asked for.
class Providers {
public:
    Providers() = default;
    ~Providers();
    Providers(const Providers&) = delete;
    Providers& operator=(const Providers&) = delete;

    Provider Of(HDEVINFO set, SP_DEVINFO_DATA& data);

private:
    HMODULE Load(LPCWSTR name);

    std::vector<HMODULE> loaded_;
};

} // namespace host
