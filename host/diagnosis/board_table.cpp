#include "host/diagnosis/board_table.h"

#include <algorithm>
#include <array>

#include "host/diagnosis/model.h"
#include "host/diagnosis/published_values.h"
#include "host/text.h"

namespace host {
namespace {

constexpr std::array<const char*, std::tuple_size_v<Row>> board_headings = {
    "channel", "class", "number", "interface", "FIFO", "receive", "transmit", "device"};

// By channel class, from 1.
constexpr const char* class_names[] = {"UART", "digital I/O", "Mcp251x", "Mcp251xFd", "CAN"};

Row CellsOf(const DeviceRecord& device, const ChannelRecord& channel) {
    const bool is_uart = channel.channel_class == uart_class;
    const auto number = [&](const char* name) {
        return is_uart && FindValue(device.store, name) != nullptr
                   ? std::to_string(StoredNumber(device.store, name))
                   : "-";
    };
    const std::string port = Escaped(StoredText(device.store, "PortName"));
    return {std::to_string(channel.number),
            class_names[channel.channel_class - 1],
            port.empty() ? "-" : port,
            is_uart ? ModeName(StoredNumber(device.store, "UartMode")) : "-",
            !is_uart                                            ? "-"
            : StoredNumber(device.store, "UartFifoEnable") != 0 ? "large"
                                                                : "off",
            number("UartRxFifoLowHigh"),
            number("UartTxFifoLowHigh"),
            device.listed != 0 ? std::to_string(device.listed) : "-"};
}

} // namespace

BoardTable TableOfBoard(const Records& records, const DeviceRecord& device) {
    const Model model(records);
    const auto is_board_of = [&](std::size_t board) {
        return records.devices[board].id == device.id ||
               std::ranges::any_of(model.channels, [&](const ChannelRecord& channel) {
                   return channel.board == board && records.devices[channel.device].id == device.id;
               });
    };
    const auto board = std::ranges::find_if(model.boards, is_board_of);
    BoardTable table;
    if (board == model.boards.end()) {
        return table;
    }
    std::vector<ChannelRecord> channels;
    std::ranges::copy_if(model.channels, std::back_inserter(channels),
                         [&](const ChannelRecord& channel) { return channel.board == *board; });
    std::ranges::stable_sort(channels, {}, &ChannelRecord::number);
    table.cells.emplace_back();
    std::ranges::copy(board_headings, table.cells.front().begin());
    table.listed.push_back(0);
    for (const ChannelRecord& channel : channels) {
        table.cells.push_back(CellsOf(records.devices[channel.device], channel));
        table.listed.push_back(records.devices[channel.device].listed);
    }
    table.lines = TableLines(table.cells);
    return table;
}

} // namespace host
