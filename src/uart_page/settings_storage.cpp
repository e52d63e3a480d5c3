#include "uart_page/settings_storage.h"

#include "reporting/text_operations.h"
#include "resources/resource_ids.h"

namespace {

constexpr u32 ComposedLineCapacity = 260;
constexpr WPARAM BaudTextCapacity = 18;

// The four combos whose selected index the line records.
struct IndexCombo {
    int combo;
    u32 PortSettings::*index;
};
constexpr IndexCombo IndexCombos[] = {
    {IDC_PARITY, &PortSettings::ParityIndex},
    {IDC_DATA_BITS, &PortSettings::DataBitsIndex},
    {IDC_STOP_BITS, &PortSettings::StopBitsIndex},
    {IDC_FLOW_CONTROL, &PortSettings::FlowControlIndex},
};

// Reads the selections of the four combos. False if one has none.
bool ReadSelections(HWND dialog, PortSettings& settings) {
    for (const IndexCombo& combo : IndexCombos) {
        const LRESULT selection = SendDlgItemMessageW(dialog, combo.combo, CB_GETCURSEL, 0, 0);
        if (selection < 0) { // CB_ERR or CB_ERRSPACE
            return false;
        }
        settings.*combo.index = static_cast<u32>(selection);
    }
    return true;
}

// Composes the line from the five combos, with its fields. False if one of the combos gives nothing.
bool ComposeFromCombos(HWND dialog, WCHAR* line, u32 capacity, PortSettings& settings) {
    if (SendDlgItemMessageW(dialog, IDC_BAUD_RATE, WM_GETTEXT, BaudTextCapacity,
                            reinterpret_cast<LPARAM>(line)) <= 0) { // no text, or CB_ERR
        return false;
    }
    settings.BaudRate = ParseDecimal(line);
    return ReadSelections(dialog, settings) && ComposeSettingsLine(line, capacity, settings);
}

} // namespace

void SelectBaudRate(HWND dialog, const WCHAR* text) {
    const LRESULT found = SendDlgItemMessageW(dialog, IDC_BAUD_RATE, CB_FINDSTRING, static_cast<WPARAM>(-1),
                                              reinterpret_cast<LPARAM>(text));
    TraceOut("%s - Search baudrate index, shIndex:%d\n", TraceOperation(), static_cast<INT>(found));
    SendDlgItemMessageW(dialog, IDC_BAUD_RATE, CB_SETCURSEL, found != CB_ERR ? static_cast<WPARAM>(found) : 0,
                        0);
}

void SelectSettings(HWND dialog, const PortSettings& settings) {
    for (const IndexCombo& combo : IndexCombos) {
        SendDlgItemMessageW(dialog, combo.combo, CB_SETCURSEL, settings.*combo.index, 0);
    }
}

void _GetSettingsFromRegistryAndApplyToUI(HWND dialog, const WCHAR* key, UartPageParams* params) {
    TraceScope trace;
    WCHAR szParms[SettingsLineCapacity] = {};
    GetProfileStringW(PortsSection, key, TEXT(""), szParms, ARRAYSIZE(szParms));
    TraceOut("%s - A, szParms:%ws, lstrlen(szParms):%d\n", __func__, szParms, lstrlenW(szParms));
    TrimBlanks(szParms);
    if (szParms[0] == 0) {
        // Nobody is notified: a port without a line counts as having this one.
        CopyText(szParms, ARRAYSIZE(szParms), DefaultSettingsLine);
        WriteProfileStringW(PortsSection, key, szParms);
    }
    TraceOut("%s - B, szParms:%ws, m_szPorts:%ws, ComName:%ws\n", __func__, szParms, PortsSection,
             params->ComName);
    const WCHAR* baudText = nullptr;
    params->Saved = ParseSettingsLine(szParms, baudText);
    if (baudText[0] != 0) {
        TraceOut("%s - BaudRate:%d, use selection\n", __func__, params->Saved.BaudRate);
    } else {
        TraceOut("%s - BaudRate:%d, use default\n", __func__, params->Saved.BaudRate);
    }
    SelectBaudRate(dialog, baudText);
    SelectSettings(dialog, params->Saved);
}

bool _SaveSettings(HWND dialog, const WCHAR* key, const UartPageParams* params) {
    TraceScope trace;
    WCHAR szParms[ComposedLineCapacity] = {};
    PortSettings settings = {};
    if (!ComposeFromCombos(dialog, szParms, ARRAYSIZE(szParms), settings)) {
        return trace.Success(false);
    }
    if (!SamePortSettings(settings, params->Saved)) {
        TraceOut("%s - ComName:%ws, szParms:%ws\n", __func__, params->ComName, szParms);
        // The results of the three are ignored: the sheet closes in any case, and a line that could not be
        // written is read as it was when the page opens again.
        WriteProfileStringW(PortsSection, key, szParms);
        SendNotifyMessageW(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(PortsSection));
        SetupDiCallClassInstaller(DIF_PROPERTYCHANGE, params->DeviceInfoSet, params->DeviceInfoData);
    }
    return trace.Success(true);
}
