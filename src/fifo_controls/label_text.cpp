#include "fifo_controls/label_text.h"

#include "reporting/module_entry.h"
#include "reporting/text_operations.h"

void _SetTextFromString(HWND control, UINT stringId, u32 value) {
    WCHAR format[ControlTextCapacity];
    WCHAR text[ControlTextCapacity];
    const bool loaded = LoadStringW(ModuleInstance, stringId, format, ARRAYSIZE(format)) != 0;
    FormatText(text, ARRAYSIZE(text), loaded ? format : TEXT("(%d)"), value);
    SetWindowTextW(control, text);
}

void _SetTextFromOwnFormat(HWND hDlg, int controlId, u32 value) {
    const HWND control = GetDlgItem(hDlg, controlId);
    WCHAR format[ControlTextCapacity] = {};
    WCHAR text[ControlTextCapacity];
    GetWindowTextW(control, format, ARRAYSIZE(format));
    FormatText(text, ARRAYSIZE(text), format, value);
    SetWindowTextW(control, text);
}
