#include "check/windows/journal.h"

#include <shlobj.h>

namespace check {

Journal::Journal() {
    WCHAR folder[MAX_PATH] = {};
    if (SHGetFolderPathW(nullptr, CSIDL_COMMON_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder) == S_OK) {
        path_ = std::wstring(folder) + L"\\kvrcheck.journal";
    }
}

Journal::~Journal() {
    if (file_ != INVALID_HANDLE_VALUE) {
        CloseHandle(file_);
    }
}

bool Journal::ReadEarlier(std::vector<std::string>& lines) const {
    constexpr DWORD longest = 1 << 16;
    const HANDLE opened =
        CreateFileW(path_.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        return GetLastError() == ERROR_FILE_NOT_FOUND;
    }
    std::string text(longest, 0);
    DWORD bytes = 0;
    const bool read = ReadFile(opened, text.data(), longest, &bytes, nullptr) != FALSE && bytes < longest;
    CloseHandle(opened);
    text.resize(bytes);
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = text.find('\n', begin)) != std::string::npos; begin = end + 1) {
        lines.push_back(text.substr(begin, end - begin));
    }
    return read;
}

bool Journal::Begin() {
    file_ = CreateFileW(path_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW, 0, nullptr);
    return file_ != INVALID_HANDLE_VALUE;
}

bool Journal::Note(const std::string& line) {
    const std::string text = line + '\n';
    DWORD written = 0;
    size_before_ = size_;
    if (!WriteFile(file_, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) ||
        written != text.size() || !FlushFileBuffers(file_)) {
        CutTo(size_);
        return false;
    }
    size_ += written;
    return true;
}

void Journal::Forget() {
    if (CutTo(size_before_)) {
        size_ = size_before_;
    }
}

bool Journal::CutTo(long long size) {
    LARGE_INTEGER place{};
    place.QuadPart = size;
    return SetFilePointerEx(file_, place, nullptr, FILE_BEGIN) && SetEndOfFile(file_) &&
           FlushFileBuffers(file_);
}

void Journal::Delete() {
    if (file_ != INVALID_HANDLE_VALUE) {
        CloseHandle(file_);
        file_ = INVALID_HANDLE_VALUE;
    }
    DeleteFileW(path_.c_str());
}

} // namespace check
