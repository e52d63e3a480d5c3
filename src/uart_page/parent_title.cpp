#include "uart_page/parent_title.h"

#include "reporting/text_operations.h"
#include "reporting/trace.h"
#include "uart_page/settings_line.h"

namespace {

WCHAR* AllocateText(u32 capacity) {
    return static_cast<WCHAR*>(LocalAlloc(LPTR, capacity * sizeof(WCHAR)));
}

// `title`, of `capacity` units, has the old name at `place`.
void SetTitleWith(HWND hWindow, WCHAR* title, u32 capacity, WCHAR* place, const WCHAR* oldName,
                  const WCHAR* newName) {
    const u32 oldLength = static_cast<u32>(lstrlenW(oldName));
    const u32 newLength = static_cast<u32>(lstrlenW(newName));
    const u32 newCapacity = capacity + (newLength > oldLength ? newLength - oldLength : 0);
    WCHAR* newTitle = AllocateText(newCapacity);
    if (newTitle == nullptr) {
        return;
    }
    *place = 0;
    CopyText(newTitle, newCapacity, title);
    AppendText(newTitle, newCapacity, newName);
    AppendText(newTitle, newCapacity, place + oldLength);
    SetWindowTextW(hWindow, newTitle);
    LocalFree(newTitle);
}

} // namespace

void _ChangeParentTitle(HWND hWindow, const WCHAR* oldName, const WCHAR* newName) {
    TraceScope trace;
    const int length = GetWindowTextLengthW(hWindow);
    if (length <= 0 || oldName[0] == 0) { // no name is nowhere in a title, not at its start
        return;
    }
    const u32 capacity = static_cast<u32>(length) + 1;
    WCHAR* title = AllocateText(capacity);
    if (title == nullptr) {
        return;
    }
    if (GetWindowTextW(hWindow, title, static_cast<int>(capacity)) != 0) {
        WCHAR* place = ScanComma(title, oldName);
        if (*place != 0) {
            SetTitleWith(hWindow, title, capacity, place, oldName, newName);
        }
    }
    LocalFree(title);
}
