// The settings line of a port, one text of up to five fields: speed, parity, data bits, stop bits, flow
// control. Here is its text alone; where it is kept and shown is settings_storage.h's.
//
// Reading takes any text and always gives five fields in range. Writing puts the fields together by index;
// some parts carry a blank that other programs' lines have too, and reading trims it away again.
#pragma once

#include "com_numbers/ports_section.h"

constexpr const WCHAR* DefaultBaudText = TEXT("9600");

// Both end with a 0. The index of a data bit count n is n - 4.
extern const u32 BaudRateTable[22];
extern const WORD DataBitsTable[6];

// The selections of a fresh port, by index into the combos.
constexpr u32 DefaultParityIndex = 2;      // None
constexpr u32 DefaultDataBitsIndex = 4;    // 8
constexpr u32 DefaultStopBitsIndex = 0;    // 1
constexpr u32 DefaultFlowControlIndex = 2; // None

// What a line says. ParityIndex and DataBitsIndex are 0 to 4, StopBitsIndex and FlowControlIndex 0 to 2.
struct PortSettings {
    u32 BaudRate; // bits per second; any number
    u32 ParityIndex;
    u32 DataBitsIndex;
    u32 StopBitsIndex;
    u32 FlowControlIndex;
};

// Removes all leading and trailing blanks, U+0020 only, in place.
void TrimBlanks(WCHAR* text);

// The first occurrence of the text `sep`, or the terminator if there is none.
WCHAR* ScanComma(WCHAR* text, const WCHAR* sep);

// Takes a line apart. The line is cut at its commas; `baudText` is its first field, untrimmed, within `line`.
PortSettings ParseSettingsLine(WCHAR* line, const WCHAR*& baudText);

// Puts a line together behind the baud rate's text that `line` holds, from the four selections. False if an
// index is none of the line's. A line that does not fit `capacity` units is cut.
bool ComposeSettingsLine(WCHAR* line, u32 capacity, const PortSettings& settings);

bool SamePortSettings(const PortSettings& left, const PortSettings& right);
