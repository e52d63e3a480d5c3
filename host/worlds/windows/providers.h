// Whom the device manager asks for the pages of a device: "library.dll,Function" under EnumPropPages32 of its
// driver's key, or else of its class's. The library is taken from the system folder unless its path stands
// there.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace host {

struct Provider {
    BOOL(APIENTRY* ask)(SP_PROPSHEETPAGE_REQUEST*, LPFNADDPROPSHEETPAGE, LPARAM) = nullptr;
    std::string fault; // why there is nobody to ask; empty if there is
};

// The libraries of the providers, loaded and observed from the first time that one is asked for.
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
