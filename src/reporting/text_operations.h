// Bounded operations on UTF-16 text. Capacities are in units, terminator included. A text that does not fit
// is cut and terminated, so callers need not test the result.
#pragma once

#include <concepts>

#include "platform/platform.h"

constexpr u32 TextDone = 0;
constexpr u32 TextInvalid = 0x80070057; // the capacity or the destination
constexpr u32 TextCut = 0x8007007A;     // the destination is full and terminated
constexpr u32 TextMaxCapacity = 0x7FFFFFFF;

// One value for FormatText, with its kind. A format can come from a resource, so a conversion is carried out
// only on a value of its own kind.
struct FormatArgument {
    enum Kind : u32 { Number32, Number64, Text };

    Kind kind;
    union {
        u64 number;
        const WCHAR* text;
    };

    FormatArgument(const WCHAR* value) : kind(Text), text(value) {}
    template <std::integral T>
    FormatArgument(T value) : kind(sizeof(T) == 8 ? Number64 : Number32), number(value) {}
};

// Formats into the destination. The conversions are "%d" for a signed 32-bit decimal, "%s" and "%ws" for a
// text, "%I64X" for a 64-bit number in capital hexadecimal digits, and "%%" for a percent sign. Any other
// conversion, a missing value, or a value of another kind ends the text and counts as cut. Returns TextDone,
// TextInvalid or TextCut.
u32 FormatTextWith(WCHAR* destination, u32 capacity, const WCHAR* format, const FormatArgument* arguments,
                   u32 count);

template <typename... Arguments>
u32 FormatText(WCHAR* destination, u32 capacity, const WCHAR* format, Arguments... arguments) {
    const FormatArgument list[] = {arguments...};
    return FormatTextWith(destination, capacity, format, list, sizeof...(arguments));
}

// Copies the source up to its terminator. Returns TextDone, TextInvalid or TextCut.
u32 CopyText(WCHAR* destination, u32 capacity, const WCHAR* source);

// Appends the source to the text in the destination. Returns TextDone, TextCut or TextInvalid. If the
// destination has no terminator within its capacity, it is TextInvalid and nothing is written.
u32 AppendText(WCHAR* destination, u32 capacity, const WCHAR* source);

// Whether two texts are equal up to their terminators. Case counts.
bool SameText(const WCHAR* left, const WCHAR* right);

// The number at the start of a text, modulo 2 to the power 32, or 0 if the text starts with no digit.
u32 ParseDecimal(const WCHAR* text);

// The number of a port name, read after its first three characters, or 0 if the name is shorter.
u32 ComNumberFromName(const WCHAR* name);
