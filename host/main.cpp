#include "host/full_screen/start.h"
#include "host/line/program.h"

int main(int argc, char** argv) {
    host::OpenOutput();
    return host::RunProgram(argc, argv, host::OpenConsole, host::RunFullScreen);
}
