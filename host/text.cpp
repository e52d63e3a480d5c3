#include "host/text.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <numeric>
#include <span>

namespace host {
namespace {

// The characters from `first` to `last`, each `step` after the one before, and what they have in common.
struct Range {
    char32_t first, last;
    int value;
    unsigned step;
};

#include "unicode_table.inc"

int ValueIn(std::span<const Range> ranges, char32_t character, int otherwise) {
    const auto range = std::ranges::lower_bound(ranges, character, {}, &Range::last);
    const bool is_in =
        range != ranges.end() && range->first <= character && (character - range->first) % range->step == 0;
    return is_in ? range->value : otherwise;
}

bool IsControl(char32_t character) {
    return character < ' ' || (character >= 0x7F && character < 0xA0);
}

constexpr std::string_view direction_marks[] = {"\u200E", "\u200F", "\u202A", "\u202B", "\u202C"};

void Remove(std::string& text, std::span<const std::string_view> marks) {
    for (const std::string_view mark : marks) {
        for (std::size_t at; (at = text.find(mark)) != std::string::npos;) {
            text.erase(at, mark.size());
        }
    }
}

char32_t Next(std::string_view::const_iterator& at, std::string_view::const_iterator end) {
    std::string_view rest(at, end);
    const char32_t character = TakeUtf8(rest);
    at = rest.begin();
    return character;
}

} // namespace

int ColumnsOf(char32_t character) {
    return character < 0x80 ? 1 : ValueIn(widths, character, 1);
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
    Remove(result, direction_marks);
    return result;
}

std::string Folded(std::string_view text) {
    std::string result;
    for (auto at = text.begin(); at < text.end();) {
        const char32_t character = Next(at, text.end());
        AppendUtf8(result, character + static_cast<char32_t>(ValueIn(small_letters, character, 0)));
    }
    return result;
}

std::string NameOf(std::string_view caption) {
    // "(&R)" follows a caption in a script that no keyboard letter belongs to.
    const std::size_t key = caption.find("(&");
    std::string name = key != std::string_view::npos && caption.substr(key).find(')') == 3
                           ? Folded(Shown(caption.substr(0, key))) + Folded(Shown(caption.substr(key + 4)))
                           : Folded(Shown(caption));
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
        } else if (ValueIn(invisible, character, 0) != 0) {
            char code[16];
            std::snprintf(code, sizeof code, "\\u{%X}", static_cast<unsigned>(character));
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

std::string AsWord(const std::string& text) {
    return text.find(' ') == std::string::npos ? text : '"' + text + '"';
}

} // namespace host
