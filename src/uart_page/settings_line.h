// The settings line of a port, a text of up to five fields: speed, parity, data bits, stop bits, flow
// control. This file deals with the text alone; settings_storage.h reads it from the profile, shows it and
// writes it.
//
// Reading accepts any text and always gives five fields in range. Writing joins fixed texts by index. Some of
// them contain a blank, as other programs' lines do, and reading trims it again.
#pragma once

#include "com_numbers/ports_section.h"

constexpr const WCHAR* DefaultBaudText = TEXT("9600");

// The items of two combos, in their order. Both tables end with a 0. The index of n data bits is n - 4. An
// empty field of a line means the entry at index 3, so that entry must stay where it is.
inline constexpr u32 BaudRateTable[] = {75,     110,    134,    150,    300,    600,   1200,  1800,
                                        2400,   4800,   7200,   9600,   14400,  19200, 38400, 57600,
                                        115200, 128000, 230400, 460800, 921600, 0};
inline constexpr WORD DataBitsTable[] = {4, 5, 6, 7, 8, 0};

// The default selections, by index into the combos.
constexpr u32 DefaultParityIndex = 2;      // None
constexpr u32 DefaultDataBitsIndex = 4;    // 8
constexpr u32 DefaultStopBitsIndex = 0;    // 1
constexpr u32 DefaultFlowControlIndex = 2; // None

// The fields of a line. ParityIndex and DataBitsIndex are 0 to 4, StopBitsIndex and FlowControlIndex 0 to 2.
struct PortSettings {
    u32 BaudRate; // bits per second; any number
    u32 ParityIndex;
    u32 DataBitsIndex;
    u32 StopBitsIndex;
    u32 FlowControlIndex;
};

// Removes all leading and trailing blanks, U+0020 only, in place.
void TrimBlanks(WCHAR* text);

// The first occurrence of `sep` in a text, or the terminator if there is none.
WCHAR* ScanComma(WCHAR* text, const WCHAR* sep);

// Parses a line, which is cut at its commas. `baudText` is its first field, untrimmed, within `line`.
PortSettings ParseSettingsLine(WCHAR* line, const WCHAR*& baudText);

// Completes a line that holds the text of the baud rate, from the four selections. False if an index is out
// of range. A line that does not fit `capacity` units is cut.
bool ComposeSettingsLine(WCHAR* line, u32 capacity, const PortSettings& settings);

bool SamePortSettings(const PortSettings& left, const PortSettings& right);
