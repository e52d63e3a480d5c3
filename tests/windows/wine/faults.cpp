#include "tests/windows/wine/faults.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string_view>

#include "check/windows/software_device_api.h"
#include "host/worlds/windows/import_table.h"
#include "host/worlds/windows/observers.h"

namespace host {
namespace {

// The fate of a call that has been counted down to.
struct Doom {
    int calls_left = 0; // until that one; 0 for none
    Fate fate = Fate::Fails;
};

[[noreturn]] void EndProcess() {
    constexpr UINT ended = 9;
    TerminateProcess(GetCurrentProcess(), ended);
    std::abort();
}

// An operation that can be made to fail: its result then, and the error that it leaves.
template <class Function, int Place> struct Fault;
template <class Result, class... Arguments, int Place> struct Fault<Result(WINAPI*)(Arguments...), Place> {
    static inline Result(WINAPI* next)(Arguments...) = nullptr;
    static inline Result failure{};
    static inline DWORD error = 0;
    static inline Doom doom;

    static Result WINAPI Call(Arguments... arguments) {
        if (doom.calls_left == 0 || --doom.calls_left != 0) {
            return next(arguments...);
        }
        if (doom.fate == Fate::Fails) {
            NoteFailure();
            SetLastError(error);
            return failure;
        }
        if (doom.fate == Fate::EndsAfter) {
            next(arguments...);
        }
        EndProcess();
    }
};

struct Operation {
    const char* name;
    void* function;
    void (*keep)(void* next);
    Doom* doom;
};

template <class Function, int Place, class Failure>
Operation Failing(const char* name, Failure failure, DWORD error) {
    using Fault = Fault<Function, Place>;
    Fault::failure = failure;
    Fault::error = error;
    return {name, reinterpret_cast<void*>(&Fault::Call),
            [](void* next) { Fault::next = reinterpret_cast<Function>(next); }, &Fault::doom};
}
#define FAILING(function, failure, error) Failing<decltype(&::function), __LINE__>(#function, failure, error)

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
    FAILING(WriteFile, FALSE, ERROR_DISK_FULL),
    FAILING(DeleteFileW, FALSE, ERROR_ACCESS_DENIED),
    FAILING(RegDeleteValueW, ERROR_ACCESS_DENIED, 0),
    FAILING(SetupDiCreateDevRegKeyW, static_cast<HKEY>(INVALID_HANDLE_VALUE), ERROR_GEN_FAILURE),
    FAILING(SwDeviceCreate, E_FAIL, 0),
    FAILING(SwDeviceInterfaceRegister, E_FAIL, 0),
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

const Operation* Find(std::string_view name) {
    const auto found = std::ranges::find(operations, name, &Operation::name);
    return found != std::end(operations) ? &*found : nullptr;
}

// A program may also find an operation at run time.
FARPROC WINAPI FindWithFaults(HMODULE module, LPCSTR name) {
    const FARPROC stood = GetProcAddress(module, name);
    const Operation* const found = stood == nullptr || IS_INTRESOURCE(name) ? nullptr : Find(name);
    if (found == nullptr) {
        return stood;
    }
    found->keep(reinterpret_cast<void*>(stood));
    return reinterpret_cast<FARPROC>(found->function);
}

} // namespace

void AllowFaults(HMODULE module) {
    if (void* const stood =
            Redirect(module, "SetupDiGetDeviceInfoListDetailW", reinterpret_cast<void*>(&DetailOfRemote))) {
        NextDetail = reinterpret_cast<decltype(NextDetail)>(stood);
    }
    Redirect(module, "GetProcAddress", reinterpret_cast<void*>(&FindWithFaults));
    for (const Operation& operation : operations) {
        if (void* const stood = Redirect(module, operation.name, operation.function)) {
            operation.keep(stood);
        }
    }
}

bool FailCall(const std::string& name, int count, Fate fate) {
    const Operation* const found = Find(name);
    if (found != nullptr) {
        *found->doom = {count, fate};
    }
    return found != nullptr;
}

void PretendRemote() {
    remote = true;
}

} // namespace host
