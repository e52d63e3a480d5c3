#include "uart_page/settings_line.h"

#include "reporting/text_operations.h"

namespace {

// The entry that an empty field stands for, whatever the default line says. It is known by its place and not
// by its rate, so a rate that is added before it would change what an empty field means.
constexpr u32 MissingBaudIndex = 3;
static_assert(BaudRateTable[MissingBaudIndex] == 150);

constexpr const WCHAR* ParitySuffixes[] = {TEXT(",e"), TEXT(",o"), TEXT(",n"), TEXT(",m"), TEXT(",s")};
constexpr const WCHAR* DataBitsSuffixes[] = {TEXT(",4"), TEXT(",5"), TEXT(",6"), TEXT(",7"), TEXT(",8")};
constexpr const WCHAR* StopBitsSuffixes[] = {TEXT(",1"), TEXT(",1.5"), TEXT(",2 ")};
constexpr const WCHAR* FlowControlSuffixes[] = {TEXT(",x"), TEXT(",p"), TEXT(" ")};

// The fields after the baud rate, in the order of the line.
struct FieldSuffixes {
    u32 PortSettings::*index;
    const WCHAR* const* suffixes;
    u32 count;
};
constexpr FieldSuffixes LineSuffixes[] = {
    {&PortSettings::ParityIndex, ParitySuffixes, ARRAYSIZE(ParitySuffixes)},
    {&PortSettings::DataBitsIndex, DataBitsSuffixes, ARRAYSIZE(DataBitsSuffixes)},
    {&PortSettings::StopBitsIndex, StopBitsSuffixes, ARRAYSIZE(StopBitsSuffixes)},
    {&PortSettings::FlowControlIndex, FlowControlSuffixes, ARRAYSIZE(FlowControlSuffixes)},
};

// The first characters and the fields, by index.
constexpr const WCHAR* ParityLetters = TEXT("eonms");
constexpr const WCHAR* DataBitsDigits = TEXT("45678");
constexpr const WCHAR* FlowControlLetters = TEXT("xp");
constexpr const WCHAR* StopBitsFields[] = {TEXT("1"), TEXT("1.5"), TEXT("2")};

// Ends the field at the first comma of the text. Returns the place after the comma, or the terminator if
// there is none.
WCHAR* SplitField(WCHAR* text) {
    WCHAR* comma = ScanComma(text, TEXT(","));
    if (*comma == 0) {
        return comma;
    }
    *comma = 0;
    return comma + 1;
}

// Takes the next field, trimmed. `rest` then points past it.
WCHAR* NextField(WCHAR*& rest) {
    WCHAR* field = rest;
    rest = SplitField(field);
    TrimBlanks(field);
    return field;
}

// The index of a field's first character in `letters`, or `fallback`.
u32 IndexOfFirst(const WCHAR* field, const WCHAR* letters, u32 fallback) {
    for (u32 i = 0; field[0] != 0 && letters[i] != 0; ++i) {
        if (letters[i] == field[0]) {
            return i;
        }
    }
    return fallback;
}

u32 IndexOfStopBits(const WCHAR* field) {
    for (u32 i = 0; i < ARRAYSIZE(StopBitsFields); ++i) {
        if (lstrcmpW(field, StopBitsFields[i]) == 0) {
            return i;
        }
    }
    return DefaultStopBitsIndex;
}

} // namespace

void TrimBlanks(WCHAR* text) {
    const WCHAR* first = text;
    while (*first == TEXT(' ')) {
        ++first;
    }
    u32 length = 0;
    u32 kept = 0; // up to the last character that is not a blank
    for (; first[length] != 0; ++length) {
        text[length] = first[length];
        if (text[length] != TEXT(' ')) {
            kept = length + 1;
        }
    }
    text[kept] = 0;
}

WCHAR* ScanComma(WCHAR* text, const WCHAR* sep) {
    for (; *text != 0; ++text) {
        u32 matched = 0;
        while (sep[matched] != 0 && text[matched] == sep[matched]) {
            ++matched;
        }
        if (sep[matched] == 0) {
            break;
        }
    }
    return text;
}

PortSettings ParseSettingsLine(WCHAR* line, const WCHAR*& baudText) {
    PortSettings settings = {};
    WCHAR* rest = SplitField(line);
    baudText = line;
    settings.BaudRate = line[0] != 0 ? ParseDecimal(line) : BaudRateTable[MissingBaudIndex];
    settings.ParityIndex = IndexOfFirst(NextField(rest), ParityLetters, DefaultParityIndex);
    settings.DataBitsIndex = IndexOfFirst(NextField(rest), DataBitsDigits, DefaultDataBitsIndex);
    settings.StopBitsIndex = IndexOfStopBits(NextField(rest));
    settings.FlowControlIndex = IndexOfFirst(NextField(rest), FlowControlLetters, DefaultFlowControlIndex);
    return settings;
}

bool ComposeSettingsLine(WCHAR* line, u32 capacity, const PortSettings& settings) {
    for (const FieldSuffixes& field : LineSuffixes) {
        const u32 index = settings.*field.index;
        if (index >= field.count) {
            return false;
        }
        AppendText(line, capacity, field.suffixes[index]);
    }
    return true;
}

bool SamePortSettings(const PortSettings& left, const PortSettings& right) {
    return left.BaudRate == right.BaudRate && left.ParityIndex == right.ParityIndex &&
           left.DataBitsIndex == right.DataBitsIndex && left.StopBitsIndex == right.StopBitsIndex &&
           left.FlowControlIndex == right.FlowControlIndex;
}
