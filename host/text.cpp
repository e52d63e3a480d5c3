#include "host/text.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <numeric>

namespace host {
namespace {

struct Range {
    char32_t first, last;
};

constexpr Range zero_width[] = {{0x300, 0x36F},   {0x591, 0x5BD},  {0x64B, 0x65F},   {0xE31, 0xE31},
                                {0xE34, 0xE3A},   {0xE47, 0xE4E},  {0x200B, 0x200F}, {0x202A, 0x202E},
                                {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}};
constexpr Range two_wide[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF},   {0xAC00, 0xD7A3},
                              {0xF900, 0xFAFF}, {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
                              {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};

bool IsIn(char32_t character, const auto& ranges) {
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const Range& range) {
        return range.first <= character && character <= range.last;
    });
}

// Blocks whose capitals come before their small letters by `distance`. 1 and -1 mean that each capital comes
// right before its small letter, with the capital at an even or an odd number.
constexpr struct {
    Range capitals;
    int distance;
} alphabets[] = {{{'A', 'Z'}, 32},       {{0xC0, 0xD6}, 32},   {{0xD8, 0xDE}, 32},
                 {{0x100, 0x137}, 1},    {{0x14A, 0x177}, 1},  {{0x391, 0x3A9}, 32},
                 {{0x400, 0x40F}, 0x50}, {{0x410, 0x42F}, 32}, {{0xFF21, 0xFF3A}, 32}};

char32_t FoldedCharacter(char32_t character) {
    for (const auto& [capitals, distance] : alphabets) {
        if (capitals.first <= character && character <= capitals.last) {
            return distance == 1    ? character | 1
                   : distance == -1 ? (character + 1) & ~char32_t{1}
                                    : character + static_cast<char32_t>(distance);
        }
    }
    return character;
}

char32_t Next(std::string_view::const_iterator& at, std::string_view::const_iterator end) {
    std::string_view rest(at, end);
    const char32_t character = TakeUtf8(rest);
    at = rest.begin();
    return character;
}

} // namespace

int ColumnsOf(char32_t character) {
    return IsIn(character, zero_width) ? 0 : IsIn(character, two_wide) ? 2 : 1;
}

int Columns(std::string_view text) {
    int columns = 0;
    for (auto at = text.begin(); at < text.end();) {
        columns += ColumnsOf(Next(at, text.end()));
    }
    return columns;
}

std::string CutTo(std::string_view text, int columns) {
    if (Columns(text) <= columns) {
        return std::string{text};
    }
    if (columns < 1) {
        return {};
    }
    auto at = text.begin();
    for (int left = columns - 1; at < text.end();) {
        auto next = at;
        if ((left -= ColumnsOf(Next(next, text.end()))) < 0) {
            break;
        }
        at = next;
    }
    return std::string{text.begin(), at} + "…";
}

std::string PaddedTo(std::string_view text, int columns) {
    return std::string{text}.append(static_cast<std::size_t>(std::max(0, columns - Columns(text))), ' ');
}

std::vector<std::string> BrokenAt(std::string_view text, int columns) {
    std::vector<std::string> lines{{}};
    auto line_start = text.begin(), last_blank = text.end();
    int width = 0;
    for (auto at = text.begin(); at < text.end();) {
        const auto here = at;
        const char32_t character = Next(at, text.end());
        if (character == '\r' || character == '\n') {
            if (character == '\r' && at < text.end() && *at == '\n') {
                ++at;
            }
            lines.back().assign(line_start, here);
            lines.emplace_back();
            line_start = at, last_blank = text.end(), width = 0;
            continue;
        }
        if (character == ' ') {
            last_blank = here;
        }
        width += ColumnsOf(character);
        if (width > columns && here != line_start) {
            const bool at_blank = last_blank != text.end();
            lines.back().assign(line_start, at_blank ? last_blank : here);
            lines.emplace_back();
            at = line_start = at_blank ? last_blank + 1 : here;
            while (at_blank && at < text.end() && *at == ' ') {
                line_start = ++at;
            }
            last_blank = text.end(), width = 0;
        }
    }
    lines.back().assign(line_start, text.end());
    return lines;
}

