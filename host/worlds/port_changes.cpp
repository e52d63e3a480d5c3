#include "host/worlds/port_changes.h"

#include "host/text.h"
#include "platform/platform.h"

namespace host {
namespace {

bool Told(const char* operation, LONG result, std::string& error) {
    if (result != ERROR_SUCCESS) {
        error = std::string{operation} + " has failed with error " + std::to_string(result);
    }
    return result == ERROR_SUCCESS;
}

template <class Change> bool ChangeDatabase(const char* operation, const Change& change, std::string& error) {
    HCOMDB database = nullptr;
    if (!Told("opening the COM port database", ComDBOpen(&database), error)) {
        return false;
    }
    const bool changed = Told(operation, change(database), error);
    ComDBClose(database);
    return changed;
}

} // namespace

bool ReleaseNumber(unsigned long number, std::string& error) {
    return ChangeDatabase(
        "releasing the number",
        [&](HCOMDB database) { return ComDBReleasePort(database, static_cast<DWORD>(number)); }, error);
}

bool ClaimNumber(unsigned long number, std::string& error) {
    return ChangeDatabase(
        "claiming the number",
        [&](HCOMDB database) { return ComDBClaimPort(database, static_cast<DWORD>(number), FALSE, nullptr); },
        error);
}

bool ForgetLine(const std::string& key, std::string& error) {
    const bool deleted = WriteProfileStringW(TEXT("Ports"), FromUtf8(key).c_str(), nullptr) != FALSE;
    return Told("deleting the line", deleted ? ERROR_SUCCESS : static_cast<LONG>(GetLastError()), error);
}

} // namespace host
