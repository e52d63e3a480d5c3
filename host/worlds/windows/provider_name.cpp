#include "host/worlds/store_values.h"
#include "host/worlds/windows/providers.h"
#include "host/worlds/windows/registry.h"

namespace host {
namespace {

Text NamedIn(HKEY key) {
    const std::vector<StoreValue> values = RegistryKey(key).Values();
    const StoreValue* const named = FindValue(values, "EnumPropPages32");
    return named != nullptr ? TextIn(named->data) : Text();
}

} // namespace

Text NamedProvider(HDEVINFO set, SP_DEVINFO_DATA& data) {
    const Text named = NamedIn(SetupDiOpenDevRegKey(set, &data, DICS_FLAG_GLOBAL, 0, DIREG_DRV, KEY_READ));
    return named.empty() ? NamedIn(SetupDiOpenClassRegKeyExW(&data.ClassGuid, KEY_READ, DIOCR_INSTALLER,
                                                             nullptr, nullptr))
                         : named;
}

} // namespace host
