// The world of a simulated machine: the library is loaded into it, and its pages run on its windows.
#pragma once

#include "host/machine_file/machine_file.h"
#include "host/worlds/world.h"
#include "simulated/machine.h"

namespace host {

// Reads the registry export of a machine, or that of the sample machine if `path` is empty. Returns false
// with a reason in `error` on failure.
bool OpenMachineFile(const std::string& path, MachineFile& file, std::string& error);

class SimulatedWorld : public World, private FileMachine {
public:
    // Gives the machine what the file holds, makes it current and loads the library. The machine must outlive
    // the world, and no other may be made current meanwhile. From then on its journal belongs to the world.
    SimulatedWorld(MachineFile file, sim::Machine& machine);
    ~SimulatedWorld() override;

    std::string Name() override { return "a simulated machine"; }
    Records Describe() override;
    FileMachine* File() override { return this; }
    bool RunSheet(const std::string& id, const std::function<void(HWND front)>& attend) override;
    std::vector<std::string> Journal() override;
    bool HearTrace(TraceListener hear) override;
    UINT BoxStyle(HWND box) override;

private:
    bool IsUnsaved() override;
    bool Export(const std::string& file, std::string& told) override;
    bool Patch(const Records& original, const std::string& file, bool over, std::string& told) override;
    std::shared_ptr<const Moment> Now() override;
    bool IsStill(const Moment& moment) override;
    void ComeBackTo(const Moment& moment) override;
    bool Fail(const std::string& operation, std::size_t call) override;
    std::vector<std::string> Operations() override;

    void DescribeDevices(Records& records);

    MachineFile file_;
    sim::Machine& machine_;
    std::shared_ptr<const Moment> saved_; // as it was read or last saved
    sim::Scope scope_;
    std::size_t told_ = 0; // lines of the journal that have been passed to the trace's listener
};

} // namespace host
