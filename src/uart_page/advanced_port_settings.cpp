#include "uart_page/advanced_port_settings.h"

#include "com_numbers/com_port_database.h"
#include "com_numbers/port_device.h"
#include "com_numbers/port_rename.h"
#include "com_numbers/port_settings_migration.h"
#include "device_model/device_store.h"
#include "page_parts/fifo_controls.h"
#include "page_parts/label_text.h"
#include "reporting/error_reporter.h"
#include "reporting/module_entry.h"
#include "resources/resource_ids.h"
#include "uart_page/parent_title.h"

namespace {

constexpr u32 TitleCapacity = 200;

constexpr RenameTerms PortRenameTerms = {FailurePortNumberInUse, FailurePortOpened, FailurePortRemap, true};

UartAdvancedParams* DialogParams(HWND hDlg) {
    return reinterpret_cast<UartAdvancedParams*>(GetWindowLongPtrW(hDlg, DWLP_USER));
}

// One direction of the FIFO: its controls, the bounds for its captions, which are formats in this dialog, and
// the position of its slider.
struct FifoDirection {
    int slider;
    int low;
    int high;
    u32 highestPosition;
    u32 lowestLevel;
    u32 highestLevel;
    u32 position;
    u32 level;
};

void ShowDirection(HWND hDlg, const FifoDirection& direction) {
    SetFifoSliderRange(hDlg, direction.slider, direction.highestPosition);
    _SetTextFromOwnFormat(hDlg, direction.low, direction.lowestLevel);
    _SetTextFromOwnFormat(hDlg, direction.high, direction.highestLevel);
    PutFifoSlider(hDlg, direction.slider, direction.position);
    ShowFifoLabel(hDlg, direction.low, IDS_LOW, 1);
    ShowFifoLabel(hDlg, direction.high, IDS_HIGH, direction.level);
}

void ShowFifo(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders) {
    const u32 txPosition = sliders.TxFifoPosTranslate;
    const auto& stages = sliders.RxFifo4Stage;
    _SetTextFromOwnFormat(hDlg, IDC_LARGEFIFO, uart.UartRxFifoSize);
    ShowFifoCheckBox(hDlg, uart.UartFifoEnable != 0);
    ShowDirection(hDlg, {IDC_TRANSMIT_SLIDER, IDC_TRANSMIT_LOW, IDC_TRANSMIT_HIGH, uart.UartTxFifoSize, 1,
                         uart.UartTxFifoSize, txPosition, txPosition});
    ShowDirection(hDlg, {IDC_RECEIVE_SLIDER, IDC_RECEIVE_LOW, IDC_RECEIVE_HIGH, RxFifoStageCount, stages[0],
                         stages[RxFifoStageCount - 1], sliders.RxFifoPos, sliders.RxFifoPosTranslate});
    _EnableFifoControls(hDlg, uart.UartFifoEnable != 0);
}

bool _InitializeControls(HWND hDlg, UartAdvancedParams* params, u32* code, u32* status) {
    TraceScope trace;
    const UartBasicInfo& uart = params->UartBasicInfo;
    FifoSliders& sliders = params->Fifo;
    *code = 0;
    RxFifoStages(uart.UartRxFifoSize, sliders.RxFifo4Stage);
    TraceOut("%s - RxFifo4Stage: %d, %d, %d, %d\n", __func__, sliders.RxFifo4Stage[0],
             sliders.RxFifo4Stage[1], sliders.RxFifo4Stage[2], sliders.RxFifo4Stage[3]);
    RememberFifoPositions(uart, &sliders);
    ShowFifo(hDlg, uart, sliders);
    *status = Kavro_COMPortFillPortNameCombox(hDlg, params->ComName);
    if (*status != 0) {
        *code = FailurePortNumberCombo;
    }
    return trace.Success(*status == 0);
}

bool ShowTitle(HWND hDlg, const WCHAR* comName) {
    WCHAR format[TitleCapacity];
    WCHAR title[TitleCapacity];
    if (LoadStringW(ModuleInstance, IDS_ADVANCED_SETTINGS_TITLE, format, ARRAYSIZE(format)) == 0) {
        return false;
    }
    FormatText(title, ARRAYSIZE(title), format, comName);
    SetWindowTextW(hDlg, title);
    return true;
}

// If the initialisation fails, the dialog stays open, partly filled. Its OK and Cancel work.
bool _OnInitDialog(HWND hDlg, LPARAM lParam) {
    TraceScope trace;
    auto* params = reinterpret_cast<UartAdvancedParams*>(lParam);
    SetWindowLongPtrW(hDlg, DWLP_USER, lParam);
    u32 code = 0;
    u32 sStatus = 0;
    if (!_InitializeControls(hDlg, params, &code, &sStatus)) {
        ErrorBoxShow(code, sStatus, hDlg);
        return trace.Success(false);
    }
    return trace.Success(ShowTitle(hDlg, params->ComName));
}

void _OnHScroll(HWND hDlg, LPARAM lParam) {
    TraceScope trace;
    UartAdvancedParams* params = DialogParams(hDlg);
    if (params != nullptr) {
        FollowFifoSlider(hDlg, reinterpret_cast<HWND>(lParam), &params->Fifo);
    }
}

void _FifoEnableClicked(HWND hDlg) {
    TraceScope trace;
    FollowFifoCheckBox(hDlg, &DialogParams(hDlg)->Fifo);
}

// Unlike Restore Defaults of the Port Control page, this also sets the remembered positions and moves the COM
// number combo back to the port's present name.
void _RestoreDefaultClicked(HWND hDlg, UartAdvancedParams* params) {
    TraceScope trace;
    FifoSliders& sliders = params->Fifo;
    ShowFifoCheckBox(hDlg, true);
    sliders.RxFifoPos = RxFifoStageCount;
    sliders.RxFifoPosTranslate = RxStageOfPosition(sliders.RxFifo4Stage, sliders.RxFifoPos);
    PutReceiveSlider(hDlg, sliders.RxFifoPos, sliders.RxFifoPosTranslate);
    sliders.TxFifoPosTranslate = params->UartBasicInfo.UartTxFifoSize;
    PutTransmitSlider(hDlg, sliders.TxFifoPosTranslate);
    _EnableFifoControls(hDlg, TRUE);
    const LRESULT found = SendDlgItemMessageW(hDlg, IDC_PORT_NUMBER, CB_FINDSTRING, static_cast<WPARAM>(-1),
                                              reinterpret_cast<LPARAM>(params->ComName));
    // A name that isn't found gives an index far beyond the items: nothing is selected, and OK keeps the
    // number.
    SendDlgItemMessageW(hDlg, IDC_PORT_NUMBER, CB_SETCURSEL, LOWORD(found), 0);
}

// Returns the status of the write, or 0 if the values are those that were read when the dialog opened. The
// record keeps those: where the rename then fails, the next OK compares with them and writes again.
u32 WriteFifoValues(UartAdvancedParams* params, const FifoValues& values) {
    const FifoValues old = FifoValuesOf(params->UartBasicInfo);
    if (SameFifoValues(values, old)) {
        TraceOut("%s - fifo settings not change\n", TraceOperation());
        return 0;
    }
    TraceOut("%s - fifo settings change\n", TraceOperation());
    TraceOut("%s - FifoEnable [old:%d, new:%d]\n", TraceOperation(), old.UartFifoEnable,
             values.UartFifoEnable);
    TraceOut("%s - TxFifoLowHigh [old:%d, new:%d]\n", TraceOperation(), old.UartTxFifoLowHigh,
             values.UartTxFifoLowHigh);
    TraceOut("%s - RxFifoLowHigh [old:%d, new:%d]\n", TraceOperation(), old.UartRxFifoLowHigh,
             values.UartRxFifoLowHigh);
    return Kavro_RegUartSetFifoSettings(params->DeviceInfoSet, params->DeviceInfoData, values.UartFifoEnable,
                                        values.UartTxFifoLowHigh, values.UartRxFifoLowHigh);
}

// `ComName` of the record stays: the settings move from it, and the next opening reads the name afresh.
bool RenamePort(HWND hDlg, UartAdvancedParams* params, u32 oldNumber, u32 newNumber) {
    if (!IsNumberChanged(oldNumber, newNumber)) {
        return true;
    }
    if (!RemapForUser(hDlg, PortRenameTerms, params->DeviceInfoSet, params->DeviceInfoData, oldNumber,
                      newNumber)) {
        return false;
    }
    Kavro_COMPortBroadcastRemap(params->DeviceInfoSet, params->DeviceInfoData);
    FormatText(params->NewComName, ComNameCapacity, TEXT("COM%d"), newNumber);
    _ChangeParentTitle(GetParent(hDlg), params->ComName, params->NewComName);
    Kavro_COMPortMigratePortSettings(params->ComName, params->NewComName);
    return true;
}

// All controls are read before anything is written. The FIFO values are written before the number is checked,
// and stay written if the number is refused.
bool _OkClicked(HWND hDlg, UartAdvancedParams* params) {
    TraceScope trace;
    const FifoValues values = _ReadFifoSliders(hDlg, params->UartBasicInfo, params->Fifo);
    TraceFifoValues(values);
    const u32 oldNumber = ComNumberFromName(params->ComName);
    const u32 newNumber = ChosenComNumber(hDlg, oldNumber);
    const u32 sStatus = WriteFifoValues(params, values);
    if (sStatus != 0) {
        ErrorBoxShow(FailurePortSetFifo, sStatus, hDlg);
        return trace.Success(false);
    }
    if (!RenamePort(hDlg, params, oldNumber, newNumber)) {
        return trace.Success(false);
    }
    // The driver takes the values up at a property change. If it can't be told, they are stored all the same
    // and count from the device's next start.
    SetupDiCallClassInstaller(DIF_PROPERTYCHANGE, params->DeviceInfoSet, params->DeviceInfoData);
    return trace.Success(true);
}

bool CommandGiven(HWND hDlg, UartAdvancedParams* params, int id) {
    switch (id) {
    case IDOK:
        TraceOut("%s - IDOK\n", TraceOperation());
        if (!_OkClicked(hDlg, params)) {
            return false;
        }
        EndDialog(hDlg, IDOK);
        return true;
    case IDCANCEL:
        TraceOut("%s - IDCANCEL\n", TraceOperation());
        EndDialog(hDlg, IDCANCEL);
        return true;
    case IDC_RESTORE:
        TraceOut("%s - IDC_RESTORE\n", TraceOperation());
        _RestoreDefaultClicked(hDlg, params);
        return true;
    case IDC_LARGEFIFO:
        TraceOut("%s - IDC_LARGEFIFO\n", TraceOperation());
        _FifoEnableClicked(hDlg);
        return true;
    default:
        TraceOut("%s - DEFAULT:%d\n", TraceOperation(), id);
        return false;
    }
}

bool _OnCommand(HWND hDlg, int id, LPARAM /*lParam*/, int notifyCode) {
    UartAdvancedParams* params = DialogParams(hDlg);
    if (params == nullptr) {
        return false; // before WM_INITDIALOG
    }
    TraceScope trace("----> %s( ), NotifyCode:%d\n", __func__, notifyCode);
    return trace.Success(CommandGiven(hDlg, params, id));
}

INT_PTR CALLBACK UartAdvancedDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        TraceOut("%s - WM_INITDIALOG\n", __func__);
        return _OnInitDialog(hDlg, lParam);
    case WM_COMMAND:
        TraceOut("%s - WM_COMMAND\n", __func__);
        return _OnCommand(hDlg, LOWORD(wParam), lParam, HIWORD(wParam));
    case WM_HSCROLL:
        TraceOut("%s - WM_HSCROLL\n", __func__);
        _OnHScroll(hDlg, lParam);
        return true;
    default:
        return false;
    }
}

