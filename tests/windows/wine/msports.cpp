// Replaces the COM port database where the system has none: the same registry value, and the five operations
// on it that a rename needs. A number outside the database is not valid.
#include "platform/platform.h"
#include "platform/port_usage.h"

#include <algorithm>
#include <vector>

namespace {

constexpr const WCHAR* arbiter_key = TEXT("SYSTEM\\CurrentControlSet\\Control\\COM Name Arbiter");
constexpr const WCHAR* usage_value = TEXT("ComDB");

// One bit per number, for at least as many as every database has. No bytes if it can't be read.
std::vector<BYTE> Read(HKEY key) {
    std::vector<BYTE> usage(COMDB_MAX_PORTS_ARBITRATED / 8);
    DWORD type = 0, bytes = static_cast<DWORD>(usage.size());
    const LSTATUS status = RegQueryValueExW(key, usage_value, nullptr, &type, usage.data(), &bytes);
    if (status == ERROR_FILE_NOT_FOUND) {
        bytes = 0;
    } else if (status != ERROR_SUCCESS || type != REG_BINARY) {
        return {};
    }
    usage.resize(std::max<std::size_t>(bytes, COMDB_MIN_PORTS_ARBITRATED / 8));
    return usage;
}

HKEY Key(HCOMDB database) {
    return reinterpret_cast<HKEY>(database);
}

struct Place {
    std::size_t byte;
    BYTE mask;
};

// Reads the usage and finds the number in it. False if the number is outside the database.
bool Find(HCOMDB database, DWORD number, std::vector<BYTE>& usage, Place& place) {
    usage = Read(Key(database));
    if (number == 0 || number > usage.size() * 8) {
        return false;
    }
    place = {PortUsageByte(number), PortUsageMask(number)};
    return true;
}

LONG Write(HCOMDB database, const std::vector<BYTE>& usage) {
    const LSTATUS status = RegSetValueExW(Key(database), usage_value, 0, REG_BINARY, usage.data(),
                                          static_cast<DWORD>(usage.size()));
    return status == ERROR_SUCCESS ? ERROR_SUCCESS : ERROR_CANTWRITE;
}

} // namespace

extern "C" {

LONG WINAPI ComDBOpen(HCOMDB* database) {
    if (database == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    HKEY key = nullptr;
    const LSTATUS status =
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, arbiter_key, 0, nullptr, REG_OPTION_NON_VOLATILE,
                        KEY_READ | KEY_WRITE, nullptr, &key, nullptr);
    *database = status == ERROR_SUCCESS ? reinterpret_cast<HCOMDB>(key) : HCOMDB_INVALID_HANDLE_VALUE;
    return status == ERROR_SUCCESS ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

LONG WINAPI ComDBClose(HCOMDB database) {
    return RegCloseKey(Key(database)) == ERROR_SUCCESS ? ERROR_SUCCESS : ERROR_INVALID_PARAMETER;
}

LONG WINAPI ComDBGetCurrentPortUsage(HCOMDB database, PBYTE buffer, DWORD bytes, DWORD reportType,
                                     LPDWORD ports) {
    const std::vector<BYTE> usage = Read(Key(database));
    if (usage.empty() || (buffer == nullptr && ports == nullptr) || reportType > CDB_REPORT_BYTES) {
        return ERROR_INVALID_PARAMETER;
    }
    const std::size_t all = usage.size() * 8;
    std::size_t reported = all;
    if (buffer != nullptr) {
        reported = std::min<std::size_t>(all, reportType == CDB_REPORT_BITS ? std::size_t{bytes} * 8 : bytes);
        for (std::size_t i = 0; i < reported; ++i) {
            if (reportType == CDB_REPORT_BYTES) {
                buffer[i] = IsPortClaimed(usage.data(), static_cast<u32>(i + 1));
            } else if (i % 8 == 0) {
                buffer[i / 8] = usage[i / 8];
            }
        }
    }
    if (ports != nullptr) {
        *ports = static_cast<DWORD>(reported);
    }
    return ERROR_SUCCESS;
}

LONG WINAPI ComDBClaimPort(HCOMDB database, DWORD number, BOOL forceClaim, PBOOL forced) {
    std::vector<BYTE> usage;
    Place place{};
    if (!Find(database, number, usage, place)) {
        return ERROR_INVALID_PARAMETER;
    }
    const bool claimed = (usage[place.byte] & place.mask) != 0;
    if (forced != nullptr) {
        *forced = claimed && forceClaim;
    }
    if (claimed) {
        return forceClaim ? ERROR_SUCCESS : ERROR_SHARING_VIOLATION;
    }
    usage[place.byte] |= place.mask;
    return Write(database, usage);
}

LONG WINAPI ComDBReleasePort(HCOMDB database, DWORD number) {
    std::vector<BYTE> usage;
    Place place{};
    if (!Find(database, number, usage, place)) {
        return ERROR_INVALID_PARAMETER;
    }
    usage[place.byte] &= static_cast<BYTE>(~place.mask);
    return Write(database, usage);
}

} // extern "C"
