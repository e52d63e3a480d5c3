// The electrical interface of a UART: its modes, the capabilities that each mode needs, and the values that
// each stores.
#pragma once

#include "device_model/board_params.h"
#include "reporting/trace.h"

// Bits of `UartCapability`.
enum UartCapabilityBit : u32 {
    CapRS232 = 0x01,
    CapRS422 = 0x02,
    CapRS485 = 0x04,
    CapAHDC = 0x08,
    CapCS = 0x10, // the RS-485 ACS function
    CapAutoRS422485 = 0x20,
    CapRS422Termination = 0x40,
    CapRS485Termination = 0x80,
};

// The six values that the choice of a mode sets.
struct InterfaceSettings {
    u32 UartMode;
    u32 UartAHDC;
    u32 UartCS;
    u32 UartAutoRS422485;
    u32 UartRS422Termination;
    u32 UartRS485Termination;
};

// One mode. Each condition is a mask of capability bits. `offered` and `required` need all of their bits, the
// others any of theirs.
struct UartMode {
    u32 mode; // the value of `UartMode`
    const WCHAR* text;
    u32 BPPCHL::*comboPos; // where the record keeps the mode's place in the combo
    u32 offered;           // the mode can be chosen
    u32 required;          // the mode can be stored; tested bit by bit
    u32 termination;       // the termination box is enabled
    u32 acs;               // the ACS box is enabled
    u32 settings;          // the values that the mode can set, by their capability bits
    // The trace line for a missing required bit. It prints the capability.
    [[no_unique_address]] TraceFormatFor<TraceName, u32> unsupported;
};

constexpr u32 UartModeCount = 4;

// The modes, in the order in which the combo offers them.
extern const UartMode UartModes[UartModeCount];

// The mode of a stored value, or null if the value is no mode.
const UartMode* FindUartMode(u32 mode);

bool HasAll(u32 capability, u32 bits);
bool HasAny(u32 capability, u32 bits);

InterfaceSettings SettingsOf(const UartBasicInfo& uart);
void SetSettings(UartBasicInfo& uart, const InterfaceSettings& settings);
bool SameSettings(const InterfaceSettings& left, const InterfaceSettings& right);

// The values that a mode stores on a UART of this capability, depending on the two boxes. A value is 1 only
// if its capability bit is set.
InterfaceSettings ChooseSettings(const UartMode& mode, u32 capability, bool termination, bool acs);
