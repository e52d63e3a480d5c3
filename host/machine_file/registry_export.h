// The form of a registry export, "Windows Registry Editor Version 5.00": what regedit writes and takes,
// without regard to what the keys mean. It is read in one pass; what is held of it is the value at hand.
//
// It takes lines of UTF-16LE with a mark or of UTF-8, ended by CR LF or LF; blanks around the parts of a
// line; comments that begin with ;, also after a value and between the lines of one; a text in quotes over
// several lines, whose ends are part of it. Any other line is an error, in keys of no interest as well.
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

// What is wrong with a file: "file:line: expected ...".
struct Problem {
    std::string file;
    std::size_t line = 0; // from 1
    std::string expected;
};

// Takes what a file holds, in its order. Texts and data are valid during the call.
// What a receiver wants of a key. The values of one that is unwanted are checked and not handed on; one that
// is mistaken is an error of the file: it has a slash where a backslash is meant.
enum class KeyUse { Wanted, Unwanted, Mistaken };

class ExportReceiver {
public:
    virtual ~ExportReceiver() = default;

    // The values that follow belong to this key, "HKEY_LOCAL_MACHINE\...".
    virtual KeyUse Key(std::basic_string_view<WCHAR> path) = 0;
    // Also what was read of the key before is to go, and of all below it.
    virtual void DeleteKey(std::basic_string_view<WCHAR> path) = 0;
    // The key's default value has no name. A text has its terminator.
    virtual void SetValue(std::basic_string_view<WCHAR> name, DWORD type, std::span<const BYTE> data) = 0;
    virtual void DeleteValue(std::basic_string_view<WCHAR> name) = 0;
};

// False if the file is malformed, with the first line that is wrong. The receiver then has what stood before
// it.
bool ReadExport(std::istream& in, const std::string& file, ExportReceiver& receiver, Problem& problem);

// Writes UTF-16LE with a mark and CR LF, with long values wrapped as regedit does. The stream tells whether
// all of it could be written.
class ExportWriter {
public:
    explicit ExportWriter(std::ostream& out);

    // A line behind ; without a line end in it.
    void Comment(std::basic_string_view<WCHAR> text);
    void Key(std::basic_string_view<WCHAR> path);
    void DeleteValue(std::basic_string_view<WCHAR> name);
    // What can't stand as a text or a number goes out as bytes, so that any value comes back as it was.
    void SetValue(std::basic_string_view<WCHAR> name, DWORD type, std::span<const BYTE> data);

private:
    void Write(std::basic_string_view<WCHAR> text);

    std::ostream& out_;
};

} // namespace host
