// Where the COM port database keeps a COM number in its report of bits: number n is bit (n - 1) % 8, from the
// least significant, of byte (n - 1) / 8.
#pragma once

#include "platform/platform.h"

constexpr u32 PortUsageByte(u32 number) {
    return (number - 1) / 8;
}

constexpr BYTE PortUsageMask(u32 number) {
    return static_cast<BYTE>(1u << (number - 1) % 8);
}

// Whether the number, from 1, is claimed; `usage` reaches at least to its byte.
constexpr bool IsPortClaimed(const BYTE* usage, u32 number) {
    return (usage[PortUsageByte(number)] & PortUsageMask(number)) != 0;
}