// Reads the port's name and values from the store. False if that fails; a box has said so.
bool ReadPort(HWND hParent, UartAdvancedParams* params) {
    u32 sStatus = Kavro_RegUartGetCOMName(params->DeviceInfoSet, params->DeviceInfoData, params->ComName,
                                          sizeof(params->ComName));
    if (sStatus != 0) {
        ErrorBoxShow(FailureDialogPortName, sStatus, hParent);
        return false;
    }
    params->UartBasicInfo = {};
    sStatus = Kavro_RegUartGetBasic(params->DeviceInfoSet, params->DeviceInfoData, &params->UartBasicInfo);
    if (sStatus != 0) {
        ErrorBoxShow(FailureUartBasic, sStatus, hParent);
        return false;
    }
    return true;
}

} // namespace

bool KvrUartAdvancedDlgShow(HWND hParent, UartAdvancedParams* params) {
    TraceScope trace;
    if (!ReadPort(hParent, params)) {
        return trace.Success(false);
    }
    // A dialog that can't be shown is one that has closed without a choice: the name is then the one before.
    DialogBoxParamW(ModuleInstance, MAKEINTRESOURCEW(IDD_ADVANCED_PORT_SETTINGS), hParent,
                    UartAdvancedDlgProc, reinterpret_cast<LPARAM>(params));
    return trace.Success(true);
}
