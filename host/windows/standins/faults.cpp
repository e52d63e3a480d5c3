#include "host/windows/standins/faults.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "host/windows/import_table.h"

namespace host {
namespace {

bool fault = false;

// An operation that can be made to fail: what it gives then, and the error that it leaves.
template <class Function, int Place> struct Fault;
template <class Result, class... Arguments, int Place> struct Fault<Result(WINAPI*)(Arguments...), Place> {
    static inline Result(WINAPI* next)(Arguments...) = nullptr;
    static inline Result failure{};
    static inline DWORD error = 0;
    static inline bool armed = false;

    static Result WINAPI Call(Arguments... arguments) {
        if (armed) {
            armed = false;
            fault = true;
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
    bool* armed;
};

template <class Function, int Place, class Failure>
Operation Failing(const char* name, Function, Failure failure, DWORD error) {
    using Fault = Fault<Function, Place>;
    Fault::failure = failure;
    Fault::error = error;
    return {name, reinterpret_cast<void*>(&Fault::Call),
            [](void* next) { Fault::next = reinterpret_cast<Function>(next); }, &Fault::armed};
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
    FAILING(ComDBOpen, ERROR_ACCESS_DENIED, ERROR_ACCESS_DENIED),
    FAILING(ComDBGetCurrentPortUsage, ERROR_GEN_FAILURE, ERROR_GEN_FAILURE),
    FAILING(CreatePropertySheetPageW, nullptr, ERROR_NOT_ENOUGH_MEMORY),
    FAILING(LoadStringW, 0, ERROR_RESOURCE_NAME_NOT_FOUND),
};

} // namespace

void AllowFaults(HMODULE library) {
    for (const Operation& operation : operations) {
        *operation.armed = false;
        if (void* const stood = Redirect(library, operation.name, operation.function)) {
            operation.keep(stood);
        }
    }
}

bool FailNext(const std::string& name) {
    const auto found = std::find_if(std::begin(operations), std::end(operations),
                                    [&](const Operation& each) { return name == each.name; });
    if (found != std::end(operations)) {
        *found->armed = true;
    }
    return found != std::end(operations);
}

bool TakeFault() {
    return std::exchange(fault, false);
}

} // namespace host
