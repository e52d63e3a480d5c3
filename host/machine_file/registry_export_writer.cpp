#include <algorithm>
#include <cstring>

#include "host/machine_file/registry_export.h"

namespace host {
namespace {

using Text = std::basic_string<WCHAR>;
using TextView = std::basic_string_view<WCHAR>;

constexpr TextView line_end = TEXT("\r\n");

// Whether a text can be written in quotes: it has one terminator, at its end, and no line end.
bool IsQuotable(std::span<const BYTE> data) {
    if (data.size() < sizeof(WCHAR) || data.size() % sizeof(WCHAR) != 0) {
        return false;
    }
    for (std::size_t at = 0; at < data.size(); at += sizeof(WCHAR)) {
        WCHAR unit;
        std::memcpy(&unit, data.data() + at, sizeof unit);
        if (unit == '\r' || unit == '\n' || (unit == 0) != (at + sizeof unit == data.size())) {
            return false;
        }
    }
    return true;
}

void AppendQuoted(Text& line, TextView text) {
    line += '"';
    for (const WCHAR unit : text) {
        if (unit == '\n' || unit == '\r') {
            line += unit == '\n' ? TEXT("\\n") : TEXT("\\r");
            continue;
        }
        if (unit == '"' || unit == '\\') {
            line += '\\';
        }
        line += unit;
    }
    line += '"';
}

// The default value has no name.
void AppendName(Text& line, TextView name) {
    if (name.empty()) {
        line += '@';
    } else {
        AppendQuoted(line, name);
    }
}

void AppendHex(Text& line, DWORD number, int digits) {
    for (int shift = 4 * digits; (shift -= 4) >= 0;) {
        line += static_cast<WCHAR>("0123456789abcdef"[number >> shift & 0xF]);
    }
}

// As regedit wraps them: no line exceeds 80 columns unless its name is long.
void AppendBytes(Text& line, std::span<const BYTE> data) {
    constexpr std::size_t last_column = 77;
    std::size_t line_begin = 0;
    for (std::size_t i = 0; i < data.size(); ++i) {
        if (i != 0) {
            line += ',';
            if (line.size() - line_begin >= last_column) {
                line += TEXT("\\\r\n");
                line_begin = line.size();
                line += TEXT("  ");
            }
        }
        AppendHex(line, data[i], 2);
    }
}

} // namespace

ExportWriter::ExportWriter(std::ostream& out) : out_(out) {
    Write(TEXT("\uFEFF"));
    Write(export_first_line);
    Write(line_end);
}

void ExportWriter::Key(TextView path) {
    Write(Text(line_end).append(TEXT("[")).append(path).append(TEXT("]")).append(line_end));
}

void ExportWriter::Comment(TextView text) {
    Write(Text(TEXT(";")).append(text.empty() ? TEXT("") : TEXT(" ")).append(text).append(line_end));
}

void ExportWriter::DeleteValue(TextView name) {
    Text line;
    AppendName(line, name);
    Write(line.append(TEXT("=-")).append(line_end));
}

void ExportWriter::SetValue(TextView name, DWORD type, std::span<const BYTE> data) {
    Text line;
    AppendName(line, name);
    line += '=';
    if (type == REG_SZ && IsQuotable(data)) {
        Text text(data.size() / sizeof(WCHAR) - 1, 0);
        std::memcpy(text.data(), data.data(), text.size() * sizeof(WCHAR));
        AppendQuoted(line, text);
    } else if (type == REG_DWORD && data.size() == sizeof(DWORD)) {
        DWORD number;
        std::memcpy(&number, data.data(), sizeof number);
        line += TEXT("dword:");
        AppendHex(line, number, 8);
    } else {
        line += TEXT("hex");
        if (type != REG_BINARY) {
            line += '(';
            Text digits;
            AppendHex(digits, type, 8);
            line += digits.substr(std::min(digits.find_first_not_of('0'), digits.size() - 1));
            line += ')';
        }
        line += ':';
        AppendBytes(line, data);
    }
    Write(line.append(line_end));
}

void ExportWriter::Write(TextView text) {
    out_.write(reinterpret_cast<const char*>(text.data()),
               static_cast<std::streamsize>(text.size() * sizeof(WCHAR)));
}

} // namespace host
