#include "host/line/program.h"

int main(int argc, char** argv) {
    return host::RunProgram(argc, argv, host::OpenConsole);
}
