// The COM port database.
#include <algorithm>

#include "simulated/stage.h"

namespace {

constexpr DWORD port_count = 8 * sim::PortUsage{}.size();

struct Database {};
sim::Handles<HCOMDB, Database> databases("database");

LONG Answer(LONG error) {
    SetLastError(static_cast<DWORD>(error));
    return error;
}

// The common start of every call on an open database.
template <class Detail>
LONG Enter(sim::Reach reach, std::string_view operation, HCOMDB database, const Detail& detail) {
    const bool open = databases.Find(database, operation) != nullptr;
    if (sim::Operation(reach, operation, detail)) {
        return Answer(ERROR_GEN_FAILURE);
    }
    return open ? ERROR_SUCCESS : Answer(ERROR_INVALID_PARAMETER);
}

} // namespace

LONG WINAPI ComDBOpen(PHCOMDB database) {
    const bool fails = sim::Operation(sim::Reach::Read, __func__);
    sim::FaultPlan& faults = sim::Current().faults;
    const auto planned = faults.databases.find(faults.count_by_name[__func__]);
    *database = planned != faults.databases.end() ? planned->second
                : fails                           ? HCOMDB_INVALID_HANDLE_VALUE
                                                  : databases.Open({});
    return fails ? Answer(ERROR_ACCESS_DENIED) : ERROR_SUCCESS;
}

LONG WINAPI ComDBClose(HCOMDB database) {
    const bool fails = sim::Operation(sim::Reach::Read, __func__);
    // Closing the handle that a failed open left is allowed: it is refused and does no harm.
    if (database == HCOMDB_INVALID_HANDLE_VALUE || !databases.Close(database, __func__)) {
        return Answer(ERROR_INVALID_PARAMETER);
    }
    return fails ? Answer(ERROR_GEN_FAILURE) : ERROR_SUCCESS;
}

LONG WINAPI ComDBGetCurrentPortUsage(HCOMDB database, BYTE* buffer, DWORD bytes, DWORD report,
                                     LPDWORD count) {
    if (const LONG error = Enter(sim::Reach::Read, __func__, database, [] { return ""; })) {
        return error;
    }
    if (report != CDB_REPORT_BITS || (buffer == nullptr && count == nullptr)) {
        sim::Misuse("ComDBGetCurrentPortUsage: only the report of bits is simulated");
        return Answer(ERROR_INVALID_PARAMETER);
    }
    const sim::PortUsage& usage = sim::Current().port_usage;
    if (buffer != nullptr) {
        std::copy_n(usage.begin(), std::min<std::size_t>(bytes, usage.size()), buffer);
    }
    if (count != nullptr) {
        *count = buffer != nullptr ? std::min(port_count, 8 * bytes) : port_count;
    }
    return ERROR_SUCCESS;
}

LONG WINAPI ComDBClaimPort(HCOMDB database, DWORD number, BOOL force, BOOL* forced) {
    if (const LONG error = Enter(sim::Reach::Write, __func__, database,
                                 [&] { return std::to_string(number) + (force ? " force" : ""); })) {
        return error;
    }
    if (number < 1 || number > port_count) {
        return Answer(ERROR_INVALID_PARAMETER);
    }
    const bool claimed = sim::IsClaimed(sim::Current().port_usage, number);
    if (claimed && !force) {
        return Answer(ERROR_SHARING_VIOLATION);
    }
    if (forced != nullptr) {
        *forced = claimed;
    }
    sim::SetClaimed(sim::Current().port_usage, number, true);
    return ERROR_SUCCESS;
}

LONG WINAPI ComDBReleasePort(HCOMDB database, DWORD number) {
    if (const LONG error =
            Enter(sim::Reach::Write, __func__, database, [&] { return std::to_string(number); })) {
        return error;
    }
    if (number < 1 || number > port_count) {
        return Answer(ERROR_INVALID_PARAMETER);
    }
    sim::SetClaimed(sim::Current().port_usage, number, false);
    return ERROR_SUCCESS;
}
