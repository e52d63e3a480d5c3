// What the actions have made of a machine, kept step by step so that it can be undone.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/worlds/file_machine.h"

namespace host {

class History {
public:
    // The machine must outlive this; null if this one can't be set back.
    explicit History(FileMachine* machine);

    // Ends a step that has changed the machine: it can be undone from now on.
    void Note(const std::string& action);

    // Whether this machine can be set back at all.
    bool IsKept() const { return first_ != nullptr; }
    // Undoes the last step and returns its action; empty if there is none.
    std::string Undo();
    // Sets the machine back to what was read. That is a step too.
    void Reload(const std::string& action);

private:
    struct Step {
        std::string action;
        std::shared_ptr<const Moment> before;
    };

    FileMachine* machine_;
    std::shared_ptr<const Moment> first_, last_;
    std::vector<Step> steps_;
};

} // namespace host
