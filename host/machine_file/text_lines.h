// The lines of a text file in UTF-16, whatever the file's own encoding: UTF-16LE with a mark, else UTF-8 with
// or without one. The file is decoded in blocks; what is held of it is one block, or one line where that is
// longer. Half a surrogate pair passes unchanged, in UTF-8 in its three-byte form.
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

    // Goes on to the next line; false at the end of the file, or where it can't be read on.
    bool Next();

    // The line without its end, and the end as it stands: CR LF, LF or, for the last line, nothing. Valid
    // until Next.
    std::basic_string_view<WCHAR> Line() const { return {units_.data() + line_, length_}; }
    std::basic_string_view<WCHAR> End() const {
        return {units_.data() + line_ + length_, next_ - line_ - length_};
    }

    // Of the current line, from 1.
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
    std::size_t line_ = 0;      // the current line's place in units_,
    std::size_t length_ = 0;    // its length,
    std::size_t next_ = 0;      // where the next one begins,
    std::size_t searched_ = 0;  // how far a line feed has been looked for,
    std::size_t filled_ = 0;    // and the end of what is decoded
    std::size_t number_ = 0;
    bool utf16_ = false;
    bool at_end_ = false; // all of the file is decoded, or as much as can be
    const char* broken_ = nullptr;
};

} // namespace host
