// The data of the machine: values by name, usage bits, devices, profile sections.
#include <algorithm>
#include <cstring>

#include "platform/port_usage.h"
#include "simulated/stage.h"

namespace sim {
namespace {

auto ByName(std::u16string_view name) {
    return [name](const Value& value) { return EqualNoCase(value.name, name); };
}

template <class Number> std::vector<BYTE> BytesOfNumber(Number number) {
    std::vector<BYTE> bytes(sizeof number);
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

bool IsPortNumber(unsigned number) {
    return number >= 1 && number <= 8 * PortUsage{}.size();
}

} // namespace

const Value* Values::Find(std::u16string_view name) const {
    const auto value = std::ranges::find_if(list, ByName(name));
    return value == list.end() ? nullptr : &*value;
}

void Values::Set(std::u16string_view name, DWORD type, std::vector<BYTE> data) {
    const auto value = std::ranges::find_if(list, ByName(name));
    if (value == list.end()) {
        list.push_back({Text(name), type, std::move(data)});
    } else {
        value->type = type;
        value->data = std::move(data);
    }
}

void Values::SetDword(std::u16string_view name, DWORD number) {
    Set(name, REG_DWORD, BytesOfNumber(number));
}

void Values::SetQword(std::u16string_view name, ULONGLONG number) {
    Set(name, REG_QWORD, BytesOfNumber(number));
}

void Values::SetText(std::u16string_view name, std::u16string_view text) {
    Set(name, REG_SZ, BytesOf(text));
}

bool Values::Erase(std::u16string_view name) {
    return std::erase_if(list, ByName(name)) != 0;
}

bool IsClaimed(const PortUsage& usage, unsigned number) {
    return IsPortNumber(number) && IsPortClaimed(usage.data(), number);
}

void SetClaimed(PortUsage& usage, unsigned number, bool claimed) {
    if (IsPortNumber(number)) {
        BYTE& byte = usage[PortUsageByte(number)];
        const BYTE bit = PortUsageMask(number);
        byte = static_cast<BYTE>(claimed ? byte | bit : byte & ~bit);
    }
}

const Device* Machine::FindDevice(std::u16string_view instance_id) const {
    const auto device = std::ranges::find_if(
        devices, [&](const Device& each) { return EqualNoCase(each.instance_id, instance_id); });
    return device == devices.end() ? nullptr : &*device;
}

Values* Machine::ProfileSection(std::u16string_view section, bool create) {
    const auto found =
        std::ranges::find_if(profile, [&](const auto& each) { return EqualNoCase(each.first, section); });
    if (found != profile.end()) {
        return &found->second;
    }
    return create ? &profile.emplace_back(Text(section), Values()).second : nullptr;
}

} // namespace sim
