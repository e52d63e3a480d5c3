#include "reporting/text_operations.h"

namespace {

struct Conversion {
    const WCHAR* letters;
    FormatArgument::Kind kind;
};

constexpr Conversion Conversions[] = {
    {TEXT("d"), FormatArgument::Number32},
    {TEXT("s"), FormatArgument::Text},
    {TEXT("ws"), FormatArgument::Text},
    {TEXT("I64X"), FormatArgument::Number64},
};

// The text being formatted. `room` does not count the terminator.
struct Output {
    WCHAR* text;
    u32 room;
    u32 length;
    bool whole;
};

void Put(Output& output, WCHAR unit) {
    if (output.length < output.room) {
        output.text[output.length++] = unit;
    } else {
        output.whole = false;
    }
}

void PutNumber(Output& output, u64 number, u32 base) {
    WCHAR digits[20];
    u32 count = 0;
    do {
        digits[count++] = TEXT("0123456789ABCDEF")[number % base];
        number /= base;
    } while (number != 0);
    while (count != 0) {
        Put(output, digits[--count]);
    }
}

void PutValue(Output& output, const FormatArgument& argument) {
    if (argument.kind == FormatArgument::Number32) {
        LONG64 value = static_cast<INT>(argument.number);
        if (value < 0) {
            Put(output, TEXT('-'));
            value = -value;
        }
        PutNumber(output, static_cast<u64>(value), 10);
    } else if (argument.kind == FormatArgument::Number64) {
        PutNumber(output, argument.number, 16);
    } else {
        for (const WCHAR* unit = argument.text; *unit != 0; ++unit) {
            Put(output, *unit);
        }
    }
}

// The conversion that the text begins with, or null. `after` then points past it.
const Conversion* FindConversion(const WCHAR* text, const WCHAR*& after) {
    for (const Conversion& conversion : Conversions) {
        u32 matched = 0;
        while (conversion.letters[matched] != 0 && conversion.letters[matched] == text[matched]) {
            ++matched;
        }
        if (conversion.letters[matched] == 0) {
            after = text + matched;
            return &conversion;
        }
    }
    return nullptr;
}

} // namespace

u32 FormatTextWith(WCHAR* destination, u32 capacity, const WCHAR* format, const FormatArgument* arguments,
                   u32 count) {
    if (capacity == 0) {
        return TextInvalid;
    }
    if (capacity > TextMaxCapacity) {
        destination[0] = 0;
        return TextInvalid;
    }
    Output output = {destination, capacity - 1, 0, true};
    u32 next = 0;
    while (*format != 0 && output.whole) {
        if (format[0] != TEXT('%')) {
            Put(output, *format++);
        } else if (format[1] == TEXT('%')) {
            Put(output, TEXT('%'));
            format += 2;
        } else {
            const Conversion* conversion = FindConversion(format + 1, format);
            if (conversion == nullptr || next == count || arguments[next].kind != conversion->kind) {
                output.whole = false;
            } else {
                PutValue(output, arguments[next++]);
            }
        }
    }
    destination[output.length] = 0;
    if (!output.whole) {
        destination[capacity - 1] = 0;
        return TextCut;
    }
    return TextDone;
}

u32 CopyText(WCHAR* destination, u32 capacity, const WCHAR* source) {
    if (capacity == 0) {
        return TextInvalid;
    }
    if (capacity > TextMaxCapacity) {
        destination[0] = 0;
        return TextInvalid;
    }
    for (u32 i = 0; i < capacity; ++i) {
        destination[i] = source[i];
        if (source[i] == 0) {
            return TextDone;
        }
    }
    destination[capacity - 1] = 0;
    return TextCut;
}

u32 AppendText(WCHAR* destination, u32 capacity, const WCHAR* source) {
    if (capacity == 0 || capacity > TextMaxCapacity) {
        return TextInvalid;
    }
    u32 length = 0;
    while (length < capacity && destination[length] != 0) {
        ++length;
    }
    if (length == capacity) {
        return TextInvalid;
    }
    return CopyText(destination + length, capacity - length, source);
}

bool SameText(const WCHAR* left, const WCHAR* right) {
    while (*left != 0 && *left == *right) {
        ++left;
        ++right;
    }
    return *left == *right;
}

u32 ParseDecimal(const WCHAR* text) {
    u32 number = 0;
    for (; *text >= TEXT('0') && *text <= TEXT('9'); ++text) {
        number = number * 10 + static_cast<u32>(*text - TEXT('0'));
    }
    return number;
}

u32 ComNumberFromName(const WCHAR* name) {
    for (u32 i = 0; i < ARRAYSIZE(TEXT("COM")) - 1; ++i) {
        if (name[i] == 0) {
            return 0;
        }
    }
    return ParseDecimal(name + ARRAYSIZE(TEXT("COM")) - 1);
}
