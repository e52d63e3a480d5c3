#include "host/diagnosis/mending.h"

#include <algorithm>

#include "host/text.h"

namespace host {
namespace {

// Who has the number, or might have it as far as is known.
std::optional<Objection> Holder(const Records& records, const NumberRecord& record) {
    if (!record.holders.empty()) {
        return Objection{LabelOf(records, records.devices[record.holders.front()]) + " has it"};
    }
    if (!record.mapped.empty()) {
        return Objection{"a port is live on it: " + Escaped(record.mapped.front()) + " in the serial map"};
    }
    if ((records.known & DevicesPlace) == 0) {
        return Objection{"the devices are not known, and one of them may have it"};
    }
    if ((records.known & SerialMapPlace) == 0) {
        return Objection{"the serial map is not known, and a port may be live on it"};
    }
    return {};
}

std::optional<Objection> AgainstChanging(const Records& records, unsigned long number) {
    if (number < 1 || number > highest_com_number) {
        return Objection{"a COM number is 1 to " + std::to_string(highest_com_number), true};
    }
    if ((records.known & DatabasePlace) == 0) {
        return Objection{"the COM port database is not known, so there is nothing to change", true};
    }
    return {};
}

} // namespace

std::optional<Objection> AgainstFreeing(const Records& records, unsigned long number) {
    if (auto objection = AgainstChanging(records, number)) {
        return objection;
    }
    const NumberRecord& record = NumberIn(records, number);
    if (!record.claimed) {
        return Objection{"it is free already", true};
    }
    return Holder(records, record);
}

std::optional<Objection> AgainstClaiming(const Records& records, unsigned long number) {
    if (auto objection = AgainstChanging(records, number)) {
        return objection;
    }
    const NumberRecord& record = NumberIn(records, number);
    if (record.claimed) {
        return Objection{"it is claimed already", true};
    }
    if (record.holders.size() > 1) {
        return Objection{"more than one device has it"};
    }
    if (record.holders.empty() && record.mapped.empty()) {
        return Objection{"there is nothing to claim it for"};
    }
    return {};
}

std::optional<Objection> AgainstForgetting(const Records& records, const std::string& key) {
    return Holder(records, NumberIn(records, LineNumber(key)));
}

std::string LineKey(const Records& records, const std::string& asked) {
    const std::string wanted = Folded(asked.ends_with(':') ? asked : asked + ':');
    const auto found = std::ranges::find_if(
        records.settings_lines, [&](const StoreValue& line) { return Folded(ToUtf8(line.name)) == wanted; });
    return found == records.settings_lines.end() ? std::string() : ToUtf8(found->name);
}

} // namespace host
