// Any bytes as a settings line from the profile: the five fields that are read are in range, and the line
// composed from them reads back to the same fields.
#include <cstdlib>
#include <cstring>

#include "uart_page/settings_line.h"

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

PortSettings Read(WCHAR (&line)[SettingsLineCapacity]) {
    TrimBlanks(line);
    const WCHAR* baud_text = nullptr;
    const PortSettings read = ParseSettingsLine(line, baud_text);
    Require(baud_text >= line && baud_text < line + SettingsLineCapacity);
    Require(read.ParityIndex <= 4 && read.DataBitsIndex <= 4);
    Require(read.StopBitsIndex <= 2 && read.FlowControlIndex <= 2);
    return read;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* data, SIZE_T size) {
    WCHAR line[SettingsLineCapacity] = {};
    std::memcpy(line, data, size < sizeof line - sizeof(WCHAR) ? size : sizeof line - sizeof(WCHAR));
    PortSettings read = Read(line);

    WCHAR composed[SettingsLineCapacity] = TEXT("9600");
    read.BaudRate = 9600;
    ComposeSettingsLine(composed, SettingsLineCapacity, read);
    Require(SamePortSettings(Read(composed), read));
    return 0;
}
