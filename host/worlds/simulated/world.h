// The world of a simulated machine: the library is loaded into it, and its pages are run on its windows.
#pragma once

#include "host/worlds/world.h"
#include "platform/simulated/machine.h"

namespace host {

// Reads the machine of a registry export, or the sample machine if `file` is empty. False with a reason in
// `error`.
bool OpenMachine(const std::string& file, sim::Machine& machine, std::string& error);

class SimulatedWorld : public World {
public:
    // Makes the machine current and loads the library; the machine must outlive the world, and no other be
    // made current meanwhile. The machine's journal is the world's from then on.
    explicit SimulatedWorld(sim::Machine& machine);
    ~SimulatedWorld() override;

    std::vector<Device> Devices() override;
    std::vector<StoreValue> Store(const std::string& id) override;
    PortRecords Ports() override;
    bool RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) override;
    std::vector<std::string> Journal() override;
    UINT BoxStyle(HWND box) override;
    bool Export(const std::string& file, std::string& error) override;

private:
    sim::Machine& machine_;
    sim::Scope scope_;
};

} // namespace host
