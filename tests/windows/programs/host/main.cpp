// The host of the tests: the one that ships, on Wine in the place of Windows, with the failures that a script
// asks for.
#include <windows.h>

#include <algorithm>
#include <iostream>
#include <sstream>

#include "host/full_screen/start.h"
#include "host/program.h"
#include "tests/windows/wine/faults.h"

namespace {

using host::LineSource, host::OpenConsole, host::FailCall, host::PretendRemote;

// A script can ask for failures: "# fail: DefineDosDeviceW 2" makes the second call of that operation from
// there on fail, "# remote" makes its devices belong to another machine.
class Script : public LineSource {
public:
    std::optional<std::string> Next(const std::string& prompt) override {
        std::optional<std::string> line = lines_->Next(prompt);
        if (line && line->starts_with("# fail: ")) {
            std::istringstream words(line->substr(8));
            std::string operation;
            int count = 1;
            words >> operation >> count;
            if (!FailCall(operation, std::max(count, 1))) {
                std::cerr << "kvrhost: nothing makes " << operation << " fail\n";
            }
        } else if (line == "# remote") {
            PretendRemote();
        }
        return line;
    }
    bool IsPerson() const override { return lines_->IsPerson(); }

private:
    std::unique_ptr<LineSource> lines_ = OpenConsole();
};

// The desktop of a busy machine may come up late. A program that began before it never gets a window.
constexpr int no_desktop = 75; // the exit code: start it again

bool HasDesktop() {
    return DestroyWindow(CreateWindowExW(0, TEXT("STATIC"), nullptr, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                         nullptr, nullptr)) != FALSE;
}

} // namespace

int main(int argc, char** argv) {
    if (!HasDesktop()) {
        return no_desktop;
    }
    host::OpenOutput();
    return host::RunProgram(
        argc, argv, [] { return std::unique_ptr<LineSource>(std::make_unique<Script>()); },
        host::OpenFullScreen);
}
