#include "host/line/tour.h"

namespace host {
namespace {

constexpr const char* lines[] = {
    "# A tour of the sample machine. `help` tells the commands; the same can be typed or piped in.",
    "devices",
    "# The places that hold the numbers of the ports, before anything is changed.",
    "ports",
    "# The board's page: its channels, and the FIFO settings of the one selected.",
    "open 1",
    "uncheck \"Enable large FIFO buffers\"",
    "click Apply",
    "journal",
    "# The electrical interface of the UART, and the sort of the board's numbers.",
    "click Advanced",
    "show",
    "click \"Sort UART\"",
    "click OK",
    "sheet ok",
    "# Each number now ascends with its channel, in every place that holds it.",
    "ports",
    "# The sheet of a port: its settings line, and the dialog that gives it another number.",
    "open COM3",
    "pick \"Bits per second\" 19200",
    "click Advanced",
    "show",
    "pick \"COM Port Number\" COM14",
    "click OK",
    "sheet ok",
    "# The settings line has moved with the port, and the sheet's OK has written it under the new name.",
    "ports",
};

class Tour : public LineSource {
public:
    std::optional<std::string> Next(const std::string&) override {
        if (next_ == std::size(lines)) {
            return {};
        }
        return lines[next_++];
    }

private:
    std::size_t next_ = 0;
};

} // namespace

std::unique_ptr<LineSource> TourLines() {
    return std::make_unique<Tour>();
}

} // namespace host
