// Who is at work, what was done, what must fail, and what is open.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "simulated/stage.h"

namespace sim {
namespace {

constexpr std::string_view operations[] = {"CheckDlgButton",
                                           "ComDBClaimPort",
                                           "ComDBClose",
                                           "ComDBGetCurrentPortUsage",
                                           "ComDBOpen",
                                           "ComDBReleasePort",
                                           "CreatePropertySheetPageW",
                                           "DefineDosDeviceW",
                                           "DestroyPropertySheetPage",
                                           "DialogBoxParamW",
                                           "DisableThreadLibraryCalls",
                                           "EnableWindow",
                                           "EndDialog",
                                           "GetDlgCtrlID",
                                           "GetDlgItem",
                                           "GetLocaleInfoW",
                                           "GetParent",
                                           "GetProfileStringW",
                                           "GetWindowLongPtrW",
                                           "GetWindowTextLengthW",
                                           "GetWindowTextW",
                                           "IsDlgButtonChecked",
                                           "LoadStringW",
                                           "LocalAlloc",
                                           "LocalFree",
                                           "MessageBoxW",
                                           "QueryDosDeviceW",
                                           "RegCloseKey",
                                           "RegEnumValueW",
                                           "RegOpenKeyExW",
                                           "RegQueryValueExW",
                                           "RegSetValueExW",
                                           "SendDlgItemMessageW",
                                           "SendMessageW",
                                           "SendNotifyMessageW",
                                           "SetFocus",
                                           "SetWindowLongPtrW",
                                           "SetWindowTextW",
                                           "SetupDiCallClassInstaller",
                                           "SetupDiDestroyDeviceInfoList",
                                           "SetupDiEnumDeviceInterfaces",
                                           "SetupDiGetClassDevsW",
                                           "SetupDiGetDeviceInfoListDetailW",
                                           "SetupDiGetDeviceInstallParamsW",
                                           "SetupDiGetDeviceInterfaceDetailW",
                                           "SetupDiGetDeviceRegistryPropertyW",
                                           "SetupDiOpenDevRegKey",
                                           "SetupDiSetClassInstallParamsW",
                                           "SetupDiSetDeviceInstallParamsW",
                                           "SetupDiSetDeviceRegistryPropertyW",
                                           "WriteProfileStringW"};

Machine* current = nullptr;
bool operator_at_work = false;

bool IsJournaled(Reach reach) {
    return reach == Reach::Write || Current().journal_reads;
}

// Counts the operation; true if its place among all, or among those of its name, makes it fail.
bool FailsByCount(FaultPlan& faults, std::string_view name) {
    const std::size_t of_its_name = ++faults.count_by_name[name];
    if (of_its_name == 1 && !std::ranges::binary_search(operations, name)) {
        Misuse(std::string(name) + " is missing in the list of operations");
    }
    ++faults.count;
    return std::ranges::find(faults.at, faults.count) != faults.at.end() ||
           std::ranges::any_of(faults.at_call, [&](const auto& rule) {
               return rule.first == name && (rule.second == 0 || rule.second == of_its_name);
           });
}

} // namespace

Machine& Current() {
    if (current == nullptr) {
        std::fputs("no machine is current\n", stderr);
        std::abort();
    }
    return *current;
}

std::span<const std::string_view> Operations() {
    return operations;
}

Scope::Scope(Machine& machine) : before_(std::exchange(current, &machine)) {
    SetLastError(ERROR_SUCCESS);
}
Scope::~Scope() {
    current = before_;
}

OperatorAtWork::OperatorAtWork() : before_(std::exchange(operator_at_work, true)) {}
OperatorAtWork::~OperatorAtWork() {
    operator_at_work = before_;
}
LogicAtWork::LogicAtWork() : before_(std::exchange(operator_at_work, false)) {}
LogicAtWork::~LogicAtWork() {
    operator_at_work = before_;
}

bool DetailIsRead(Reach reach) {
    return !operator_at_work && (IsJournaled(reach) || Current().faults.when);
}

bool Operation(Reach reach, std::string_view name, std::string detail) {
    if (operator_at_work) {
        return false;
    }
    Machine& machine = Current();
    bool fails = FailsByCount(machine.faults, name);
    if (DetailIsRead(reach)) {
        JournalEntry entry{reach, name, std::move(detail), fails};
        if (machine.faults.when) {
            const OperatorAtWork looking_around;
            fails = machine.faults.when(entry) || fails;
            entry.failed = fails;
        }
        if (IsJournaled(reach)) {
            machine.journal.push_back(std::move(entry));
        }
    }
    machine.faults.hits += fails;
    return fails;
}

void Opened(std::string_view kind) {
    ++Current().open[std::string(kind)];
}

void Closed(std::string_view kind) {
    auto& open = Current().open;
    const auto count = open.find(kind);
    if (count != open.end() && --count->second == 0) {
        open.erase(count);
    }
}

void Misuse(std::string line) {
    Current().misuse.push_back(std::move(line));
}

void MisuseOfHandle(std::string_view operation, std::string_view kind, const void* handle) {
    char number[20];
    std::snprintf(number, sizeof number, "%p", handle);
    Misuse(std::string(operation) + ": no open " + std::string(kind) + " " + number);
}

ULONG_PTR NextHandle() {
    static ULONG_PTR last = 0x1000;
    return last += 4;
}

} // namespace sim
