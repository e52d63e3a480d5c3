// What may be done to a number or a settings line, decided on what is known.
#pragma once

#include <optional>
#include <string>

#include "host/diagnosis/records.h"

namespace host {

// What speaks against it, as the end of a sentence. A final objection cannot be overruled.
struct Objection {
    std::string reason;
    bool final = false;
};

// Taking a number from the COM port database.
std::optional<Objection> AgainstFreeing(const Records& records, unsigned long number);
// Marking a number there as in use.
std::optional<Objection> AgainstClaiming(const Records& records, unsigned long number);
// Deleting a settings line by its key, "COM44:".
std::optional<Objection> AgainstForgetting(const Records& records, const std::string& key);

// The key as the records have it, whatever the case it is asked for in and with or without its colon; empty
// if there is none.
std::string LineKey(const Records& records, const std::string& asked);

} // namespace host
