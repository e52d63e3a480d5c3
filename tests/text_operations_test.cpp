// The bounded text operations: the contents of the destination and of what follows it, and the result.
#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

#include "reporting/text_operations.h"
#include "simulated/machine.h"

namespace {

constexpr u32 room = 24;
constexpr char16_t guard = u'\xFFFD';

// A destination of `capacity` units. Nothing may be written after it.
struct Destination {
    explicit Destination(std::u16string_view before = {}) {
        std::ranges::fill(units, guard);
        before.copy(units, room);
    }
    // The text, after a check that nothing was written after the capacity.
    std::string Text() const {
        return sim::ToUtf8(std::u16string_view(units, std::ranges::find(units, u'\0')));
    }
    bool IsUntouchedFrom(u32 place) const {
        return std::all_of(units + place, units + room, [](char16_t unit) { return unit == guard; });
    }
    char16_t units[room];
};

TEST(TextOperations, FormatGivesEveryConversionAndCutsAtTheCapacity) {
    const struct {
        const char* what;
        u32 capacity;
        std::function<u32(WCHAR*, u32)> format;
        u32 result;
        const char* text;
    } cases[] = {
#define FORMAT(...) [](WCHAR* to, u32 capacity) { return FormatText(to, capacity, __VA_ARGS__); }
        {"exactly one less than the capacity fits", 4, FORMAT(u"%s", u"abc"), TextDone, "abc"},
        {"one more is cut", 4, FORMAT(u"%s", u"abcd"), TextCut, "abc"},
        {"capacity 1 has room for the empty text", 1, FORMAT(u"%s", u""), TextDone, ""},
        {"capacity 1 has room for nothing else", 1, FORMAT(u"a", 0), TextCut, ""},
        {"a cut in the middle of a number", 6, FORMAT(u"COM%d", 256), TextCut, "COM25"},
        {"%d is signed", room, FORMAT(u"%d", 0xFFFFFFFFu), TextDone, "-1"},
        {"the lowest number", room, FORMAT(u"%d", 0x80000000u), TextDone, "-2147483648"},
        {"both forms of a text", room, FORMAT(u"%ws (%s)", u"Port", u"COM5"), TextDone, "Port (COM5)"},
        {"an address in capitals, without leading zeros", room, FORMAT(u"%I64X", u64{0x1FEC0ABCD}), TextDone,
         "1FEC0ABCD"},
        {"the highest address just fits", 17, FORMAT(u"%I64X", ~u64{0}), TextDone, "FFFFFFFFFFFFFFFF"},
        {"a percent sign", room, FORMAT(u"100%%", 0), TextDone, "100%"},
        {"the highest capacity", room,
         [](WCHAR* to, u32) { return FormatText(to, TextMaxCapacity, u"%d", 0); }, TextDone, "0"},
        {"a value too few ends the text", room, FORMAT(u"a%db%d", 1), TextCut, "a1b"},
        {"a value too many is passed over", room, FORMAT(u"a%d", 1, 2), TextDone, "a1"},
        {"a text where a number is due is not read", room, FORMAT(u"a%d", u"5"), TextCut, "a"},
        {"a number where a text is due is not followed", room, FORMAT(u"a%s", 5), TextCut, "a"},
        {"a 32-bit number where an address is due", room, FORMAT(u"a%I64X", 5), TextCut, "a"},
        {"an unknown conversion", room, FORMAT(u"a%x", 5), TextCut, "a"},
        {"a percent sign at the end", room, FORMAT(u"a%", 5), TextCut, "a"},
#undef FORMAT
    };
    for (const auto& each : cases) {
        Destination destination;
        EXPECT_EQ(each.format(destination.units, each.capacity), each.result) << each.what;
        EXPECT_EQ(destination.Text(), each.text) << each.what;
        EXPECT_TRUE(destination.IsUntouchedFrom(each.capacity)) << each.what;
    }
}

TEST(TextOperations, CopyAndAppendStayWithinTheCapacity) {
    constexpr bool copies = false;
    constexpr bool appends = true;
    const struct {
        const char* what;
        bool append;
        std::u16string_view before;
        u32 capacity;
        const WCHAR* source;
        u32 result;
        const char* text;
        u32 untouched_from;
    } cases[] = {
        {"copy: fits with its terminator", copies, u"", 4, u"abc", TextDone, "abc", 4},
        {"copy: one unit too long", copies, u"", 4, u"abcd", TextCut, "abc", 4},
        {"copy: capacity 1 leaves the empty text", copies, u"", 1, u"abc", TextCut, "", 1},
        {"copy: the empty text", copies, u"", 1, u"", TextDone, "", 1},
        {"append: fits with its terminator", appends, {u"ab\0", 3}, 6, u"cde", TextDone, "abcde", 6},
        {"append: one unit too long", appends, {u"ab\0", 3}, 6, u"cdef", TextCut, "abcde", 6},
        {"append: no text leaves the text", appends, {u"ab\0", 3}, 3, u"", TextDone, "ab", 3},
        {"append: to a full text", appends, {u"ab\0", 3}, 3, u"c", TextCut, "ab", 3},
        {"copy: the highest capacity", copies, u"", TextMaxCapacity, u"abc", TextDone, "abc", 4},
        {"append: the highest capacity", appends, {u"\0", 1}, TextMaxCapacity, u"abc", TextDone, "abc", 4},
        {"append: to the empty text", appends, {u"\0", 1}, 3, u"ab", TextDone, "ab", 3},
    };
    for (const auto& each : cases) {
        Destination destination(each.before);
        EXPECT_EQ((each.append ? AppendText : CopyText)(destination.units, each.capacity, each.source),
                  each.result)
            << each.what;
        EXPECT_EQ(destination.Text(), each.text) << each.what;
        EXPECT_TRUE(destination.IsUntouchedFrom(each.untouched_from)) << each.what;
    }
}

TEST(TextOperations, AnInvalidCapacityWritesNothingOrATerminator) {
    const auto format = [](WCHAR* to, u32 capacity, const WCHAR* text) {
        return FormatText(to, capacity, u"%s", text);
    };
    const struct {
        const char* what;
        std::function<u32(WCHAR*, u32, const WCHAR*)> operation;
        u32 capacity;
        std::u16string_view before;
        bool terminates;
    } cases[] = {
        {"format, none", format, 0, u"xy", false},
        {"format, too much", format, 0x80000000, u"xy", true},
        {"copy, none", CopyText, 0, u"xy", false},
        {"copy, too much", CopyText, 0xFFFFFFFF, u"xy", true},
        {"append, none", AppendText, 0, {u"xy\0", 3}, false},
        {"append, too much", AppendText, 0x80000000, {u"xy\0", 3}, false},
        {"append, no terminator within it", AppendText, 2, u"xy", false},
    };
    for (const auto& each : cases) {
        Destination destination(each.before);
        const Destination before = destination;
        EXPECT_EQ(each.operation(destination.units, each.capacity, u"abc"), TextInvalid) << each.what;
        EXPECT_EQ(destination.units[0], each.terminates ? u'\0' : before.units[0]) << each.what;
        EXPECT_TRUE(std::equal(destination.units + 1, destination.units + room, before.units + 1))
            << each.what;
    }
}

TEST(TextOperations, NumbersAreReadFromLeadingDigitsOnly) {
    const std::initializer_list<std::pair<const WCHAR*, u32>> decimals = {
        {u"", 0},        {u"256", 256}, {u"007", 7}, {u"9600,n", 9600}, {u"4294967295", 0xFFFFFFFF},
        {u" 5", 0},      {u"-5", 0},    {u"+5", 0},  {u"x5", 0},        {u"4294967296", 0},
        {u"5\u0665", 5}, {u"5/", 5},    {u"5:", 5},  {u"4294967301", 5}};
    const std::initializer_list<std::pair<const WCHAR*, u32>> names = {
        {u"COM5", 5},     {u"COM256", 256}, {u"LPT7", 7}, {u"COM", 0},
        {u"CO\0\x37", 0}, {u"\0OM7", 0},    {u"COMx", 0}, {u"COM 5", 0}};
    for (const auto& [text, number] : decimals) {
        EXPECT_EQ(ParseDecimal(text), number) << sim::ToUtf8(text);
    }
    for (const auto& [name, number] : names) {
        EXPECT_EQ(ComNumberFromName(name), number) << sim::ToUtf8(name);
    }
}

} // namespace
