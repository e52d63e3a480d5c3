// The conditions of the rules about COM numbers.
#include <algorithm>

#include "host/diagnosis/model.h"
#include "host/diagnosis/settings_reading.h"
#include "host/text.h"

namespace host {
namespace {

Subject AboutNumber(unsigned long number) {
    Subject subject;
    subject.number = number;
    return subject;
}

std::string Joined(const std::vector<std::string>& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : "; ") + text;
    }
    return joined;
}

// Calls `take` for each port whose name has a number.
template <class Take> void ForEachPort(const Model& model, const Take& take) {
    for (const auto& [number, record] : model.records.numbers) {
        for (const std::size_t holder : record.holders) {
            take(number, record, holder);
        }
    }
}

} // namespace

void FindStaleClaims(const Model& model, Found& found) {
    for (const auto& [number, record] : model.records.numbers) {
        if (record.claimed && record.holders.empty() && record.mapped.empty()) {
            found.push_back(AboutNumber(number));
        }
    }
}

void FindGhostClaims(const Model& model, Found& found) {
    for (const auto& [number, record] : model.records.numbers) {
        if (record.claimed && !record.holders.empty() && record.mapped.empty() &&
            std::ranges::none_of(record.holders,
                                 [&](std::size_t holder) { return model.IsPresent(holder); })) {
            found.push_back(model.About(record.holders.front()));
        }
    }
}

void FindSharedNames(const Model& model, Found& found) {
    for (const auto& [number, record] : model.records.numbers) {
        if (record.holders.size() > 1) {
            found.push_back(model.About(record.holders.front()));
            std::vector<std::string> labels;
            for (const std::size_t holder : record.holders) {
                labels.push_back(LabelOf(model.records, model.records.devices[holder]));
            }
            found.back().what = Joined(labels);
        }
    }
}

// A number that several devices have is claimed for none of them.
void FindUnclaimedPorts(const Model& model, Found& found) {
    ForEachPort(model, [&](unsigned long number, const NumberRecord& record, std::size_t holder) {
        if (!record.claimed && number <= highest_com_number && record.holders.size() == 1 &&
            model.IsPresent(holder)) {
            found.push_back(model.About(holder));
            found.back().number = number;
        }
    });
}

// A printer's port is in the class of ports too.
void FindOddNames(const Model& model, Found& found) {
    for (std::size_t index = 0; index < model.records.devices.size(); ++index) {
        const DeviceRecord& device = model.records.devices[index];
        const StoreValue* const value = FindValue(device.store, "PortName");
        if (device.role != Role::Port || value == nullptr) {
            continue;
        }
        const std::string name = TextOf(*value);
        if (PortNumber(name) == 0 && !Folded(name).starts_with("lpt")) {
            found.push_back(model.About(index));
            found.back().what = "PortName is " + Quoted(name);
        }
    }
}

void FindUnmappedPorts(const Model& model, Found& found) {
    ForEachPort(model, [&](unsigned long, const NumberRecord& record, std::size_t holder) {
        if (record.mapped.empty() && model.IsPresent(holder)) {
            found.push_back(model.About(holder));
        }
    });
}

void FindNumbersMappedTwice(const Model& model, Found& found) {
    for (const auto& [number, record] : model.records.numbers) {
        if (record.mapped.size() > 1) {
            found.push_back(AboutNumber(number));
            std::vector<std::string> objects;
            std::ranges::transform(record.mapped, std::back_inserter(objects), Escaped);
            found.back().what = Joined(objects);
        }
    }
}

void FindOtherFriendlyNumbers(const Model& model, Found& found) {
    ForEachPort(model, [&](unsigned long number, const NumberRecord&, std::size_t holder) {
        const std::string& name = model.records.devices[holder].friendly_name;
        const unsigned long shown = FriendlyNumber(name);
        if (shown != 0 && shown != number) {
            found.push_back(model.About(holder));
            found.back().what = "PortName is " + ComName(number) + ", the friendly name " + Quoted(name);
        }
    });
}

void FindOrphanLines(const Model& model, Found& found) {
    for (const StoreValue& line : model.records.settings_lines) {
        const std::string key = ToUtf8(line.name);
        const unsigned long number = LineNumber(key);
        const NumberRecord& record = NumberIn(model.records, number);
        if (number != 0 && record.holders.empty() && record.mapped.empty()) {
            found.push_back(AboutNumber(number));
            found.back().key = key;
            found.back().what = "the line is " + Quoted(TextOf(line));
        }
    }
}

void FindMisreadLines(const Model& model, Found& found) {
    for (const auto& [number, record] : model.records.numbers) {
        for (const std::string& line : record.lines) {
            if (const std::string misread = Misread(line); !misread.empty() && !record.holders.empty()) {
                found.push_back(model.About(record.holders.front()));
                found.back().what = "of " + Quoted(line) + ", " + misread;
            }
        }
    }
}

void FindOpenPorts(const Model& model, Found& found) {
    ForEachPort(model, [&](unsigned long, const NumberRecord&, std::size_t holder) {
        if (model.IsPresent(holder) && StoredNumber(model.records.devices[holder].store, "ChlOpened") != 0) {
            found.push_back(model.About(holder));
        }
    });
}

} // namespace host
