#include "com_numbers/port_rename.h"

#include "com_numbers/com_port_database.h"
#include "com_numbers/com_remap.h"
#include "com_numbers/port_device.h"
#include "com_numbers/port_settings_migration.h"
#include "reporting/error_reporter.h"
#include "reporting/text_operations.h"
#include "resources/resource_ids.h"

PortRename RenameOfChannel(BPPCHL* channel, u32 oldNumber, u32 newNumber) {
    WCHAR* saved = channel->SavedInfo.Uart.PortName;
    return {channel->DeviceInfoSet,
            &channel->DeviceInfoData,
            oldNumber,
            newNumber,
            saved,
            channel->CurrentInfo.Uart.PortName,
            saved,
            StoreTextCapacity,
            nullptr};
}

u32 RenamePort(const PortRename& rename) {
    const u32 sStatus =
        Kavro_COMPortDoRemap(rename.DeviceInfoSet, rename.DeviceInfoData, rename.oldNumber, rename.newNumber);
    if (sStatus != 0) {
        return sStatus;
    }
    Kavro_COMPortBroadcastRemap(rename.DeviceInfoSet, rename.DeviceInfoData);
    FormatText(rename.newName, rename.nameCapacity, TEXT("COM%d"), rename.newNumber);
    if (rename.named != nullptr) {
        rename.named(rename);
    }
    Kavro_COMPortMigratePortSettings(rename.settingsName, rename.newName);
    if (rename.savedName != nullptr) {
        CopyText(rename.savedName, rename.nameCapacity, rename.newName);
    }
    return 0;
}

u32 ChosenComNumber(HWND dialog, u32 oldNumber) {
    const INT selection = static_cast<INT>(SendDlgItemMessageW(dialog, IDC_PORT_NUMBER, CB_GETCURSEL, 0, 0));
    return selection != CB_ERR ? static_cast<u32>(selection) + 1 : oldNumber;
}

bool RenamePortForUser(HWND dialog, const RenameTerms& terms, const PortRename& rename) {
    if (rename.newNumber == rename.oldNumber) {
        TraceOut("%s - COM number not change\n", TraceOperation());
        return true;
    }
    TraceOut("%s - COM number change\n", TraceOperation());
    TraceOut("%s - COM number [old:%d, new:%d]\n", TraceOperation(), rename.oldNumber, rename.newNumber);
    u32 nUserDialogChoice = IDNO;
    u32* answer = terms.mayTakeClaimed ? &nUserDialogChoice : nullptr;
    u32 sStatus = Kavro_COMPortCheckNumberInUse(rename.newNumber);
    if (sStatus != 0) {
        ErrorBoxShow(terms.numberInUse, sStatus, dialog, 0, 0, 0, answer);
        if (terms.mayTakeClaimed) {
            TraceOut("%s - 1, nUserDialogChoice:%d\n", TraceOperation(), nUserDialogChoice);
        }
        if (nUserDialogChoice == IDNO) {
            return false;
        }
    }
    sStatus = Kavro_COMPortCheckOpened(rename.DeviceInfoSet, rename.DeviceInfoData);
    if (sStatus != 0) {
        ErrorBoxShow(terms.portOpened, sStatus, dialog, 0, 0, 0, answer);
        if (terms.mayTakeClaimed) {
            TraceOut("%s - 2, nUserDialogChoice:%d\n", TraceOperation(), nUserDialogChoice);
        }
        return false;
    }
    sStatus = RenamePort(rename);
    if (sStatus != 0) {
        ErrorBoxShow(terms.remap, sStatus, dialog, 0, 0, 0, &nUserDialogChoice);
        return false;
    }
    return true;
}
