#include "tests/windows/wine/faults.h"

#include <algorithm>
#include <iterator>

#include "host/worlds/windows/import_table.h"
#include "host/worlds/windows/observers.h"

namespace host {
namespace {

// An operation that can be made to fail: its result then, and the error that it leaves.
template <class Function, int Place> struct Fault;
template <class Result, class... Arguments, int Place> struct Fault<Result(WINAPI*)(Arguments...), Place> {
    static inline Result(WINAPI* next)(Arguments...) = nullptr;
    static inline Result failure{};
    static inline DWORD error = 0;
    static inline int calls_left = 0; // until the one that fails; 0 for none

    static Result WINAPI Call(Arguments... arguments) {
        if (calls_left != 0 && --calls_left == 0) {
            NoteFailure();
            SetLastError(error);
            return failure;
        }
        return next(arguments...);
    }
};

struct Operation {
    const char* name;
    void* function;
    void (*keep)(void* next);
    int* calls_left;
};

template <class Function, int Place, class Failure>
Operation Failing(const char* name, Function, Failure failure, DWORD error) {
    using Fault = Fault<Function, Place>;
    Fault::failure = failure;
    Fault::error = error;
    return {name, reinterpret_cast<void*>(&Fault::Call),
            [](void* next) { Fault::next = reinterpret_cast<Function>(next); }, &Fault::calls_left};
}
#define FAILING(function, failure, error)                                                                    \
    Failing<decltype(&::function), __LINE__>(#function, &::function, failure, error)

const Operation operations[] = {
    FAILING(LocalAlloc, nullptr, ERROR_NOT_ENOUGH_MEMORY),
    FAILING(QueryDosDeviceW, 0, ERROR_GEN_FAILURE),
    FAILING(DefineDosDeviceW, FALSE, ERROR_GEN_FAILURE),
    FAILING(WriteProfileStringW, FALSE, ERROR_GEN_FAILURE),
    FAILING(RegOpenKeyExW, ERROR_ACCESS_DENIED, 0),
    FAILING(RegQueryValueExW, ERROR_GEN_FAILURE, 0),
    FAILING(RegSetValueExW, ERROR_GEN_FAILURE, 0),
    FAILING(RegEnumValueW, ERROR_GEN_FAILURE, 0),
    FAILING(SetupDiGetClassDevsW, INVALID_HANDLE_VALUE, ERROR_GEN_FAILURE),
    FAILING(SetupDiOpenDevRegKey, static_cast<HKEY>(INVALID_HANDLE_VALUE), ERROR_GEN_FAILURE),
    FAILING(SetupDiGetDeviceInstallParamsW, FALSE, ERROR_GEN_FAILURE),
    FAILING(SetupDiSetClassInstallParamsW, FALSE, ERROR_GEN_FAILURE),
    FAILING(SetupDiCallClassInstaller, FALSE, ERROR_GEN_FAILURE),
    FAILING(SetupDiGetDeviceRegistryPropertyW, FALSE, ERROR_GEN_FAILURE),
    FAILING(SetupDiSetDeviceInstallParamsW, FALSE, ERROR_GEN_FAILURE),
    FAILING(SetupDiSetDeviceRegistryPropertyW, FALSE, ERROR_GEN_FAILURE),
    FAILING(ComDBOpen, ERROR_ACCESS_DENIED, ERROR_ACCESS_DENIED),
    FAILING(ComDBGetCurrentPortUsage, ERROR_GEN_FAILURE, ERROR_GEN_FAILURE),
    FAILING(ComDBClaimPort, ERROR_GEN_FAILURE, ERROR_GEN_FAILURE),
    FAILING(ComDBReleasePort, ERROR_GEN_FAILURE, ERROR_GEN_FAILURE),
    FAILING(CreatePropertySheetPageW, nullptr, ERROR_NOT_ENOUGH_MEMORY),
    FAILING(LoadStringW, 0, ERROR_RESOURCE_NAME_NOT_FOUND),
};

decltype(&SetupDiGetDeviceInfoListDetailW) NextDetail = nullptr;
bool remote = false;

BOOL WINAPI DetailOfRemote(HDEVINFO set, SP_DEVINFO_LIST_DETAIL_DATA_W* detail) {
    const BOOL found = NextDetail(set, detail);
    if (found && remote) {
        detail->RemoteMachineHandle = set; // any value but null means remote
    }
    return found;
}

} // namespace

void AllowFaults(HMODULE library) {
    remote = false;
    if (void* const stood =
            Redirect(library, "SetupDiGetDeviceInfoListDetailW", reinterpret_cast<void*>(&DetailOfRemote))) {
        NextDetail = reinterpret_cast<decltype(NextDetail)>(stood);
    }
    for (const Operation& operation : operations) {
        *operation.calls_left = 0;
        if (void* const stood = Redirect(library, operation.name, operation.function)) {
            operation.keep(stood);
        }
    }
}

bool FailCall(const std::string& name, int count) {
    const auto found = std::find_if(std::begin(operations), std::end(operations),
                                    [&](const Operation& each) { return name == each.name; });
    if (found != std::end(operations)) {
        *found->calls_left = count;
    }
    return found != std::end(operations);
}

void PretendRemote() {
    remote = true;
}

} // namespace host
