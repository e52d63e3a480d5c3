#include "com_numbers/ports_section.h"

#include "reporting/text_operations.h"

void MakeSettingsKey(WCHAR* key, u32 capacity, const WCHAR* portName) {
    CopyText(key, capacity, portName);
    AppendText(key, capacity, TEXT(":"));
}
