#include "host/diagnosis/model.h"

#include <map>

#include "host/diagnosis/published_values.h"

namespace host {
namespace {

// What a board and its channels have in common.
std::pair<unsigned long, unsigned long> IdentityOf(const DeviceRecord& device) {
    return {StoredNumber(device.store, "BoardPciBusNumber"), StoredNumber(device.store, "BoardIrq")};
}

} // namespace

Model::Model(const Records& machine) : records(machine) {
    const std::vector<DeviceRecord>& devices = records.devices;
    std::map<std::pair<unsigned long, unsigned long>, std::size_t>
        readable; // boards by identity, the first of each
    for (std::size_t index = 0; index < devices.size(); ++index) {
        if (devices[index].role == Role::Board && devices[index].present) {
            boards.push_back(index);
            if (BoardFaults(devices[index].store).empty()) {
                readable.try_emplace(IdentityOf(devices[index]), index);
            }
        }
    }
    for (std::size_t index = 0; index < devices.size(); ++index) {
        for (const ChannelInterface& one : devices[index].interfaces) {
            if (!one.present || (one.channel_class == uart_class && !IsChannel(devices[index].store))) {
                continue;
            }
            const auto board = readable.find(IdentityOf(devices[index]));
            channels.push_back({index, one.channel_class, StoredNumber(devices[index].store, "ChlNumber"),
                                ChannelFaults(devices[index].store, one.channel_class).empty(),
                                board == readable.end() ? std::nullopt : std::optional(board->second)});
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
