// The standard input of a program without live windows that need attention: the console edits the line.
#include <windows.h>

#include <io.h>

#include <iostream>

#include "host/line/line_source.h"

namespace host {
namespace {

class Console : public LineSource {
public:
    std::optional<std::string> Next(const std::string& prompt) override {
        std::cout << prompt << std::flush;
        return lines_->Next(prompt);
    }
    bool IsPerson() const override { return true; }

private:
    std::unique_ptr<LineSource> lines_ = LinesOf(std::cin);
};

} // namespace

std::unique_ptr<LineSource> OpenConsole() {
    if (_isatty(_fileno(stdin)) && _isatty(_fileno(stdout))) {
        return std::make_unique<Console>();
    }
    return LinesOf(std::cin);
}

} // namespace host
