#include "check/windows/own_world.h"

#include "check/windows/own_machine.h"
#include "check/windows/parts.h"
#include "check/windows/steps.h"
#include "host/worlds/windows/observers.h"
#include "host/worlds/windows/providers.h"

// The check's own devices have the pages of the library beside it. No installer has named it in the registry,
// and the libraries of other devices are not asked.
host::Text host::NamedProvider(HDEVINFO set, SP_DEVINFO_DATA& data) {
    const check::OwnDevice* const own = check::FindOwnDevice(InstanceId(set, &data));
    if (own == nullptr) {
        return {};
    }
    return check::OwnFolder() + L"\\kvrpagex64.dll," +
           (FindValue(own->store, "BoardNrController") != nullptr ? L"KvrBoardPropPageProvider"
                                                                  : L"KvrUartPropPageProvider");
}

namespace check {

OwnWorld::OwnWorld() {
    constexpr LANGID english = 1033;
    std::string error;
    system_ = host::OpenWorld({}, english, error);
    if (system_ == nullptr) {
        system_ = host::OpenWorld({}, 0, error);
    }
}

OwnWorld::~OwnWorld() {
    SetThreadUILanguage(language_before_);
}

host::Records OwnWorld::Describe() {
    host::Records records = All();
    KeepOwn(records);
    return records;
}

} // namespace check
