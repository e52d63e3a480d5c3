#include "check/comparison.h"

// WINE_REPORT is the path of the file.
asm(R"(
    .section .rodata
wine_report_begin:
    .incbin ")" WINE_REPORT R"("
wine_report_end:
    .text
)");
extern const char wine_report_begin[], wine_report_end[];

std::string_view check::WineReport() {
    return {wine_report_begin, wine_report_end};
}
