#include "com_numbers/port_rename.h"

#include "com_numbers/com_port_database.h"
#include "com_numbers/com_remap.h"
#include "com_numbers/port_device.h"
#include "com_numbers/port_settings_migration.h"
#include "reporting/error_reporter.h"
#include "reporting/text_operations.h"
#include "resources/resource_ids.h"

namespace {

// Whether the number is free, or the user takes it all the same.
bool IsNumberFree(HWND dialog, const RenameTerms& terms, u32 number) {
    const u32 sStatus = Kavro_COMPortCheckNumberInUse(number);
    if (sStatus == 0) {
        return true;
    }
    u32 nUserDialogChoice = IDNO;
    ErrorBoxShow(terms.numberInUse, sStatus, dialog, 0, 0, 0,
                 terms.mayTakeClaimed ? &nUserDialogChoice : nullptr);
    if (terms.mayTakeClaimed) {
        TraceOut("%s - 1, nUserDialogChoice:%d\n", TraceOperation(), nUserDialogChoice);
    }
    // Only a no refuses. A question that can't be shown is answered with 0, and the claim is then forced as
    // if the user had agreed; a box that asks nothing leaves the no.
    return nUserDialogChoice != IDNO;
}

bool IsPortClosed(HWND dialog, const RenameTerms& terms, HDEVINFO set, SP_DEVINFO_DATA* data) {
    const u32 sStatus = Kavro_COMPortCheckOpened(set, data);
    if (sStatus == 0) {
        return true;
    }
    u32 nUserDialogChoice = IDNO; // stays: the box asks nothing
    ErrorBoxShow(terms.portOpened, sStatus, dialog, 0, 0, 0,
                 terms.mayTakeClaimed ? &nUserDialogChoice : nullptr);
    if (terms.mayTakeClaimed) {
        TraceOut("%s - 2, nUserDialogChoice:%d\n", TraceOperation(), nUserDialogChoice);
    }
    return false;
}

} // namespace

u32 ChosenComNumber(HWND dialog, u32 oldNumber) {
    const INT selection = static_cast<INT>(SendDlgItemMessageW(dialog, IDC_PORT_NUMBER, CB_GETCURSEL, 0, 0));
    return selection != CB_ERR ? static_cast<u32>(selection) + 1 : oldNumber;
}

bool IsNumberChanged(u32 oldNumber, u32 newNumber) {
    if (newNumber == oldNumber) {
        TraceOut("%s - COM number not change\n", TraceOperation());
        return false;
    }
    TraceOut("%s - COM number change\n", TraceOperation());
    TraceOut("%s - COM number [old:%d, new:%d]\n", TraceOperation(), oldNumber, newNumber);
    return true;
}

bool RemapForUser(HWND dialog, const RenameTerms& terms, HDEVINFO set, SP_DEVINFO_DATA* data, u32 oldNumber,
                  u32 newNumber) {
    if (!IsNumberFree(dialog, terms, newNumber) || !IsPortClosed(dialog, terms, set, data)) {
        return false;
    }
    const u32 sStatus = Kavro_COMPortDoRemap(set, data, oldNumber, newNumber);
    if (sStatus != 0) {
        u32 nUserDialogChoice = IDNO; // the notice must have a place for its OK
        ErrorBoxShow(terms.remap, sStatus, dialog, 0, 0, 0, &nUserDialogChoice);
    }
    return sStatus == 0;
}

void NameChannel(BPPCHL* channel, u32 number) {
    FormatText(channel->CurrentInfo.Uart.PortName, StoreTextCapacity, TEXT("COM%d"), number);
}

void MoveChannelSettings(BPPCHL* channel) {
    WCHAR* saved = channel->SavedInfo.Uart.PortName;
    const WCHAR* current = channel->CurrentInfo.Uart.PortName;
    Kavro_COMPortMigratePortSettings(saved, current);
    CopyText(saved, StoreTextCapacity, current);
}
