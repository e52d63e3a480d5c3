#include "host/machine_file/registry_export.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "host/machine_file/text_lines.h"

namespace host {
namespace {

using Text = std::basic_string<WCHAR>;
using TextView = std::basic_string_view<WCHAR>;

constexpr TextView roots[] = {TEXT("HKEY_LOCAL_MACHINE"), TEXT("HKEY_CLASSES_ROOT"),
                              TEXT("HKEY_CURRENT_USER"), TEXT("HKEY_USERS"), TEXT("HKEY_CURRENT_CONFIG")};

struct Malformed {
    std::size_t line;
    std::string expected;
};

bool IsBlank(WCHAR unit) {
    return unit == ' ' || unit == '\t';
}

WCHAR UpperLetter(WCHAR unit) {
    return unit >= 'a' && unit <= 'z' ? static_cast<WCHAR>(unit - 'a' + 'A') : unit;
}

constexpr auto digit_values = [] {
    std::array<std::int8_t, 0x80> values{};
    values.fill(-1);
    for (std::int8_t i = 0; i < 16; ++i) {
        values[static_cast<unsigned char>("0123456789abcdef"[i])] = i;
        values[static_cast<unsigned char>("0123456789ABCDEF"[i])] = i;
    }
    return values;
}();

// -1 if it is not a hexadecimal digit.
int DigitValue(WCHAR unit) {
    return unit < digit_values.size() ? digit_values[unit] : -1;
}

class Reader {
public:
    Reader(std::istream& in, ExportReceiver& receiver) : lines_(in), receiver_(receiver) {}

    void Run() {
        if (!NextLine() || !TakeWord(export_first_line) || (SkipBlanks(), at_ != end_)) {
            throw Malformed{1, "the line \"Windows Registry Editor Version 5.00\""};
        }
        while (NextLine()) {
            SkipBlanks();
            if (AtLineEnd()) {
                continue;
            }
            if (*at_ == '[') {
                ReadKey();
            } else if (*at_ == '"' || *at_ == '@') {
                ReadValue();
            } else {
                Fail("a key in brackets, a value with its name in quotes, or a comment");
            }
        }
    }

private:
    [[noreturn]] void Fail(const char* expected) const { throw Malformed{lines_.Number(), expected}; }

    bool NextLine() {
        if (!lines_.Next()) {
            if (lines_.Broken() != nullptr) {
                throw Malformed{lines_.Number() + 1, lines_.Broken()};
            }
            return false;
        }
        at_ = lines_.Line().data();
        end_ = at_ + lines_.Line().size();
        return true;
    }

    void SkipBlanks() {
        while (at_ != end_ && IsBlank(*at_)) {
            ++at_;
        }
    }
    bool AtLineEnd() const { return at_ == end_ || *at_ == ';'; }
    void EndLine(const char* expected) {
        SkipBlanks();
        if (!AtLineEnd()) {
            Fail(expected);
        }
    }
    bool Take(char character) {
        const bool is_here = at_ != end_ && *at_ == static_cast<WCHAR>(character);
        at_ += is_here ? 1 : 0;
        return is_here;
    }
    bool TakeWord(TextView word) {
        const bool is_here = TextView(at_, end_).starts_with(word);
        at_ += is_here ? word.size() : 0;
        return is_here;
    }

    // A key's name may hold any bracket. It ends at the last bracket of the line.
    void ReadKey() {
        ++at_;
        const bool deletes = Take('-');
        const std::size_t length = TextView(at_, end_).rfind(']');
        if (length == TextView::npos) {
            Fail("] after the key");
        }
        const TextView path(at_, length);
        const TextView root = path.substr(0, path.find('\\'));
        if (std::ranges::none_of(
                roots, [&](TextView each) { return std::ranges::equal(root, each, {}, UpperLetter); })) {
            Fail("a key that begins with HKEY_LOCAL_MACHINE\\ or another root");
        }
        RefuseNul(path);
        at_ += length + 1;
        EndLine("the end of the line after ]");
        if (deletes) {
            state_ = State::Unwanted;
            receiver_.DeleteKey(path);
            return;
        }
        const KeyUse use = receiver_.Key(path);
        if (use == KeyUse::Mistaken) {
            Fail("\\ and not / between the names of a key");
        }
        state_ = use == KeyUse::Wanted ? State::Wanted : State::Unwanted;
    }

    // Importers ignore what follows a NUL.
    void RefuseNul(TextView text) const {
        if (text.find(WCHAR{0}) != TextView::npos) {
            Fail("a text without NUL");
        }
    }

    void ReadValue() {
        if (state_ == State::NoKey) {
            Fail("a key in brackets before the first value");
        }
        name_.clear();
        if (!Take('@')) {
            ReadQuoted(name_, false);
        }
        SkipBlanks();
        if (!Take('=')) {
            Fail("= after the value's name");
        }
        SkipBlanks();
        if (Take('-')) {
            EndLine("the end of the line after -");
            if (IsWanted()) {
                receiver_.DeleteValue(name_);
            }
        } else if (at_ != end_ && *at_ == '"') {
            text_.clear();
            ReadQuoted(text_, true);
            // The last unit of the text is its own terminator.
            Deliver(REG_SZ,
                    {reinterpret_cast<const BYTE*>(text_.c_str()), (text_.size() + 1) * sizeof(WCHAR)});
        } else if (TakeWord(TEXT("dword:"))) {
            const DWORD number = ReadNumber();
            EndLine("the end of the line after the number");
            Deliver(REG_DWORD, {reinterpret_cast<const BYTE*>(&number), sizeof number});
        } else if (TakeWord(TEXT("hex"))) {
            const DWORD type = ReadType();
            ReadBytes();
            Deliver(type, data_);
        } else {
            Fail("a text in quotes, dword:, hex: or -");
        }
    }

