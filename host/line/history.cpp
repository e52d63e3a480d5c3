#include "host/line/history.h"

namespace host {

History::History(World& world) : world_(world), first_(world.Now()), last_(first_) {}

void History::Note(const std::string& command) {
    if (last_ && !world_.IsStill(*last_)) {
        steps_.push_back({command, last_});
        last_ = world_.Now();
    }
}

std::string History::Undo() {
    if (steps_.empty()) {
        return {};
    }
    const Step step = steps_.back();
    steps_.pop_back();
    world_.ComeBackTo(*step.before);
    last_ = step.before;
    return step.command;
}

void History::Reload() {
    world_.ComeBackTo(*first_);
}

} // namespace host
