// The trace of what the library decides, one line at a time: at the entry and exit of each operation, and
// wherever it makes a choice. The library that ships contains no trace. A build with TRACE_LIVE passes each
// line to the sink that it links (`trace_line.h`).
//
// A line begins with the name of its operation, if it has one. "----> name" opens the operation, "<---- name"
// closes it, and so lines nest like brackets: a TraceScope writes both. A helper traces its lines under the
// name of the operation that it works for, `TraceOperation()`. Text operations, lookups and pure computations
// trace nothing.
#pragma once

#include <type_traits>

#include "platform/platform.h"

#ifdef TRACE_LIVE
inline constexpr bool TraceIsLive = true;
#else
inline constexpr bool TraceIsLive = false;
#endif

struct NoTraceText {
    constexpr NoTraceText(const char*) {}
};
// A narrow text in the trace; empty if the trace is not live. A helper that carries out a whole operation for
// its caller takes the caller's name in a last parameter, `= __builtin_FUNCTION()`.
using TraceName = std::conditional_t<TraceIsLive, const char*, NoTraceText>;

// The kinds of value that a line can print. A bool, an enumeration and a 32-bit number are Number32.
enum class TraceKind : u32 { Narrow, Wide, Number32, Number64, Pointer };

struct TraceConversion {
    const char* letters; // after the %
    TraceKind kind;      // "p" also prints the address of a text
    u32 base;
    u32 digits; // the fewest to print
};
inline constexpr TraceConversion TraceConversions[] = {
    {"s", TraceKind::Narrow, 0, 0},       {"ws", TraceKind::Wide, 0, 0},
    {"d", TraceKind::Number32, 10, 1},    {"03d", TraceKind::Number32, 10, 3},
    {"08X", TraceKind::Number32, 16, 8},  {"I64d", TraceKind::Number64, 10, 1},
    {"I64X", TraceKind::Number64, 16, 1}, {"p", TraceKind::Pointer, 16, 16},
};

// Returns the index of the conversion that follows a %, with the place after it in `after`, or
// TraceConversionCount if it is not one of them. An index and not a pointer, because g++ with sanitizers
// can't compare addresses at compile time.
constexpr u32 TraceConversionCount = ARRAYSIZE(TraceConversions);
constexpr u32 FindTraceConversion(const char* text, const char*& after) {
    for (u32 index = 0; index < TraceConversionCount; ++index) {
        const char* letter = TraceConversions[index].letters;
        const char* at = text;
        while (*letter != 0 && *letter == *at) {
            ++letter;
            ++at;
        }
        if (*letter == 0) {
            after = at;
            return index;
        }
    }
    return TraceConversionCount;
}

template <typename Argument> consteval TraceKind TraceKindOf() {
    using Plain = std::decay_t<Argument>;
    if constexpr (std::is_same_v<Plain, TraceName>) {
        return TraceKind::Narrow;
    } else if constexpr (std::is_pointer_v<Plain>) {
        using Pointed = std::remove_cv_t<std::remove_pointer_t<Plain>>;
        static_assert(!std::is_function_v<Pointed>);
        return std::is_same_v<Pointed, char>    ? TraceKind::Narrow
               : std::is_same_v<Pointed, WCHAR> ? TraceKind::Wide
                                                : TraceKind::Pointer;
    } else {
        static_assert(std::is_integral_v<Plain> || std::is_enum_v<Plain>);
        static_assert(std::is_same_v<Plain, bool> || sizeof(Plain) == 4 || sizeof(Plain) == 8);
        return sizeof(Plain) == 8 ? TraceKind::Number64 : TraceKind::Number32;
    }
}

// Never defined: the check of a wrong format calls one of these, which does not compile.
void TraceFormatHasUnknownConversion();
void TraceFormatNeedsAnotherArgument();
void TraceFormatNeedsArgumentOfAnotherKind();
void TraceFormatLeavesArgumentsOver();
void TraceFormatNeedsLineFeedAtItsEnd();

