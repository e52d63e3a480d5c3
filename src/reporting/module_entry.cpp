#include "reporting/module_entry.h"

#include "reporting/trace.h"
#include "resources/resource_ids.h"

HINSTANCE ModuleInstance;
WCHAR OutOfMemoryText[200];
WCHAR OutOfMemoryCaption[30];

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    constexpr const char* szDebugTag = "0911 - 1_0";
    if (reason == DLL_PROCESS_ATTACH) {
        TraceOut("LOAD, DBGSTR:%s\n", szDebugTag);
        ModuleInstance = instance;
        // None of these stops the loading: calls for threads would only be ignored, and a box for a lack of
        // memory without its text is better than no page.
        DisableThreadLibraryCalls(instance);
        LoadStringW(instance, IDS_OUT_OF_MEMORY, OutOfMemoryText, ARRAYSIZE(OutOfMemoryText));
        LoadStringW(instance, IDS_OUT_OF_MEMORY_CAPTION, OutOfMemoryCaption, ARRAYSIZE(OutOfMemoryCaption));
    } else if (reason == DLL_PROCESS_DETACH) {
        TraceOut("UNLOAD, DBGSTR:%s\n", szDebugTag);
    }
    return TRUE;
}
