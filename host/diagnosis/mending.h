// What may be done to a number or a settings line, decided from what is known.
#pragma once

#include <optional>
#include <string>

#include "host/worlds/records.h"

namespace host {

// What speaks against a change, as the end of a sentence. A final objection can't be overruled.
struct Objection {
    std::string reason;
    bool final = false;
};

// Against freeing a number in the COM port database.
std::optional<Objection> AgainstFreeing(const Records& records, unsigned long number);
// Against marking a number there as in use.
std::optional<Objection> AgainstClaiming(const Records& records, unsigned long number);
// Against deleting a settings line by its key, "COM44:".
std::optional<Objection> AgainstForgetting(const Records& records, const std::string& key);

// The key as the records have it. It may be asked for in any case, with or without its colon. Empty if there
// is none.
std::string LineKey(const Records& records, const std::string& asked);

} // namespace host
