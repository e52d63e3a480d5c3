#include "host/full_screen/start.h"
#include "host/program.h"

int main(int argc, char** argv) {
    host::OpenOutput();
    return host::RunProgram(argc, argv, host::OpenConsole, host::OpenFullScreen);
}
