// What only a machine from a file can do: it can be saved, set back, and made to fail.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/worlds/records.h"

namespace host {

// The whole state of a machine at one moment.
struct Moment {
    virtual ~Moment() = default;
};

class FileMachine {
public:
    virtual ~FileMachine() = default;

    // Whether the machine differs from what was read or last saved.
    virtual bool IsUnsaved() = 0;

    // Writes the machine as a registry export. Returns false, with a reason in `told`, if the file can't be
    // written. On success `told` says which changes it leaves out.
    virtual bool Export(const std::string& file, std::string& told) = 0;

    // Writes what differs from `original`, the machine as it was read, as a patch for its registry, and
    // beside it a file that takes it back, which replaces an existing one only if `over` says so. Returns
    // false, with a reason in `told`, if that fails or there is nothing to write. On success `told` names the
    // files.
    virtual bool Patch(const Records& original, const std::string& file, bool over, std::string& told) = 0;

    // The present state of the machine, to come back to. It is first asked for before anything changes. No
    // sheet may be open when it is set back.
    virtual std::shared_ptr<const Moment> Now() = 0;
    virtual bool IsStill(const Moment& moment) = 0;
    virtual void ComeBackTo(const Moment& moment) = 0;

    // Makes the n-th call of an operation of the system from now on fail, counted from 1; without a name,
    // none any more. False if there is no such operation.
    virtual bool Fail(const std::string& operation, std::size_t call) = 0;
    // The operations that can fail.
    virtual std::vector<std::string> Operations() = 0;
};

} // namespace host