    bool IsWanted() const { return state_ == State::Wanted; }

    void Deliver(DWORD type, std::span<const BYTE> data) {
        if (IsWanted()) {
            receiver_.SetValue(name_, type, data);
        }
    }

    // Reads a text in quotes. If it is a value's text, only blanks may follow on the line.
    void ReadQuoted(Text& text, bool is_value) {
        const std::size_t first_number = lines_.Number();
        ++at_;
        for (;;) {
            const WCHAR* const special =
                std::find_if(at_, end_, [](WCHAR u) { return u == '"' || u == '\\'; });
            RefuseNul({at_, special});
            if (IsWanted()) {
                text.append(at_, special);
            }
            at_ = special;
            if (at_ == end_) {
                if (!is_value) {
                    Fail("\" after the value's name");
                }
                if (IsWanted()) {
                    text.append(lines_.End());
                }
                if (!NextLine()) {
                    throw Malformed{first_number, "\" after the text"};
                }
            } else if (*at_++ == '"') {
                break;
            } else {
                const WCHAR unescaped = ReadEscape();
                if (IsWanted()) {
                    text += unescaped;
                }
            }
        }
        if (!is_value) {
            return;
        }
        // If the first quote of a later line ends the text and more follows, that quote was meant to begin a
        // name.
        const bool is_name = lines_.Number() != first_number && at_ == lines_.Line().data() + 1;
        SkipBlanks();
        if (!AtLineEnd()) {
            throw Malformed{is_name ? first_number : lines_.Number(),
                            is_name ? "\" after the text" : "the end of the line after \""};
        }
    }

    WCHAR ReadEscape() {
        static constexpr struct {
            char letter, meaning;
        } escapes[] = {{'\\', '\\'}, {'"', '"'}, {'n', '\n'}, {'r', '\r'}};
        for (const auto& escape : escapes) {
            if (Take(escape.letter)) {
                return static_cast<WCHAR>(escape.meaning);
            }
        }
        Fail("\\ or \" after \\");
    }

    DWORD ReadNumber() {
        DWORD number = 0;
        int digits = 0;
        for (int digit; at_ != end_ && (digit = DigitValue(*at_)) >= 0; ++at_, ++digits) {
            number = number << 4 | static_cast<DWORD>(digit);
        }
        if (digits < 1 || digits > 8) {
            Fail("one to eight hexadecimal digits");
        }
        return number;
    }

    // Reads the rest of "hex:" or "hex(type):" after hex.
    DWORD ReadType() {
        DWORD type = REG_BINARY;
        if (Take('(')) {
            type = ReadNumber();
            if (!Take(')')) {
                Fail(") after the value's type");
            }
        }
        if (!Take(':')) {
            Fail(": after hex");
        }
        return type;
    }

    // Reads bytes separated by commas. The line continues after a comma with \ at its end.
    void ReadBytes() {
        data_.clear();
        SkipBlanks();
        if (AtLineEnd()) {
            return;
        }
        do {
            TakeWholeBytes();
            SkipBlanks();
            while (Take('\\')) {
                EndLine("the end of the line after \\");
                do {
                    if (!NextLine()) {
                        Fail("another line after \\");
                    }
                    SkipBlanks();
                } while (AtLineEnd());
                TakeWholeBytes();
                SkipBlanks();
            }
            const int first = at_ == end_ ? -1 : DigitValue(*at_++);
            if (first < 0) {
                Fail("a byte in two hexadecimal digits");
            }
            const int second = at_ == end_ ? -1 : DigitValue(*at_);
            at_ += second >= 0 ? 1 : 0;
            data_.push_back(static_cast<BYTE>(second < 0 ? first : first << 4 | second));
            SkipBlanks();
        } while (Take(','));
        EndLine("a comma or the end of the line after the byte");
    }

    // Reads the bulk of a line: bytes of two digits, each followed by a comma.
    void TakeWholeBytes() {
        for (; end_ - at_ >= 3 && at_[2] == ','; at_ += 3) {
            const int value = DigitValue(at_[0]) << 4 | DigitValue(at_[1]);
            if (value < 0) {
                return;
            }
            if (IsWanted()) {
                data_.push_back(static_cast<BYTE>(value));
            }
        }
    }

    enum class State { NoKey, Unwanted, Wanted };

    TextLines lines_;
    ExportReceiver& receiver_;
    State state_ = State::NoKey;
    const WCHAR* at_ = nullptr; // the rest of the current line
    const WCHAR* end_ = nullptr;
    Text name_, text_;
    std::vector<BYTE> data_;
};

} // namespace

bool ReadExport(std::istream& in, const std::string& file, ExportReceiver& receiver, Problem& problem) {
    try {
        Reader(in, receiver).Run();
        return true;
    } catch (const Malformed& malformed) {
        problem = {file, malformed.line, malformed.expected};
        return false;
    }
}

} // namespace host
