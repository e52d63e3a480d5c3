// Measures the dialogs of the library in the given languages on real windows. Each finding is a line, and the
// last line counts what was measured.
//
//     kvrfit list
//     kvrfit LANGUAGE...
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "check/windows/dialog_fit.h"
#include "check/windows/run_time_texts.h"

int main(int argc, char** argv) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES | ICC_LISTVIEW_CLASSES};
    SetProcessDPIAware();
    InitCommonControlsEx(&classes);
    SetConsoleOutputCP(CP_UTF8);
    library = LoadLibraryW(TEXT("kvrpagex64.dll"));
    if (library == nullptr) {
        std::printf("kvrpagex64.dll can't be loaded\n");
        return 2;
    }
    if (argc > 1 && std::string_view(argv[1]) == "list") {
        for (const LANGID language : Languages()) {
            std::printf("%u\n", language);
        }
        return 0;
    }
    Fit fit;
    for (int i = 1; i < argc; ++i) {
        const LANGID language = static_cast<LANGID>(std::atoi(argv[i]));
        for (const WORD id : all_dialogs) {
            if (const HWND dialog = CreatePlainDialog(language, id)) {
                MeasureDialog(dialog, language, id, fit);
                DestroyWindow(dialog);
            } else {
                std::printf("language %u, dialog %u: can't be created\n", language, id);
                ++fit.failures;
            }
        }
    }
    for (const std::string& line : fit.lines) {
        std::printf("%s\n", line.c_str());
    }
    std::printf("%d dialogs at %d dots per inch, %d texts measured, %d failures\n", fit.dialogs,
                ScreenScale(), fit.texts, fit.failures);
    return fit.failures == 0 && fit.dialogs != 0 ? 0 : 1;
}