std::string Shown(std::string_view caption) {
    std::string result;
    for (std::size_t at = 0; at < caption.size(); ++at) {
        if (caption[at] == '&' && ++at == caption.size()) {
            break;
        }
        result += caption[at];
    }
    return result;
}

std::string Folded(std::string_view text) {
    std::string result;
    for (auto at = text.begin(); at < text.end();) {
        AppendUtf8(result, FoldedCharacter(Next(at, text.end())));
    }
    return result;
}

std::string NameOf(std::string_view caption) {
    // "(&R)" follows a caption in a script that no keyboard letter belongs to.
    const std::size_t key = caption.find("(&");
    std::string name = key != std::string_view::npos && caption.substr(key).find(')') == 3
                           ? Folded(Shown(caption.substr(0, key))) + Folded(Shown(caption.substr(key + 4)))
                           : Folded(Shown(caption));
    for (const std::string_view mark : {"\u200E", "\u200F", "\u202A", "\u202B", "\u202C"}) {
        for (std::size_t at; (at = name.find(mark)) != std::string::npos;) {
            name.erase(at, mark.size());
        }
    }
    for (bool cut = true; cut;) {
        cut = false;
        for (std::string_view end : {" ", ":", ".", "…", "：", "\u00A0"}) {
            if (name.ends_with(end)) {
                name.resize(name.size() - end.size());
                cut = true;
            }
        }
    }
    return name.substr(std::min(name.size(), name.find_first_not_of(' ')));
}

bool IsControl(char32_t character) {
    return character < ' ' || (character >= 0x7F && character < 0xA0);
}

std::string Escaped(std::string_view text) {
    std::string result;
    for (auto at = text.begin(); at < text.end();) {
        const char32_t character = Next(at, text.end());
        if (character == '\r' || character == '\n') {
            result += character == '\r' ? "\\r" : "\\n";
        } else if (IsControl(character)) {
            char code[8];
            std::snprintf(code, sizeof code, "\\x%02X", static_cast<unsigned>(character));
            result += code;
        } else {
            AppendUtf8(result, character);
        }
    }
    return result;
}

std::string Quoted(std::string_view text) {
    return '"' + Escaped(text) + '"';
}

bool ParseNumber(std::string_view text, long& number) {
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    return error == std::errc{} && stopped == end;
}

std::string Nearest(std::string_view word, const std::vector<std::string>& candidates) {
    const auto distance = [word](const std::string& candidate) {
        std::vector<std::size_t> row(candidate.size() + 1);
        std::iota(row.begin(), row.end(), std::size_t{0});
        for (const char letter : word) {
            std::size_t diagonal = row[0]++;
            for (std::size_t at = 0; at < candidate.size(); ++at) {
                const std::size_t changed = diagonal + (letter != candidate[at] ? 1 : 0);
                diagonal = row[at + 1];
                row[at + 1] = std::min({changed, diagonal + 1, row[at] + 1});
            }
        }
        return row.back();
    };
    const auto nearest = std::ranges::min_element(candidates, {}, distance);
    return nearest != candidates.end() && 2 * distance(*nearest) <= word.size() ? *nearest : std::string{};
}

bool SplitWords(std::string_view line, std::vector<std::string>& words) {
    bool in_quotes = false, in_word = false;
    for (const char character : line) {
        const bool blank = character == ' ' || character == '\t' || character == '\r';
        if (blank && !in_quotes) {
            in_word = false;
            continue;
        }
        if (!in_word) {
            words.emplace_back();
        }
        in_word = true;
        if (character == '"') {
            in_quotes = !in_quotes;
        } else {
            words.back() += character;
        }
    }
    return !in_quotes;
}

} // namespace host
