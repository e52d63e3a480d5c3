// Looks at the library on the Windows that it is started on, and writes what it has seen to kvrcheck.txt
// beside itself. It needs no rights and changes nothing else, unless it is told to make devices.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "check/windows/devices.h"
#include "check/windows/parts.h"
#include "check/windows/run_time_texts.h"
#include "version.h"

namespace {

bool Write(const std::wstring& file, const std::string& text) {
    const HANDLE opened = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        return false;
    }
    DWORD written = 0;
    const bool whole =
        WriteFile(opened, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != FALSE &&
        written == text.size();
    return CloseHandle(opened) != FALSE && whole;
}

} // namespace

int main(int argc, char** argv) {
    int times = 1000; // that a sheet is opened and closed
    bool devices = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view option = argv[i];
        if (option == "--devices") {
            devices = true;
        } else if (option == "--times" && i + 1 < argc) {
            times = std::atoi(argv[++i]);
        } else {
            std::printf("kvrcheck %s [--devices] [--times N] looks at kvrpagex64.dll beside it and writes\n"
                        "kvrcheck.txt. With --devices, as administrator, it also makes two boards for a "
                        "while, after\n"
                        "a question, and opens their pages. N, else 1000, is how often it opens a sheet.\n",
                        VERSION_TEXT);
            return 2;
        }
    }
    const std::wstring folder = check::OwnFolder(), file = folder + L"\\kvrcheck.txt";
    check::Report report;
    check::TakeBackEarlier(report);
    const bool may_make_devices = devices && check::MayMakeDevices();
    bool written = true;
    // Written after each part: if one ends the program, what was seen before it remains.
    const auto save = [&] { written = Write(file, TextOf(report)) && written; };
    const auto look = [&](const char* what, const auto& part) {
        std::printf("%s\n", what);
        std::fflush(stdout);
        part();
        save();
    };
    look("This Windows", [&] { check::LookAtMachine(report); });
    look("The library", [&] { library = check::LookAtLibrary(folder, report); });
    if (library != nullptr) {
        if (devices) {
            look("Two boards of its own",
                 [&] { check::LookAtDevices(may_make_devices, times, report, save); });
        }
        look("Its texts in 30 languages", [&] { check::LookAtStrings(report); });
        look("Its 120 dialogs, twice", [&] { check::LookAtDialogs(report); });
        look("Requests that it must refuse", [&] { check::LookAtRequests(report); });
        look("A sheet, many times", [&] { check::LookAtSheets(times, report); });
        FreeLibrary(library);
    }
    report.whole = true;
    save();
    std::printf("%s\n%s\n", check::ClosingLine(report).c_str(),
                written ? "Please send kvrcheck.txt back." : "kvrcheck.txt can't be written here.");
    for (const check::Fact& fact : report.facts) {
        if (VerdictOf(fact) == check::Verdict::NotHeld) {
            return 1;
        }
    }
    return written ? 0 : 2;
}
