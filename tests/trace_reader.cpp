#include "tests/trace_reader.h"

#include <algorithm>
#include <map>

#include <gtest/gtest.h>

namespace {

// A line that the trace can have, and the operations that write it, by blanks; "Kavro_Reg*" is all that begin
// so. Lines without a name belong to whoever is open.
struct Row {
    const char* format;
    const char* names;
};
const Row table[] = {
    {"----> %s( )\n",
     "BoardDeinitiate BoardEnumClass BoardInitiate ErrorBoxShow Kavro_COMPortBroadcastRemap "
     "Kavro_COMPortCheckNumberInUse Kavro_COMPortCheckOpened Kavro_COMPortDoRemap "
     "Kavro_COMPortFillPortNameCombox Kavro_COMPortGetMaxNumberAvailable Kavro_COMPortMigratePortSettings "
     "Kavro_Reg* KvrBoardPropPageProvider KvrBoardUartAdvancedDlgShow KvrUartAdvancedDlgShow "
     "KvrUartPropPageProvider _AdvancedClicked _ChangeParentTitle _EnableFifoControls _EnactComNameChanges "
     "_FifoEnableClicked _FillChannelList _FillComboFromString _FillComboxDlg _FillResourceList "
     "_FillSettingsDlg _GetSettingsFromRegistryAndApplyToUI _InitBoardBasicSettingsPage _InitBoardParams "
     "_InitUartBasicSettingsPage _InitUartParams _InitializeControls _InterfaceSelectClicked _OkClicked "
     "_OnHScroll _OnHscroll _OnInitDialog _OnNotify _ReadFifoSliders _RefreshFifoControls _RestoreDefault "
     "_RestoreDefaultClicked _SaveSettings _SetEachUartUiFifoSettingsIfChange _SetTextFromOwnFormat "
     "_SetTextFromString _SortCOMClicked"},
    {"----> %s( ), Message:%d\n", "BoardBasicDlgCallback UartBasicDlgCallback"},
    {"----> %s( ), NotifyCode:%d\n", "_OnCommand"},
    {"----> %s( ), [pci:%d,irq:%d]\n", "_OnInitDialog"},
    {"----> %s( ), [pci:%d,irq:%d], NotifyCode:%d\n", "_OnCommand"},
    {"----> %s( ), SelectedChlIndex:%d\n",
     "_AdvancedClicked _ApplyClicked _ChlListSelectChange _FifoEnableClicked _OkClicked "
     "_RestoreDefaultClicked _SetToAllClicked"},
    {"<---- %s\n", "BoardDeinitiate BoardEnumClass ErrorBoxShow Kavro_COMPortBroadcastRemap "
                   "Kavro_COMPortMigratePortSettings _AdvancedClicked _ChangeParentTitle "
                   "_ChlListSelectChange _EnableFifoControls _FifoEnableClicked _FillChannelList "
                   "_FillResourceList _GetSettingsFromRegistryAndApplyToUI _InitBoardBasicSettingsPage "
                   "_InitUartBasicSettingsPage _OnHScroll _ReadFifoSliders _RefreshFifoControls "
                   "_RestoreDefault _RestoreDefaultClicked _SetTextFromOwnFormat _SetTextFromString"},
    {"<---- %s, bSuccess:%d\n",
     "KvrBoardPropPageProvider KvrBoardUartAdvancedDlgShow KvrUartAdvancedDlgShow KvrUartPropPageProvider "
     "_AdvancedClicked _ApplyClicked _FifoEnableClicked _FillComboFromString _FillComboxDlg _FillSettingsDlg "
     "_InitBoardParams _InitUartParams _InitializeControls _InterfaceSelectClicked _OkClicked _OnCommand "
     "_OnHscroll _OnInitDialog _OnNotify _RestoreDefaultClicked _SaveSettings "
     "_SetEachUartUiFifoSettingsIfChange _SetToAllClicked _SortCOMClicked"},
    {"<---- %s, sStatus:%d\n",
     "BoardInitiate Kavro_COMPortCheckNumberInUse Kavro_COMPortCheckOpened Kavro_COMPortDoRemap "
     "Kavro_COMPortFillPortNameCombox Kavro_Reg* _EnactComNameChanges"},
    {"<---- %s, nReturn:%d\n", "BoardBasicDlgCallback UartBasicDlgCallback"},
    {"%s - WM_INITDIALOG\n",
     "BoardBasicDlgProc BoardUartAdvancedDlgProc UartAdvancedDlgProc UartBasicDlgProc"},
    {"%s - WM_COMMAND\n", "BoardBasicDlgProc BoardUartAdvancedDlgProc UartAdvancedDlgProc UartBasicDlgProc"},
    {"%s - WM_HSCROLL\n", "BoardBasicDlgProc UartAdvancedDlgProc"},
    {"%s - IDOK\n", "_OnCommand"},
    {"%s - DEFAULT:%d\n", "_OnCommand"},
    {"%s - SetupDiOpenDevRegKey() fail, GetLastError:%d\n",
     "Kavro_COMPortCheckOpened Kavro_Reg* _EnactComNameChanges"},
    {"BOARD, sStatus:%d, PciBusNumber:%d, Irq:%d\n", ""},
    {"BPPCHL (%d, x%p, x%p, T:%d), CREATE\n", ""},
    {"BPPCHL (%d, x%p, x%p, T:%d), TERMINATE\n", ""},
    {"BPPCHL_ENUM, not belong this board, BOARD[pci:%d,irq:%d], CHL[pci:%d,irq:%d,n:%d,t:%d]\n", ""},
    {"<---- %s, sStatus:%d, *MaxAvlComNumber:%d\n", "Kavro_COMPortGetMaxNumberAvailable"},
    {"%s - PSPCB_CREATE\n", "BoardBasicDlgCallback UartBasicDlgCallback"},
    {"%s - PSPCB_RELEASE\n", "BoardBasicDlgCallback UartBasicDlgCallback"},
    {"%s - PSN_APPLY, BasicSettingsDlgInitiateOK:%d\n", "_OnNotify"},
    {"%s - IDCANCEL\n", "_OnCommand"},
    {"%s - IDC_ADVANCED\n", "_OnCommand"},
    {"%s - IDC_PORT_LIST\n", "_OnCommand"},
    {"%s - IDC_RESTORE\n", "_OnCommand"},
    {"%s - IDC_RESTORE_PORT\n", "_OnCommand"},
    {"%s - IDC_APPLY\n", "_OnCommand"},
    {"%s - IDC_SET_TO_ALL\n", "_OnCommand"},
    {"%s - IDC_LARGEFIFO\n", "_OnCommand"},
    {"%s - IDC_SORT_COM\n", "_OnCommand"},
    {"%s - IDC_INTERFACE_SELECT\n", "_OnCommand"},
    {"%s - IDC_RECEIVE_SLIDER, RxFifoPos:%d, RxFifoPosTranslate:%d\n", "_OnHScroll _OnHscroll"},
    {"%s - IDC_TRANSMIT_SLIDER, TxFifoPosTranslate:%d\n", "_OnHScroll _OnHscroll"},
    {"%s - RegQueryValueEx() fail, %ws, lStatus:%d\n", "Kavro_Reg*"},
    {"%s - RegSetValueEx() fail, %ws, lStatus:%d\n",
     "Kavro_RegUartSetAdvanceSettings Kavro_RegUartSetFifoSettings"},
    {"%s - RegQueryValueEx() fail, lStatus:%d, GetLastError:%d\n", "Kavro_COMPortCheckOpened"},
    {"%s - SetupDiSetClassInstallParams fail, GetLastError:%d\n", "Kavro_COMPortBroadcastRemap"},
    {"%s - SetupDiCallClassInstaller fail, GetLastError:%d, ERROR_IN_WOW64:%d\n",
     "Kavro_COMPortBroadcastRemap"},
    {"%s - ComDBOpen fail, GetLastError():%d\n",
     "Kavro_COMPortCheckNumberInUse Kavro_COMPortFillPortNameCombox Kavro_COMPortGetMaxNumberAvailable "
     "_EnactComNameChanges"},
    {"%s - ComDBGetCurrentPortUsage fail, GetLastError():%d\n",
     "Kavro_COMPortCheckNumberInUse Kavro_COMPortFillPortNameCombox Kavro_COMPortGetMaxNumberAvailable"},
    {"%s - QueryDosDevice 1 fail, GetLastError():%d\n", "_EnactComNameChanges"},
    {"%s - this shouldn't happen, QueryDosDevice fail, GetLastError():%d\n", "_EnactComNameChanges"},
    {"%s - DefineDosDevice fail, Remap->NewComName:%ws, Remap->Buffer1:%ws, GetLastError():%d\n",
     "_EnactComNameChanges"},
    {"%s - nFifoEnable:%d\n", "_ApplyClicked _OkClicked _SetToAllClicked"},
    {"%s - nTxFifoLowHigh:%d\n", "_ApplyClicked _OkClicked _SetToAllClicked"},
    {"%s - nRxFifoLowHigh:%d\n", "_ApplyClicked _OkClicked _SetToAllClicked"},
    {"%s - FifoEnable CHECKED, RxFifoPos:%d, TxFifoPosTranslate:%d\n", "_FifoEnableClicked"},
    {"%s - FifoEnable UNCHECKED\n", "_FifoEnableClicked"},
    {"%s - Chl:%d, uart fifo settings not change\n", "_SetEachUartUiFifoSettingsIfChange"},
    {"%s - Chl:%d, uart fifo settings change\n", "_SetEachUartUiFifoSettingsIfChange"},
    {"%s - RxFifo4Stage: %d, %d, %d, %d\n", "_InitializeControls"},
    {"%s - fifo settings not change\n", "_OkClicked"},
    {"%s - fifo settings change\n", "_OkClicked"},
    {"%s - FifoEnable [old:%d, new:%d]\n", "_OkClicked"},
    {"%s - TxFifoLowHigh [old:%d, new:%d]\n", "_OkClicked"},
    {"%s - RxFifoLowHigh [old:%d, new:%d]\n", "_OkClicked"},
    {"%s - RS232ComboxPos:%d, RS422ComboxPos:%d, RS485ComboxPos:%d, AutoRS422485ComboxPos:%d\n",
     "_InitializeControls"},
    {"%s - Set RS232 mode, capability(x%08X) not support\n", "_OkClicked"},
    {"%s - Set RS422 mode, capability(x%08X) not support\n", "_OkClicked"},
    {"%s - Set RS485 mode, capability(x%08X) not support\n", "_OkClicked"},
    {"%s - Set AUTORS422485 mode, capability(x%08X) not support\n", "_OkClicked"},
    {"%s - nMode:%d\n", "_OkClicked"},
    {"%s - nAHDC:%d\n", "_OkClicked"},
    {"%s - nCS:%d\n", "_OkClicked"},
    {"%s - nAutoRS422485:%d\n", "_OkClicked"},
    {"%s - nRS422Termination:%d\n", "_OkClicked"},
    {"%s - nRS485Termination:%d\n", "_OkClicked"},
    {"%s - Chl:%d, uart advance settings change\n", "_OkClicked"},
    {"%s - COM number change\n", "_OkClicked"},
    {"%s - COM number [old:%d, new:%d]\n", "_OkClicked"},
    {"%s - COM number not change\n", "_OkClicked"},
    {"%s - port has been previously claimed\n", "Kavro_COMPortCheckNumberInUse"},
    {"%s - lStatus:%d, nChlOpened:%d\n", "Kavro_COMPortCheckOpened"},
    {"%s - Chl opened\n", "Kavro_COMPortCheckOpened"},
    {"%s COM%d -> used\n", "Kavro_COMPortFillPortNameCombox"},
    {"%s - Can't find any available COM number\n", "Kavro_COMPortGetMaxNumberAvailable"},
    {"%s - maxAvl:%d\n", "Kavro_COMPortGetMaxNumberAvailable"},
    {"%s - ARRAYSIZE(Remap->OldComName):%I64d\n", "_EnactComNameChanges"},
    {"%s - Remap->OldComName:%ws, Remap->Buffer1:%ws\n", "_EnactComNameChanges"},
    {"%s - Remap->NewComName:%ws, dwNewComNameLen:%d\n", "_EnactComNameChanges"},
    {"%s - DefineDosDevice, bRemoved:%d, OldComName:%ws, Buffer1:%ws, GetLastError():%d\n",
     "_EnactComNameChanges"},
    {"%s - friendly name:%ws\n", "_EnactComNameChanges"},
    {"----------------------------------------\n", ""},
    {"----------------------------------------, BEFORE\n", ""},
    {"----------------------------------------, AFTER\n", ""},
    {"----------------------------------------, DONE\n", ""},
    {"UART # ChlNumber:%d - CURRENT:%03d, NEW:%03d\n", ""},
    {"%s - ----------------------------------------\n", "_SortCOMClicked"},
    {"%s - ChlNumber:%d - COM%d -> COM%d\n", "_SortCOMClicked"},
    {"%s - avlMaxTempComNumber:%d\n", "_SortCOMClicked"},
    {"%s - Don't need to swap COM number\n", "_SortCOMClicked"},
    {"%s - S1_1, CHL%d to AVL, COM%d -> COM%d\n", "_SortCOMClicked"},
    {"%s - S1_2, CHL%d, move port settings, %ws -> %ws\n", "_SortCOMClicked"},
    {"%s - S1_3, CHL%d, ComName [old:%ws, new:%ws]\n", "_SortCOMClicked"},
    {"%s - S2_1, CHL%d to CHL%d, COM%d -> COM%d\n", "_SortCOMClicked"},
    {"%s - S2_2, CHL%d, move port settings, %ws -> %ws\n", "_SortCOMClicked"},
    {"%s - S2_3, CHL%d, ComName [old:%ws, new:%ws]\n", "_SortCOMClicked"},
    {"%s - S3_1, AVL to CHL%d, COM%d -> COM%d\n", "_SortCOMClicked"},
    {"%s - S3_2, CHL%d, move port settings, %ws -> %ws\n", "_SortCOMClicked"},
    {"%s - S3_3, CHL%d, ComName [old:%ws, new:%ws]\n", "_SortCOMClicked"},
    {"%s - ShowAdvanced:%d, ChangesEnabled:%d\n", "_OnInitDialog"},
    {"%s - Search baudrate index, shIndex:%d\n",
     "_FillComboxDlg _GetSettingsFromRegistryAndApplyToUI _RestoreDefault"},
    {"%s - A, szParms:%ws, lstrlen(szParms):%d\n", "_GetSettingsFromRegistryAndApplyToUI"},
    {"%s - B, szParms:%ws, m_szPorts:%ws, ComName:%ws\n", "_GetSettingsFromRegistryAndApplyToUI"},
    {"%s - ComName:%ws, szParms:%ws\n", "_SaveSettings"},
    {"%s - BaudRate:%d, use selection\n", "_GetSettingsFromRegistryAndApplyToUI"},
    {"%s - BaudRate:%d, use default\n", "_GetSettingsFromRegistryAndApplyToUI"},
    {"%s - 1, nUserDialogChoice:%d\n", "_OkClicked"},
    {"%s - 2, nUserDialogChoice:%d\n", "_OkClicked"},
    {"%s COM%d -> used, is current port number, don't in use\n", "Kavro_COMPortFillPortNameCombox"},
    {"LOAD, DBGSTR:%s\n", ""},
    {"UNLOAD, DBGSTR:%s\n", ""},
};

std::set<std::string_view> seen;

// The length of the number at the front that the conversion can have written; 0 if there is none.
std::size_t NumberLength(std::string_view conversion, std::string_view text) {
    const bool decimal = conversion.ends_with('d');
    std::size_t length = decimal && text.starts_with('-') ? 1 : 0;
    length =
        std::min(text.find_first_not_of(decimal ? "0123456789" : "0123456789ABCDEF", length), text.size());
    const std::size_t least = conversion == "%p"     ? 16
                              : conversion == "%08X" ? 8
                              : conversion == "%03d" ? 3
                                                     : 1;
    return length >= least ? length : 0;
}

// Whether the line is made from the format; `name` becomes what the format's first %s stands for.
bool IsMadeFrom(std::string_view line, std::string_view format, std::string* name) {
    const std::size_t literal = std::min(format.find('%'), format.size());
    if (!line.starts_with(format.substr(0, literal)) || literal == format.size()) {
        return line == format;
    }
    line.remove_prefix(literal);
    format.remove_prefix(literal);
    std::string_view conversion;
    for (const std::string_view known : {"%ws", "%s", "%d", "%03d", "%08X", "%I64d", "%p"}) {
        if (format.starts_with(known)) {
            conversion = known;
        }
    }
    format.remove_prefix(conversion.size());
    if (!conversion.ends_with('s')) {
        const std::size_t length = NumberLength(conversion, line);
        return length != 0 && IsMadeFrom(line.substr(length), format, name);
    }
    for (std::size_t length = 0; length <= line.size(); ++length) {
        if (IsMadeFrom(line.substr(length), format, nullptr)) {
            if (name != nullptr) {
                *name = line.substr(0, length);
            }
            return true;
        }
    }
    return false;
}

bool IsAmong(std::string_view name, std::string_view names) {
    while (!names.empty()) {
        const std::string_view one = names.substr(0, names.find(' '));
        if (one == name || (one.ends_with('*') && name.starts_with(one.substr(0, one.size() - 1)))) {
            return true;
        }
        names.remove_prefix(std::min(one.size() + 1, names.size()));
    }
    return false;
}

// The row that a line is of, null without one, and the line's name. Most lines come again and again.
const std::pair<const Row*, std::string>& Recognised(std::string_view line) {
    static std::map<std::string, std::pair<const Row*, std::string>, std::less<>> known;
    const auto place = known.find(line);
    if (place != known.end()) {
        return place->second;
    }
    std::string name;
    for (const Row& row : table) {
        if (IsMadeFrom(line, row.format, &name) && (*row.names == 0 || IsAmong(name, row.names))) {
            seen.insert(row.format);
            return known[std::string(line)] = {&row, name};
        }
    }
    return known[std::string(line)] = {};
}

} // namespace

void TraceReader::Read(std::string_view line) {
    if (open_.empty() && line.starts_with(" - ")) {
        return; // of a helper that a test calls itself
    }
    const auto& [found, name] = Recognised(line);
    if (found == nullptr) {
        ADD_FAILURE() << "no line of the table, or of another operation: " << line;
        return;
    }
    const std::string_view format = found->format;
    if (format.starts_with("----> ")) {
        open_.push_back(name);
    }
    if (*found->names == 0) {
        return;
    }
    if (!name.ends_with("DlgProc")) { // which opens nothing, being asked of everything
        EXPECT_EQ(name, open_.empty() ? "" : open_.back()) << line;
    }
    if (format.starts_with("<---- ") && !open_.empty()) {
        open_.pop_back();
    }
}

std::set<std::string> TraceReader::Unseen() {
    std::set<std::string> unseen;
    for (const Row& row : table) {
        if (!seen.contains(row.format)) {
            unseen.emplace(row.format);
        }
    }
    return unseen;
}
