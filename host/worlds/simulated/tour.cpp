// The tour of the sample machine: the commands that run if the program is started without any. Controls are
// named by their numbers, so that the tour is the same in every language.
#include "host/worlds/simulated/tour.h"

#include "platform/platform.h"
#include "resources/resource_ids.h"

namespace host {

std::vector<std::string> TourOfSample() {
    const auto on = [](const char* command, int control, const char* rest = "") {
        return std::string{command} + ' ' + std::to_string(control) + rest;
    };
    return {
        "# A tour of the sample machine. `help` lists the commands, which can also be typed or piped in.",
        "devices",
        "# The places that hold the numbers of the ports, before anything is changed.",
        "ports",
        "# The board's page: its channels, and the FIFO settings of the one selected.",
        "open 1",
        on("uncheck", IDC_LARGEFIFO),
        on("click", IDC_APPLY),
        "journal",
        "# The electrical interface of the UART, and the sort of the board's numbers.",
        on("click", IDC_ADVANCED),
        "show",
        on("click", IDC_SORT_COM),
        on("click", IDOK),
        "sheet ok",
        "# Each number now ascends with its channel, in every place that holds it.",
        "ports",
        "# The sheet of a port: its settings line, and the dialog that gives it another number.",
        "open COM3",
        on("pick", IDC_BAUD_RATE, " 19200"),
        on("click", IDC_ADVANCED),
        "show",
        on("pick", IDC_PORT_NUMBER, " COM14"),
        on("click", IDOK),
        "sheet ok",
        "# The settings line has moved with the port, and the sheet's OK has written it under the new name.",
        "ports",
    };
}

} // namespace host
