// GUIDs as the registry writes them: "{86e0d1e0-8089-11d0-9ce4-08003e301f73}".
#pragma once

#include <optional>
#include <string_view>

#include "simulated/machine.h"

namespace host {

std::optional<GUID> ParseGuid(std::u16string_view text);
sim::Text GuidText(const GUID& guid);

} // namespace host
