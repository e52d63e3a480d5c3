#include "host/session/history.h"

namespace host {

History::History(FileMachine* machine)
    : machine_(machine), first_(machine != nullptr ? machine->Now() : nullptr), last_(first_) {}

void History::Note(const std::string& action) {
    if (last_ && !machine_->IsStill(*last_)) {
        steps_.push_back({action, last_});
        last_ = machine_->Now();
    }
}

std::string History::Undo() {
    if (steps_.empty()) {
        return {};
    }
    const Step step = steps_.back();
    steps_.pop_back();
    machine_->ComeBackTo(*step.before);
    last_ = step.before;
    return step.action;
}

void History::Reload(const std::string& action) {
    machine_->ComeBackTo(*first_);
    Note(action);
}

} // namespace host
