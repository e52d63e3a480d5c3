#include "reporting/live_trace/trace_line.h"

#include <atomic>

#include "platform/utf8.h"
#include "reporting/trace.h"

namespace {

// The operations that are open, the innermost last. The pages run on one thread. If a second sheet runs on
// another, a helper's line may carry the name of an operation of the other sheet, but nothing worse happens.
constexpr u32 OperationsMax = 64;
std::atomic<const char*> operations[OperationsMax];
std::atomic<u32> openOperations;

bool BeginsWith(const char* text, const char* beginning) {
    while (*beginning != 0 && *text == *beginning) {
        ++text;
        ++beginning;
    }
    return *beginning == 0;
}

void OpenOperation(const char* name) {
    const u32 depth = openOperations;
    if (depth < OperationsMax) {
        operations[depth] = name;
    }
    openOperations = depth + 1;
}

void CloseOperation() {
    const u32 depth = openOperations;
    openOperations = depth != 0 ? depth - 1 : 0;
}

struct Line {
    char text[TraceLineCapacity];
    u32 length = 0;
    bool cut = false;
};

constexpr u32 Room = TraceLineCapacity - 2; // for all but the line feed and the terminator

// Puts all of the bytes or none. Once some did not fit, nothing more is put.
void Put(Line& line, const char* bytes, u32 count) {
    line.cut = line.cut || count > Room - line.length;
    for (u32 i = 0; i < count && !line.cut; ++i) {
        line.text[line.length++] = bytes[i];
    }
}

void PutNarrow(Line& line, const char* text) {
    for (; *text != 0; ++text) {
        Put(line, text, 1);
    }
}

// In UTF-8.
void PutCharacter(Line& line, u32 character) {
    char bytes[4];
    Put(line, bytes, EncodeUtf8(character, bytes));
}

bool IsControl(u32 unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

// A control character would break the line, and half a surrogate pair has no form in UTF-8.
void PutWide(Line& line, const WCHAR* text) {
    while (*text != 0) {
        u32 character = 0;
        text += DecodeUtf16(text, text[1] != 0 ? 2 : 1, &character);
        if (IsSurrogate(character) || IsControl(character)) {
            character = ReplacementCharacter;
        }
        PutCharacter(line, character);
    }
}

void PutNumber(Line& line, u64 number, const TraceConversion& conversion) {
    char digits[20];
    u32 count = 0;
    const bool negative = conversion.base == 10 && number >> 63 != 0;
    u64 rest = negative ? 0 - number : number;
    do {
        digits[count++] = "0123456789ABCDEF"[rest % conversion.base];
        rest /= conversion.base;
    } while (rest != 0);
    while (count < conversion.digits) {
        digits[count++] = '0';
    }
    Put(line, "-", negative ? 1 : 0);
    while (count != 0) {
        Put(line, &digits[--count], 1);
    }
}

void PutValue(Line& line, const TraceArgument& argument, const TraceConversion& conversion) {
    switch (conversion.kind) {
    case TraceKind::Narrow:
        PutNarrow(line, static_cast<const char*>(argument.pointer));
        break;
    case TraceKind::Wide:
        PutWide(line, static_cast<const WCHAR*>(argument.pointer));
        break;
    case TraceKind::Number32: {
        const u32 number = static_cast<u32>(argument.number);
        PutNumber(line, conversion.base == 10 ? static_cast<u64>(static_cast<INT>(number)) : number,
                  conversion);
        break;
    }
    case TraceKind::Number64:
    case TraceKind::Pointer:
        PutNumber(line, argument.number, conversion);
        break;
    }
}

void Compose(Line& line, const char* format, const TraceArgument* arguments) {
    while (format[1] != 0) { // up to the line feed
        if (*format != '%') {
            Put(line, format++, 1);
        } else if (const u32 conversion = FindTraceConversion(format + 1, format);
                   conversion != TraceConversionCount) {
            PutValue(line, *arguments++, TraceConversions[conversion]);
        }
    }
    line.text[line.length++] = '\n';
    line.text[line.length] = 0;
}

} // namespace

const char* TraceOperation() {
    const u32 depth = openOperations;
    return depth != 0 && depth <= OperationsMax ? operations[depth - 1].load() : "";
}

void TraceLine(const char* format, const TraceArgument* arguments) {
    if (BeginsWith(format, "----> %s")) {
        OpenOperation(static_cast<const char*>(arguments->pointer));
    } else if (BeginsWith(format, "<---- %s")) {
        CloseOperation();
    }
    if (TraceIsHeard()) {
        Line line;
        Compose(line, format, arguments);
        PassTraceLine(line.text, line.length);
    }
}
