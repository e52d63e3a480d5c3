#include "board_page/uart_modes.h"

// clang-format off
const UartMode UartModes[UartModeCount] = {
    {1, TEXT("RS-232"), &BPPCHL::RS232ComboxPos,
     CapRS232, CapRS232, 0, 0, 0,
     "%s - Set RS232 mode, capability(x%08X) not support\n"},
    {2, TEXT("RS-422"), &BPPCHL::RS422ComboxPos,
     CapRS422, CapRS422, CapRS422Termination, 0, CapRS422Termination,
     "%s - Set RS422 mode, capability(x%08X) not support\n"},
    {4, TEXT("RS-485"), &BPPCHL::RS485ComboxPos,
     CapRS485 | CapAHDC, CapRS485, CapRS485Termination, CapCS, CapAHDC | CapCS | CapRS485Termination,
     "%s - Set RS485 mode, capability(x%08X) not support\n"},
    {6, TEXT("Auto RS-422/485"), &BPPCHL::AutoRS422485ComboxPos,
     CapRS422 | CapRS485 | CapAHDC | CapAutoRS422485, CapRS422 | CapRS485,
     CapRS422Termination | CapRS485Termination, CapCS,
     CapAHDC | CapCS | CapAutoRS422485 | CapRS422Termination | CapRS485Termination,
     "%s - Set AUTORS422485 mode, capability(x%08X) not support\n"},
};
// clang-format on

const UartMode* FindUartMode(u32 mode) {
    for (const UartMode& candidate : UartModes) {
        if (candidate.mode == mode) {
            return &candidate;
        }
    }
    return nullptr;
}

bool HasAll(u32 capability, u32 bits) {
    return (capability & bits) == bits;
}

bool HasAny(u32 capability, u32 bits) {
    return (capability & bits) != 0;
}

InterfaceSettings SettingsOf(const UartBasicInfo& uart) {
    return {uart.UartMode,
            uart.UartAHDC,
            uart.UartCS,
            uart.UartAutoRS422485,
            uart.UartRS422Termination,
            uart.UartRS485Termination};
}

void SetSettings(UartBasicInfo& uart, const InterfaceSettings& settings) {
    uart.UartMode = settings.UartMode;
    uart.UartAHDC = settings.UartAHDC;
    uart.UartCS = settings.UartCS;
    uart.UartAutoRS422485 = settings.UartAutoRS422485;
    uart.UartRS422Termination = settings.UartRS422Termination;
    uart.UartRS485Termination = settings.UartRS485Termination;
}

bool SameSettings(const InterfaceSettings& left, const InterfaceSettings& right) {
    return left.UartMode == right.UartMode && left.UartAHDC == right.UartAHDC &&
           left.UartCS == right.UartCS && left.UartAutoRS422485 == right.UartAutoRS422485 &&
           left.UartRS422Termination == right.UartRS422Termination &&
           left.UartRS485Termination == right.UartRS485Termination;
}

InterfaceSettings ChooseSettings(const UartMode& mode, u32 capability, bool termination, bool acs) {
    const u32 possible = capability & mode.settings;
    return {mode.mode,
            HasAny(possible, CapAHDC),
            HasAny(possible, CapCS) && acs,
            HasAny(possible, CapAutoRS422485),
            HasAny(possible, CapRS422Termination) && termination,
            HasAny(possible, CapRS485Termination) && termination};
}
