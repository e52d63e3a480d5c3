// The service engineer's bench: what the commands do that find what is wrong with a machine, mend it, and
// make a patch of the changes. Each returns the lines of its answer, and throws Refusal if it does nothing.
#pragma once

#include <string>
#include <vector>

#include "host/diagnosis/records.h"
#include "host/line/command.h"
#include "host/line/history.h"
#include "host/screen/listing.h"

namespace host {

class Bench {
public:
    // Regards the machine in its present state as the one that was read. The world must outlive this, and
    // `source` is the name of its file, for a patch.
    Bench(World& world, std::string source);

    Lines Diagnose(const Words& words);
    Lines Why(const Words& words);
    Lines Free(const Words& words);
    Lines Claim(const Words& words);
    Lines Forget(const Words& words);
    Lines Mend(const Words& words);
    Lines Changes(const Words& words);
    Lines Undo(const Words& words);
    Lines Reload(const Words& words);
    Lines Patch(const Words& words);
    Lines Fail(const Words& words);

    History& history() { return history_; }

private:
    void MustBeKept() const;

    World& world_;
    std::string source_;
    Records original_;
    History history_;
};

} // namespace host
