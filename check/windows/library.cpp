#include <windows.h>

#include <bcrypt.h>

#include <cstdio>
#include <iterator>
#include <vector>

#include "check/windows/parts.h"
#include "version.h"

namespace check {
namespace {

std::string Sha256(const std::vector<char>& data) {
    BCRYPT_ALG_HANDLE algorithm = nullptr;
    BCRYPT_HASH_HANDLE hash = nullptr;
    UCHAR digest[32] = {};
    const bool made = BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) == 0 &&
                      BCryptCreateHash(algorithm, &hash, nullptr, 0, nullptr, 0, 0) == 0 &&
                      BCryptHashData(hash, reinterpret_cast<UCHAR*>(const_cast<char*>(data.data())),
                                     static_cast<ULONG>(data.size()), 0) == 0 &&
                      BCryptFinishHash(hash, digest, sizeof digest, 0) == 0;
    if (hash != nullptr) {
        BCryptDestroyHash(hash);
    }
    if (algorithm != nullptr) {
        BCryptCloseAlgorithmProvider(algorithm, 0);
    }
    std::string text;
    for (const UCHAR byte : digest) {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02x", byte);
        text += digits;
    }
    return made ? text : "not known";
}

// Whether it carries a signature. The system is not asked whether it trusts it: that may fetch certificates
// and leaves settings behind.
bool IsSigned(HMODULE library) {
    const BYTE* const image = reinterpret_cast<const BYTE*>(library);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(image);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(image + dos->e_lfanew);
    return headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_SECURITY].Size != 0;
}

std::string FileVersion(const std::wstring& file) {
    DWORD ignored = 0;
    std::vector<BYTE> block(GetFileVersionInfoSizeW(file.c_str(), &ignored));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT bytes = 0;
    if (block.empty() ||
        !GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(block.size()), block.data()) ||
        !VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &bytes) ||
        bytes < sizeof *fixed) {
        return "none";
    }
    return std::to_string(HIWORD(fixed->dwFileVersionMS)) + '.' +
           std::to_string(LOWORD(fixed->dwFileVersionMS)) + '.' +
           std::to_string(HIWORD(fixed->dwFileVersionLS)) + '.' +
           std::to_string(LOWORD(fixed->dwFileVersionLS));
}

constexpr const char* exports[] = {"DllMain", "KvrBoardPropPageProvider", "KvrUartPropPageProvider"};

// The names in the order of their ordinals, as the loader finds them.
std::string Exports(HMODULE library) {
    std::string seen;
    for (WORD ordinal = 1; ordinal <= std::size(exports); ++ordinal) {
        const FARPROC named = GetProcAddress(library, exports[ordinal - 1]);
        const FARPROC numbered = GetProcAddress(library, reinterpret_cast<LPCSTR>(std::size_t{ordinal}));
        if (named != nullptr && named == numbered) {
            seen += (seen.empty() ? "" : " ") + std::to_string(ordinal) + ' ' + exports[ordinal - 1];
        }
    }
    return seen;
}

} // namespace

HMODULE LookAtLibrary(const std::wstring& folder, Report& report) {
    const auto note = [&](std::string name, std::string expected, std::string seen) {
        report.facts.push_back({std::move(name), std::move(expected), std::move(seen)});
    };
    const std::wstring file = folder + L"\\kvrpagex64.dll";
    const HMODULE library = LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    note("library.loaded", "yes", library != nullptr ? "yes" : "error " + std::to_string(GetLastError()));
    if (library == nullptr) {
        return nullptr;
    }
    std::wstring path(32768, 0);
    path.resize(GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size())));
    note("library.from_this_folder", "yes", lstrcmpiW(path.c_str(), file.c_str()) == 0 ? "yes" : "no");
    note("library.exports", "1 DllMain 2 KvrBoardPropPageProvider 3 KvrUartPropPageProvider",
         Exports(library));
    note("library.version", VERSION_TEXT, FileVersion(file));
    note("library.signed", "-", IsSigned(library) ? "yes" : "no");
    const std::vector<char> bytes = [&] {
        const HANDLE opened =
            CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        std::vector<char> read;
        LARGE_INTEGER size{};
        if (opened != INVALID_HANDLE_VALUE && GetFileSizeEx(opened, &size) && size.QuadPart < (1 << 26)) {
            read.resize(static_cast<std::size_t>(size.QuadPart));
            DWORD count = 0;
            if (!ReadFile(opened, read.data(), static_cast<DWORD>(read.size()), &count, nullptr)) {
                count = 0;
            }
            read.resize(count);
        }
        if (opened != INVALID_HANDLE_VALUE) {
            CloseHandle(opened);
        }
        return read;
    }();
    note("about.library_sha256", "-", bytes.empty() ? "not known" : Sha256(bytes));
    return library;
}

} // namespace check
