#include "com_numbers/port_rename.h"

#include "com_numbers/com_port_database.h"
#include "com_numbers/com_remap.h"
#include "com_numbers/port_settings_migration.h"
#include "reporting/error_reporter.h"
#include "reporting/text_operations.h"
#include "reporting/trace.h"

u32 RenamePort(HDEVINFO set, SP_DEVINFO_DATA* data, u32 oldNumber, u32 newNumber, WCHAR* newName,
               u32 newNameCapacity) {
    const u32 sStatus = Kavro_COMPortDoRemap(set, data, oldNumber, newNumber);
    if (sStatus == 0) {
        Kavro_COMPortBroadcastRemap(set, data);
        FormatText(newName, newNameCapacity, TEXT("COM%d"), newNumber);
    }
    return sStatus;
}

bool RenamePortForUser(HWND owner, const RenameFailureCodes& codes, HDEVINFO set, SP_DEVINFO_DATA* data,
                       u32 oldNumber, u32 newNumber, WCHAR* newName, u32 newNameCapacity) {
    u32 nUserDialogChoice = IDNO;
    u32 sStatus = Kavro_COMPortCheckNumberInUse(newNumber);
    if (sStatus != 0) {
        ErrorBoxShow(codes.numberInUse, sStatus, owner, 0, 0, 0, &nUserDialogChoice);
        TraceOut("%s - 1, nUserDialogChoice:%d\n", __func__, nUserDialogChoice);
        if (nUserDialogChoice != IDYES) {
            return false;
        }
    }
    sStatus = Kavro_COMPortCheckOpened(set, data);
    if (sStatus != 0) {
        ErrorBoxShow(codes.portOpened, sStatus, owner, 0, 0, 0, &nUserDialogChoice);
        TraceOut("%s - 2, nUserDialogChoice:%d\n", __func__, nUserDialogChoice);
        return false;
    }
    sStatus = RenamePort(set, data, oldNumber, newNumber, newName, newNameCapacity);
    if (sStatus != 0) {
        ErrorBoxShow(codes.remap, sStatus, owner, 0, 0, 0, &nUserDialogChoice);
        return false;
    }
    return true;
}
