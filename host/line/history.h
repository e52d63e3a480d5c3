// What the commands have made of a machine, step by step, to be taken back.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/worlds/world.h"

namespace host {

class History {
public:
    // The world must outlive it.
    explicit History(World& world);

    // Ends a step: if the machine has changed since the last one, it can be taken back from here on.
    void Note(const std::string& command);

    // Whether this machine can be set back at all.
    bool IsKept() const { return first_ != nullptr; }
    // Takes the last step back and gives its command; empty if there is none.
    std::string Undo();
    // Goes back to the machine as it was read; that can be taken back too.
    void Reload();

private:
    struct Step {
        std::string command;
        std::shared_ptr<const Moment> before;
    };

    World& world_;
    std::shared_ptr<const Moment> first_, last_;
    std::vector<Step> steps_;
};

} // namespace host
