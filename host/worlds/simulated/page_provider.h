// Which of the library's functions provides a role's page.
#pragma once

#include "board_page/board_page_provider.h"
#include "host/worlds/records.h"
#include "uart_page/uart_page_provider.h"

namespace host {

inline auto ProviderOf(Role role) {
    return role == Role::Board ? KvrBoardPropPageProvider : KvrUartPropPageProvider;
}

} // namespace host
