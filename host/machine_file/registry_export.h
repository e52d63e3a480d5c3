// The format of a registry export, "Windows Registry Editor Version 5.00": what regedit writes and imports,
// whatever the keys mean. It is read in one pass, and only the current value is held.
//
// It accepts lines of UTF-16LE with a byte order mark or of UTF-8, ended by CR LF or LF; blanks around the
// parts of a line; comments that begin with ;, also after a value and between its lines; and a text in quotes
// that runs over several lines, whose line ends belong to it. Any other line is an error, even in keys that
// nobody wants.
#pragma once

#include <cstddef>
#include <istream>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace host {

inline constexpr std::basic_string_view<WCHAR> export_first_line =
    TEXT("Windows Registry Editor Version 5.00");

// What is wrong with a file, for "file:line: expected ...".
struct Problem {
    std::string file;
    std::size_t line = 0; // from 1
    std::string expected;
};

// What a receiver wants of a key. The values of an unwanted key are checked and not passed on. A mistaken key
// is an error in the file: it has a slash where a backslash is meant.
enum class KeyUse { Wanted, Unwanted, Mistaken };

class ExportReceiver {
public:
    virtual ~ExportReceiver() = default;

    // The values that follow belong to this key, "HKEY_LOCAL_MACHINE\...".
    virtual KeyUse Key(std::basic_string_view<WCHAR> path) = 0;
    // Everything read so far of the key and of the keys below it is deleted too.
    virtual void DeleteKey(std::basic_string_view<WCHAR> path) = 0;
    // The key's default value has no name. A text includes its terminator.
    virtual void SetValue(std::basic_string_view<WCHAR> name, DWORD type, std::span<const BYTE> data) = 0;
    virtual void DeleteValue(std::basic_string_view<WCHAR> name) = 0;
};

// Returns false, with the first line that is wrong, if the file is malformed. The receiver then has
// everything before that line.
bool ReadExport(std::istream& in, const std::string& file, ExportReceiver& receiver, Problem& problem);

// Writes UTF-16LE with a byte order mark and CR LF, with long values wrapped as regedit wraps them. The state
// of the stream tells whether everything could be written.
class ExportWriter {
public:
    explicit ExportWriter(std::ostream& out);

    // Writes the text after a ; as a line. It must not contain a line end.
    void Comment(std::basic_string_view<WCHAR> text);
    void Key(std::basic_string_view<WCHAR> path);
    void DeleteValue(std::basic_string_view<WCHAR> name);
    // A value that can't be written as a text or a number is written as bytes, so that every value can be
    // read back unchanged.
    void SetValue(std::basic_string_view<WCHAR> name, DWORD type, std::span<const BYTE> data);

private:
    void Write(std::basic_string_view<WCHAR> text);

    std::ostream& out_;
};

} // namespace host
