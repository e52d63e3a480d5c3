#include "host/diagnosis/model.h"

#include <algorithm>

#include "host/diagnosis/published_values.h"

namespace host {
namespace {

bool IsOneBoard(const DeviceRecord& left, const DeviceRecord& right) {
    return std::ranges::all_of(
        std::initializer_list<const char*>{"BoardPciBusNumber", "BoardIrq"},
        [&](const char* name) { return StoredNumber(left.store, name) == StoredNumber(right.store, name); });
}

} // namespace

Model::Model(const Records& machine) : records(machine), numbers(NumbersOf(machine)) {
    const std::vector<DeviceRecord>& devices = records.devices;
    for (std::size_t index = 0; index < devices.size(); ++index) {
        if (devices[index].role == Role::Board && devices[index].present) {
            boards.push_back(index);
        }
    }
    for (std::size_t index = 0; index < devices.size(); ++index) {
        for (const ChannelInterface& one : devices[index].interfaces) {
            if (!one.present) {
                continue;
            }
            if (one.channel_class == uart_class && !IsChannel(devices[index].store)) {
                continue;
            }
            const auto board = std::ranges::find_if(boards, [&](std::size_t each) {
                return BoardFaults(devices[each].store).empty() && IsOneBoard(devices[each], devices[index]);
            });
            channels.push_back({index, one.channel_class, StoredNumber(devices[index].store, "ChlNumber"),
                                ChannelFaults(devices[index].store, one.channel_class).empty(),
                                board == boards.end() ? std::nullopt : std::optional(*board)});
        }
    }
}

Subject Model::About(std::size_t device) const {
    const DeviceRecord& record = records.devices[device];
    return {record.role == Role::Port ? PortNumber(StoredText(record.store, "PortName")) : 0,
            LabelOf(records, record),
            record.id,
            record.listed ? std::to_string(record.listed) : record.id,
            {},
            {}};
}

} // namespace host
