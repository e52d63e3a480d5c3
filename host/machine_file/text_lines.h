// The lines of a text file in UTF-16, whatever the file's own encoding: UTF-16LE with a byte order mark,
// otherwise UTF-8 with or without one. The file is decoded in blocks, and only one block is held, or one line
// if that is longer. Half a surrogate pair passes unchanged, in UTF-8 in its three-byte form.
#pragma once

#include <cstddef>
#include <istream>
#include <string_view>
#include <vector>

#include "platform/platform.h"

namespace host {

class TextLines {
public:
    explicit TextLines(std::istream& in);

    // Goes on to the next line; false at the end of the file, or if the rest can't be read.
    bool Next();

    // The line without its end, and the end as it is: CR LF, LF or, for the last line, nothing. Valid until
    // Next.
    std::basic_string_view<WCHAR> Line() const { return {units_.data() + line_, length_}; }
    std::basic_string_view<WCHAR> End() const {
        return {units_.data() + line_ + length_, next_ - line_ - length_};
    }

    // The number of the current line, from 1.
    std::size_t Number() const { return number_; }

    // Why the line after the current one can't be read: what was expected there. Null if all is well.
    const char* Broken() const { return broken_; }

private:
    bool FindLineFeed();
    void Fill();
    void FillUtf16();
    void FillUtf8();
    std::size_t Decode(const BYTE* bytes, std::size_t count);

    std::istream& in_;
    std::vector<WCHAR> units_;
    std::vector<BYTE> bytes_;   // UTF-8 as it was read
    std::size_t undecoded_ = 0; // bytes at the front of bytes_: the beginning of a character
    std::size_t line_ = 0;      // where the current line begins in units_,
    std::size_t length_ = 0;    // its length,
    std::size_t next_ = 0;      // where the next one begins,
    std::size_t searched_ = 0;  // how far a line feed has been searched for,
    std::size_t filled_ = 0;    // and the end of what is decoded
    std::size_t number_ = 0;
    bool utf16_ = false;
    bool at_end_ = false; // all of the file is decoded, or as much as is possible
    const char* broken_ = nullptr;
};

} // namespace host
