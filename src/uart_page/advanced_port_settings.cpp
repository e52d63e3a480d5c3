#include "uart_page/advanced_port_settings.h"

#include "com_numbers/com_port_database.h"
#include "com_numbers/port_rename.h"
#include "com_numbers/port_settings_migration.h"
#include "device_model/device_store.h"
#include "page_parts/fifo_controls.h"
#include "page_parts/label_text.h"
#include "reporting/error_reporter.h"
#include "reporting/module_entry.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"
#include "uart_page/parent_title.h"

namespace {

constexpr u32 TitleCapacity = 200;

constexpr RenameFailureCodes RenameCodes = {FailurePortNumberInUse, FailurePortOpened, FailurePortRemap};

// The captions of this dialog are formats for the bounds of the FIFO.
void FillCaptions(HWND hDlg, const UartBasicInfo& uart, const FifoSliders& sliders) {
    const struct {
        int control;
        u32 value;
    } captions[] = {
        {IDC_LARGEFIFO, uart.UartRxFifoSize},
        {IDC_TRANSMIT_LOW, 1},
        {IDC_TRANSMIT_HIGH, uart.UartTxFifoSize},
        {IDC_RECEIVE_LOW, sliders.RxFifo4Stage[0]},
        {IDC_RECEIVE_HIGH, sliders.RxFifo4Stage[RxFifoStageCount - 1]},
    };
    for (const auto& caption : captions) {
        _SetTextFromOwnFormat(hDlg, caption.control, caption.value);
    }
}

bool _InitializeControls(HWND hDlg, UartAdvancedParams* params, u32* code, u32* status) {
    const UartBasicInfo& uart = params->UartBasicInfo;
    FifoSliders& sliders = params->Fifo;
    *code = 0;
    RxFifoStages(uart.UartRxFifoSize, sliders.RxFifo4Stage);
    TraceOut("%s - RxFifo4Stage: %d, %d, %d, %d\n", __func__, sliders.RxFifo4Stage[0],
             sliders.RxFifo4Stage[1], sliders.RxFifo4Stage[2], sliders.RxFifo4Stage[3]);
    FillCaptions(hDlg, uart, sliders);
    ShowFifoLowLabels(hDlg);
    ShowFifoSettings(hDlg, uart, &sliders);
    *status = Kavro_COMPortFillPortNameCombox(hDlg, params->ComName);
    if (*status != 0) {
        *code = FailurePortNumberCombo;
        return false;
    }
    return true;
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

// A dialog that fails to initialise stays as far as it came; its OK and Cancel work.
bool _OnInitDialog(HWND hDlg, LPARAM lParam) {
    auto* params = reinterpret_cast<UartAdvancedParams*>(lParam);
    SetWindowLongPtrW(hDlg, DWLP_USER, lParam);
    u32 code = 0;
    u32 sStatus = 0;
    if (!_InitializeControls(hDlg, params, &code, &sStatus)) {
        ErrorBoxShow(code, sStatus, hDlg, 0, 0, 0, nullptr);
        return false;
    }
    return ShowTitle(hDlg, params->ComName);
}

void _OnHScroll(HWND hDlg, HWND slider) {
    auto* params = reinterpret_cast<UartAdvancedParams*>(GetWindowLongPtrW(hDlg, DWLP_USER));
    if (params != nullptr) {
        FifoSliderMoved(hDlg, slider, &params->Fifo);
    }
}

// Unlike the page's Restore Defaults this one moves the remembered positions too, and the COM number combo
// back to the port's present name.
void _RestoreDefaultClicked(HWND hDlg, UartAdvancedParams* params) {
    const UartBasicInfo& uart = params->UartBasicInfo;
    FifoSliders& sliders = params->Fifo;
    ShowFifoDefaults(hDlg, uart, sliders);
    sliders.RxFifoPos = RxFifoStageCount;
    sliders.RxFifoPosTranslate = RxStageOfPosition(sliders.RxFifo4Stage, sliders.RxFifoPos);
    sliders.TxFifoPosTranslate = uart.UartTxFifoSize;
    const LRESULT found = SendDlgItemMessageW(hDlg, IDC_PORT_NUMBER, CB_FINDSTRING, static_cast<WPARAM>(-1),
                                              reinterpret_cast<LPARAM>(params->ComName));
    SendDlgItemMessageW(hDlg, IDC_PORT_NUMBER, CB_SETCURSEL, LOWORD(found), 0);
}

// The status of the write; 0 also if the values are those that were read at the opening.
u32 StoreFifoSettings(HWND hDlg, UartAdvancedParams* params) {
    const UartBasicInfo& uart = params->UartBasicInfo;
    const FifoValues values = _ReadFifoSliders(hDlg, uart, params->Fifo);
    if (values.UartFifoEnable == uart.UartFifoEnable && values.UartTxFifoLowHigh == uart.UartTxFifoLowHigh &&
        values.UartRxFifoLowHigh == uart.UartRxFifoLowHigh) {
        TraceOut("%s - fifo settings not change\n", __func__);
        return 0;
    }
    TraceOut("%s - fifo settings change\n", __func__);
    TraceOut("%s - FifoEnable [old:%d, new:%d]\n", __func__, uart.UartFifoEnable, values.UartFifoEnable);
    TraceOut("%s - TxFifoLowHigh [old:%d, new:%d]\n", __func__, uart.UartTxFifoLowHigh,
             values.UartTxFifoLowHigh);
    TraceOut("%s - RxFifoLowHigh [old:%d, new:%d]\n", __func__, uart.UartRxFifoLowHigh,
             values.UartRxFifoLowHigh);
    return Kavro_RegUartSetFifoSettings(params->DeviceInfoSet, params->DeviceInfoData, values.UartFifoEnable,
                                        values.UartTxFifoLowHigh, values.UartRxFifoLowHigh);
}

// Enacts a change of the COM number combo; true if there is none.
bool RenameIfChosen(HWND hDlg, UartAdvancedParams* params) {
    const u32 oldNumber = ComNumberFromName(params->ComName);
    const INT selection = static_cast<INT>(SendDlgItemMessageW(hDlg, IDC_PORT_NUMBER, CB_GETCURSEL, 0, 0));
    const u32 newNumber = selection != CB_ERR ? static_cast<u32>(selection) + 1 : oldNumber;
    if (newNumber == oldNumber) {
        TraceOut("%s - COM number not change\n", __func__);
        return true;
    }
    TraceOut("%s - COM number change\n", __func__);
    TraceOut("%s - COM number [old:%d, new:%d]\n", __func__, oldNumber, newNumber);
    if (!RenamePortForUser(hDlg, RenameCodes, params->DeviceInfoSet, params->DeviceInfoData, oldNumber,
                           newNumber, params->NewComName, ComNameCapacity)) {
        return false;
    }
    _ChangeParentTitle(GetParent(hDlg), params->ComName, params->NewComName);
    Kavro_COMPortMigratePortSettings(params->ComName, params->NewComName);
    return true;
}

// The FIFO values are written before the number is looked at, and stay written if the number is refused.
bool _OkClicked(HWND hDlg, UartAdvancedParams* params) {
    const u32 sStatus = StoreFifoSettings(hDlg, params);
    if (sStatus != 0) {
        ErrorBoxShow(FailurePortSetFifo, sStatus, hDlg, 0, 0, 0, nullptr);
        return false;
    }
    if (!RenameIfChosen(hDlg, params)) {
        return false;
    }
    SetupDiCallClassInstaller(DIF_PROPERTYCHANGE, params->DeviceInfoSet, params->DeviceInfoData);
    return true;
}

bool _OnCommand(HWND hDlg, int id, int notifyCode) {
    TraceOut("----> %s( ), NotifyCode:%d\n", __func__, notifyCode);
    auto* params = reinterpret_cast<UartAdvancedParams*>(GetWindowLongPtrW(hDlg, DWLP_USER));
    if (params == nullptr) {
        return false; // not initialised yet
    }
    bool bSuccess = false;
    switch (id) {
    case IDOK:
        TraceOut("%s - IDOK\n", __func__);
        bSuccess = _OkClicked(hDlg, params);
        if (bSuccess) {
            EndDialog(hDlg, IDOK);
        }
        break;
    case IDCANCEL:
        TraceOut("%s - IDCANCEL\n", __func__);
        EndDialog(hDlg, IDCANCEL);
        bSuccess = true;
        break;
    case IDC_RESTORE:
        TraceOut("%s - IDC_RESTORE\n", __func__);
        _RestoreDefaultClicked(hDlg, params);
        bSuccess = true;
        break;
    case IDC_LARGEFIFO:
        TraceOut("%s - IDC_LARGEFIFO\n", __func__);
        FifoEnableClicked(hDlg, &params->Fifo);
        bSuccess = true;
        break;
    default:
        TraceOut("%s - DEFAULT:%d\n", __func__, id);
        break;
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}

INT_PTR CALLBACK UartAdvancedDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        TraceOut("%s - WM_INITDIALOG\n", __func__);
        return _OnInitDialog(hDlg, lParam);
    case WM_COMMAND:
        TraceOut("%s - WM_COMMAND\n", __func__);
        return _OnCommand(hDlg, LOWORD(wParam), HIWORD(wParam));
    case WM_HSCROLL:
        TraceOut("%s - WM_HSCROLL\n", __func__);
        _OnHScroll(hDlg, reinterpret_cast<HWND>(lParam));
        return true;
    default:
        return false;
    }
}

// The port's name and values from the store; false, after a box, if they can't be read.
bool ReadPort(HWND hParent, UartAdvancedParams* params) {
    u32 sStatus = Kavro_RegUartGetCOMName(params->DeviceInfoSet, params->DeviceInfoData, params->ComName,
                                          sizeof(params->ComName));
    if (sStatus != 0) {
        ErrorBoxShow(FailureDialogPortName, sStatus, hParent, 0, 0, 0, nullptr);
        return false;
    }
    params->UartBasicInfo = {};
    sStatus = Kavro_RegUartGetBasic(params->DeviceInfoSet, params->DeviceInfoData, &params->UartBasicInfo);
    if (sStatus != 0) {
        ErrorBoxShow(FailureUartBasic, sStatus, hParent, 0, 0, 0, nullptr);
        return false;
    }
    return true;
}

} // namespace

bool KvrUartAdvancedDlgShow(HWND hParent, UartAdvancedParams* params) {
    TraceOut("----> %s( )\n", __func__);
    const bool bSuccess = ReadPort(hParent, params);
    if (bSuccess) {
        DialogBoxParamW(ModuleInstance, MAKEINTRESOURCEW(IDD_ADVANCED_PORT_SETTINGS), hParent,
                        UartAdvancedDlgProc, reinterpret_cast<LPARAM>(params));
    }
    TraceOut("<---- %s, bSuccess:%d\n", __func__, bSuccess);
    return bSuccess;
}
