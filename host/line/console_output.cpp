// What a Windows console is given and gives, in UTF-8.
#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include "host/line/line_source.h"

namespace host {
namespace {

// The console uses UTF-8 while the program runs, and is left as it was found.
class Utf8Console {
public:
    Utf8Console() {
        SetConsoleCP(CP_UTF8);
        SetConsoleOutputCP(CP_UTF8);
    }
    ~Utf8Console() {
        SetConsoleCP(input_before_);
        SetConsoleOutputCP(output_before_);
    }
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;

private:
    const UINT input_before_ = GetConsoleCP();
    const UINT output_before_ = GetConsoleOutputCP();
};

} // namespace

// Lines end as they do on other systems.
void OpenOutput() {
    static const Utf8Console utf8;
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}

} // namespace host
