#include "page_parts/label_text.h"

#include "reporting/module_entry.h"
#include "reporting/text_operations.h"
#include "reporting/trace.h"

void _SetTextFromString(HWND control, UINT stringId, u32 value) {
    TraceScope trace;
    WCHAR format[ControlTextCapacity];
    WCHAR text[ControlTextCapacity];
    if (LoadStringW(ModuleInstance, stringId, format, ARRAYSIZE(format)) == 0) {
        CopyText(format, ARRAYSIZE(format), TEXT("(%d)"));
    }
    FormatText(text, ARRAYSIZE(text), format, value);
    SetWindowTextW(control, text);
}

void _SetTextFromOwnFormat(HWND hDlg, int controlId, u32 value) {
    TraceScope trace;
    const HWND control = GetDlgItem(hDlg, controlId);
    WCHAR format[ControlTextCapacity];
    WCHAR text[ControlTextCapacity];
    if (GetWindowTextW(control, format, ARRAYSIZE(format)) != 0) {
        FormatText(text, ARRAYSIZE(text), format, value);
        SetWindowTextW(control, text);
    }
}
