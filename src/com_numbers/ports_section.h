// The section of the system profile in which every serial port of the machine keeps its settings, one line
// under the port's name and a colon. Other programs read and write it too.
#pragma once

#include "platform/platform.h"

constexpr const WCHAR* PortsSection = TEXT("Ports");

// Units of the buffer that a line is read into, terminator included.
constexpr u32 SettingsLineCapacity = 81;

// The line for a port that has none.
constexpr const WCHAR* DefaultSettingsLine = TEXT("9600,n,8,1");

// Makes the key of a port's line, "COM3:" for the name COM3. It is cut at `capacity` units.
void MakeSettingsKey(WCHAR* key, u32 capacity, const WCHAR* portName);
