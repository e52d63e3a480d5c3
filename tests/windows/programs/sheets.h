// The sheets that a program opens if it needs one of each kind, and the devices that it opens them for.
#pragma once

#include <optional>

#include "host/worlds/world.h"
#include "resources/resource_ids.h"

namespace host {

// The sheet of a role: its page, and the dialog that the page's button opens.
struct RoleSheet {
    Role role;
    int page, advanced;
};
constexpr RoleSheet role_sheets[] = {{Role::Board, IDD_PORT_CONTROL, IDD_ADVANCED_PORT_CONTROL},
                                     {Role::Port, IDD_PORT_SETTINGS, IDD_ADVANCED_PORT_SETTINGS}};

// The first device of the role with values from the board's driver, so that its provider has a page for it.
std::optional<DeviceRecord> FirstDevice(World& world, Role role);

} // namespace host
