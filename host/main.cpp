// The device manager's stand-in: opens the property sheets of a machine's devices with the pages of the
// library and operates them by typed commands or a script.
#include <iostream>

#include <CLI/CLI.hpp>

#include "host/line/interpreter.h"
#include "host/line/tour.h"

int main(int argc, char** argv) {
    CLI::App app{
        "Opens the property sheets of a board and its ports, and operates them by commands: typed at a\n"
        "terminal, or from the standard input, one a line. The word help tells them."};
    std::string file;
    LANGID language = 0;
    app.add_option("machine", file, "registry export of the machine; without it, the sample machine");
    app.add_option("--language", language,
                   "language id of the user, such as 1031; without it, that of the locale");
    CLI11_PARSE(app, argc, argv);

    std::string error;
    const std::unique_ptr<host::World> world = host::OpenWorld(file, language, error);
    if (!world) {
        std::cerr << "kvrhost: " << error << '\n';
        return 2;
    }
    const std::unique_ptr<host::LineSource> console = host::OpenConsole();
    if (console->IsPerson()) {
        std::cout << (file.empty() ? "The sample machine" : file)
                  << ": devices lists what can be opened, help tells the commands.\n";
    }
    host::Interpreter interpreter(*world, *console, std::cout);
    int failed = interpreter.Run();
    if (!interpreter.had_input() && !console->IsPerson() && file.empty()) {
        const std::unique_ptr<host::LineSource> tour = host::TourLines();
        failed = host::Interpreter(*world, *tour, std::cout).Run();
    }
    return failed ? 1 : 0;
}
