#include "host/session/history.h"

namespace host {

History::History(World& world) : world_(world), first_(world.Now()), last_(first_) {}

void History::Note(const std::string& action) {
    if (last_ && !world_.IsStill(*last_)) {
        steps_.push_back({action, last_});
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
    return step.action;
}

void History::Reload(const std::string& action) {
    world_.ComeBackTo(*first_);
    Note(action);
}

} // namespace host
