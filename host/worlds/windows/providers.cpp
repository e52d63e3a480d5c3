#include "host/worlds/windows/providers.h"

#include <algorithm>

#include "host/text.h"
#include "host/worlds/windows/system.h"

namespace host {

Providers::~Providers() {
    for (const HMODULE library : loaded_) {
        FreeLibrary(library);
    }
}

HMODULE Providers::Load(LPCWSTR name) {
    const HMODULE library = LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library != nullptr && std::ranges::count(loaded_, library) != 0) {
        FreeLibrary(library); // it stays loaded by one reference
    } else if (library != nullptr) {
        loaded_.push_back(library);
        AttachTo(library);
    }
    return library;
}

Provider Providers::Of(HDEVINFO set, SP_DEVINFO_DATA& data) {
    const Text named = NamedProvider(set, data);
    if (named.empty()) {
        return {nullptr, "neither its driver nor its class has a value EnumPropPages32"};
    }
    const std::string shown = "EnumPropPages32 is " + Quoted(ToUtf8(named)) + ", ";
    const std::size_t comma = named.rfind(TEXT(','));
    if (comma == Text::npos) {
        return {nullptr, shown + "which does not name a library and a function"};
    }
    const HMODULE library = Load(named.substr(0, comma).c_str());
    if (library == nullptr) {
        return {nullptr, shown + "and that library can't be loaded: error " + std::to_string(GetLastError())};
    }
    const std::size_t begin = named.find_first_not_of(TEXT(' '), comma + 1);
    const std::string function = ToUtf8(named.substr(std::min(begin, named.size())));
    const auto ask = reinterpret_cast<decltype(Provider::ask)>(
        reinterpret_cast<void*>(GetProcAddress(library, function.c_str())));
    return {ask, ask != nullptr ? "" : shown + "and that library has no such function"};
}

} // namespace host