consteval void CheckTraceFormat(const char* format, const TraceKind* kinds, u32 count) {
    u32 next = 0;
    char last = 0;
    while (*format != 0) {
        last = *format++;
        if (last != '%') {
            continue;
        }
        const u32 conversion = FindTraceConversion(format, format);
        if (conversion == TraceConversionCount) {
            return TraceFormatHasUnknownConversion();
        }
        if (next == count) {
            return TraceFormatNeedsAnotherArgument();
        }
        const TraceKind kind = kinds[next++];
        const TraceKind wanted = TraceConversions[conversion].kind;
        const bool isAddress = kind == TraceKind::Narrow || kind == TraceKind::Wide;
        if (wanted != kind && !(wanted == TraceKind::Pointer && isAddress)) {
            return TraceFormatNeedsArgumentOfAnotherKind();
        }
    }
    if (next != count) {
        return TraceFormatLeavesArgumentsOver();
    }
    if (last != '\n') {
        return TraceFormatNeedsLineFeedAtItsEnd();
    }
}

// A format, checked at compile time against the kinds of its arguments. It keeps its text only if the trace
// is live; otherwise it is empty.
template <TraceKind... Kinds> struct TraceFormat {
    [[no_unique_address]] TraceName text;

    consteval TraceFormat(const char* format) : text(format) {
        constexpr TraceKind FormatKinds[] = {Kinds..., TraceKind::Pointer};
        CheckTraceFormat(format, FormatKinds, sizeof...(Kinds));
    }
};

template <typename... Arguments> using TraceFormatFor = TraceFormat<TraceKindOf<Arguments>()...>;

// One value of a line.
union TraceArgument {
    const void* pointer;
    u64 number;

    TraceArgument(const void* value) : pointer(value) {}
    template <typename T>
    requires(!std::is_pointer_v<T>) TraceArgument(T value) : number(static_cast<u64>(value)) {}
};

// The name of the innermost open operation; "" if none is open.
const char* TraceOperation();
void TraceLine(const char* format, const TraceArgument* arguments);

template <typename... Arguments>
void TraceLineOf(const TraceFormatFor<Arguments...>& format, const Arguments&... arguments) {
    const TraceArgument list[] = {arguments..., 0u};
    TraceLine(format.text, list);
}

// TraceOut(format, arguments...) traces one line. The conversions are "%s" for a narrow name, "%ws" for a
// UTF-16 text, "%d", "%03d" and "%08X" for 32 bits, "%I64d" and "%I64X" for 64 bits, and "%p" for a pointer.
// If the trace is not live, the arguments are checked but not evaluated.
#define TraceOut(...)                                                                                        \
    do {                                                                                                     \
        if constexpr (TraceIsLive) {                                                                         \
            TraceLineOf(__VA_ARGS__);                                                                        \
        }                                                                                                    \
    } while (false)

// An operation in the trace, from its entry to its exit. The entry is traced where the scope begins, the exit
// where it ends, on every path:
//
//     TraceScope trace;
//     if (key == INVALID_HANDLE_VALUE) {
//         return trace.Status(StatusNoKey);
//     }
//
// A result goes through the scope as it is returned, so that the exit prints it. An operation without a
// result, or with one that the trace has no form for, just returns.
struct TraceScope {
    [[no_unique_address]] TraceName operation;
    bool open = true;

    // Under the name of the function that declares it.
    explicit TraceScope(TraceName name = __builtin_FUNCTION()) : operation(name) {
        TraceOut("----> %s( )\n", operation);
    }
    // With values that decide what the operation does.
    template <typename... Values>
    TraceScope(const TraceFormatFor<TraceName, Values...>& entry, TraceName name, const Values&... values)
        : operation(name) {
        TraceOut(entry, operation, values...);
    }
    ~TraceScope() {
        if (open) {
            TraceOut("<---- %s\n", operation);
        }
    }
    TraceScope(const TraceScope&) = delete;
    TraceScope& operator=(const TraceScope&) = delete;

    bool Success(bool bSuccess) { return Exit("<---- %s, bSuccess:%d\n", bSuccess); }
    u32 Status(u32 sStatus) { return Exit("<---- %s, sStatus:%d\n", sStatus); }
    // Any other form. The first value is the result.
    template <typename Result, typename... Values>
    Result Exit(const TraceFormatFor<TraceName, Result, Values...>& exit, Result result,
                const Values&... values) {
        TraceOut(exit, operation, result, values...);
        open = false;
        return result;
    }
};
