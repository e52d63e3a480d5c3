// This Windows as far as it is the check's own: its devices, numbers and entries. Nothing that is told of it
// tells of anything else.
#pragma once

#include <memory>

#include "host/worlds/world.h"

namespace check {

class OwnWorld : public host::World {
public:
    // The language of the pages is English, in which the scripts are kept, where the system has it.
    OwnWorld();
    ~OwnWorld() override;
    OwnWorld(const OwnWorld&) = delete;
    OwnWorld& operator=(const OwnWorld&) = delete;

    // False if the system can't be read.
    bool IsOpen() const { return system_ != nullptr; }
    // With everything else that this Windows has, for finding out what is used.
    host::Records All() { return system_->Describe(); }

    std::string Name() override { return system_->Name(); }
    host::Records Describe() override;
    bool RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) override {
        return system_->RunSheet(id, attend);
    }
    std::vector<std::string> Journal() override { return system_->Journal(); }
    bool HearTrace(TraceListener hear) override { return system_->HearTrace(std::move(hear)); }
    UINT BoxStyle(HWND box) override { return system_->BoxStyle(box); }

private:
    const LANGID language_before_ = GetThreadUILanguage();
    std::unique_ptr<host::World> system_;
};

} // namespace check
