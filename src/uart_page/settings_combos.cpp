#include "uart_page/settings_combos.h"

#include "reporting/error_reporter.h"
#include "reporting/module_entry.h"
#include "reporting/text_operations.h"
#include "resources/resource_ids.h"
#include "uart_page/settings_line.h"
#include "uart_page/settings_storage.h"

namespace {

constexpr u32 ListStringCapacity = 258;

// A combo whose items come from a string of the resources.
struct ListCombo {
    int combo;
    UINT stringId;
    u32 selection;
    bool localDecimal; // its items show the user's decimal separator
    u32 failureCode;
};
constexpr ListCombo ListCombos[] = {
    {IDC_PARITY, IDS_PARITY_LIST, DefaultParityIndex, false, FailureParityCombo},
    {IDC_STOP_BITS, IDS_STOP_BITS_LIST, DefaultStopBitsIndex, true, FailureStopBitsCombo},
    {IDC_FLOW_CONTROL, IDS_FLOW_CONTROL_LIST, DefaultFlowControlIndex, false, FailureFlowControlCombo},
};

template <typename Number> void FillComboFromTable(HWND hDlg, int combo, const Number* table) {
    for (; *table != 0; ++table) {
        WCHAR item[SettingsLineCapacity];
        FormatText(item, ARRAYSIZE(item), TEXT("%d"), static_cast<u32>(*table));
        SendDlgItemMessageW(hDlg, combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    }
}

// The user's decimal separator, or 0 if it is not a single character: the point then stays.
WCHAR LoadDecimalSeparator() {
    WCHAR decimal[2] = {};
    const bool loaded =
        GetLocaleInfoW(GetUserDefaultLCID(), LOCALE_SDECIMAL, decimal, ARRAYSIZE(decimal)) != 0;
    return loaded ? decimal[0] : TEXT('\0');
}

void ReplaceDecimalPoint(WCHAR* item, WCHAR separator) {
    for (; *item != 0; ++item) {
        if (*item == TEXT('.')) {
            *item = separator;
            break;
        }
    }
}

// Adds the items of a list string. Its first character is the separator.
void AddItems(HWND combo, WCHAR* list, WCHAR decimal) {
    const WCHAR separator[] = {list[0], 0};
    for (WCHAR* item = list + 1; item != nullptr;) {
        WCHAR* end = ScanComma(item, separator);
        WCHAR* next = *end != 0 ? end + 1 : nullptr;
        *end = 0;
        if (decimal != 0) {
            ReplaceDecimalPoint(item, decimal);
        }
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        item = next;
    }
}

bool _FillComboFromString(HWND combo, UINT stringId, u32 selection, bool localDecimal) {
    TraceScope trace;
    const WCHAR decimal = localDecimal ? LoadDecimalSeparator() : TEXT('\0');
    WCHAR list[ListStringCapacity];
    if (LoadStringW(ModuleInstance, stringId, list, ARRAYSIZE(list)) == 0) {
        return trace.Success(false);
    }
    AddItems(combo, list, decimal);
    SendMessageW(combo, CB_SETCURSEL, selection, 0);
    return trace.Success(true);
}

} // namespace

bool _FillComboxDlg(HWND hDlg, u32* code) {
    TraceScope trace;
    *code = 0;
    FillComboFromTable(hDlg, IDC_BAUD_RATE, BaudRateTable);
    SelectBaudRate(hDlg, DefaultBaudText);
    FillComboFromTable(hDlg, IDC_DATA_BITS, DataBitsTable);
    SendDlgItemMessageW(hDlg, IDC_DATA_BITS, CB_SETCURSEL, DefaultDataBitsIndex, 0);
    for (const ListCombo& list : ListCombos) {
        if (!_FillComboFromString(GetDlgItem(hDlg, list.combo), list.stringId, list.selection,
                                  list.localDecimal)) {
            *code = list.failureCode;
            return trace.Success(false);
        }
    }
    return trace.Success(true);
}
