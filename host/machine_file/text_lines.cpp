#include "host/machine_file/text_lines.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "platform/utf8.h"

namespace host {
namespace {

static_assert(std::endian::native == std::endian::little, "UTF-16LE is read as it lies in the file");

constexpr std::size_t block = 0x10000; // units or bytes that are read at a time

} // namespace

TextLines::TextLines(std::istream& in) : in_(in), units_(block), bytes_(block) {
    in_.read(reinterpret_cast<char*>(bytes_.data()), 3);
    undecoded_ = static_cast<std::size_t>(in_.gcount());
    constexpr BYTE utf16_mark[] = {0xFF, 0xFE}, utf8_mark[] = {0xEF, 0xBB, 0xBF};
    if (undecoded_ >= 2 && std::equal(utf16_mark, std::end(utf16_mark), bytes_.data())) {
        utf16_ = true;
        // The third byte is half a unit, which FillUtf16 completes.
        bytes_[0] = bytes_[2];
        undecoded_ -= 2;
    } else if (undecoded_ >= 2 &&
               (bytes_[0] == 0xFE ? bytes_[1] == 0xFF : bytes_[0] == 0 && bytes_[1] != 0)) {
        broken_ = "UTF-16LE or UTF-8 and not UTF-16BE";
        at_end_ = true;
    } else if (undecoded_ == 3 && std::equal(utf8_mark, std::end(utf8_mark), bytes_.data())) {
        undecoded_ = 0;
    }
}

bool TextLines::Next() {
    line_ = next_;
    while (!FindLineFeed()) {
        if (at_end_) {
            length_ = filled_ - line_;
            next_ = filled_;
            if (length_ == 0 || broken_ != nullptr) {
                return false;
            }
            ++number_;
            return true;
        }
        Fill();
    }
    const bool after_return = searched_ > line_ && units_[searched_ - 1] == '\r';
    length_ = searched_ - line_ - (after_return ? 1 : 0);
    next_ = ++searched_;
    ++number_;
    return true;
}

// Searches for the byte of a line feed, because that is many times faster than searching for the unit. The
// byte is rarely half of another unit.
bool TextLines::FindLineFeed() {
    const char* const begin = reinterpret_cast<const char*>(units_.data());
    const char* const end = begin + filled_ * sizeof(WCHAR);
    for (const char* at = begin + searched_ * sizeof(WCHAR);
         (at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) !=
         nullptr;
         ++at) {
        searched_ = static_cast<std::size_t>(at - begin) / sizeof(WCHAR);
        if (units_[searched_] == '\n') {
            return true;
        }
    }
    searched_ = filled_;
    return false;
}

void TextLines::Fill() {
    std::copy(units_.begin() + static_cast<std::ptrdiff_t>(line_),
              units_.begin() + static_cast<std::ptrdiff_t>(filled_), units_.begin());
    filled_ -= line_;
    searched_ -= line_;
    line_ = 0;
    if (units_.size() < filled_ + block) {
        units_.resize(filled_ + block);
    }
    if (utf16_) {
        FillUtf16();
    } else {
        FillUtf8();
    }
    if (in_.bad()) {
        broken_ = "a file that can be read";
    }
}

void TextLines::FillUtf16() {
    char* const to = reinterpret_cast<char*>(units_.data() + filled_);
    std::copy_n(bytes_.begin(), undecoded_, to);
    in_.read(to + undecoded_, static_cast<std::streamsize>(block * sizeof(WCHAR) - undecoded_));
    const std::size_t count = undecoded_ + static_cast<std::size_t>(in_.gcount());
    undecoded_ = 0;
    filled_ += count / sizeof(WCHAR);
    at_end_ = !in_;
    if (count % sizeof(WCHAR) != 0) {
        broken_ = "the second byte of the last character";
    }
}

void TextLines::FillUtf8() {
    in_.read(reinterpret_cast<char*>(bytes_.data() + undecoded_),
             static_cast<std::streamsize>(block - undecoded_));
    const std::size_t count = undecoded_ + static_cast<std::size_t>(in_.gcount());
    at_end_ = !in_;
    const std::size_t decoded = Decode(bytes_.data(), count);
    undecoded_ = count - decoded;
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(decoded), undecoded_, bytes_.begin());
    // Only the beginning of a character may wait for the rest of its bytes.
    if (undecoded_ != 0 && (at_end_ || undecoded_ >= Utf8Length(bytes_[0]))) {
        broken_ = "text in UTF-8";
        at_end_ = true;
    }
}

// Returns the number of bytes taken: all of them, or those before an incomplete or invalid character.
std::size_t TextLines::Decode(const BYTE* bytes, std::size_t count) {
    std::size_t at = 0;
    while (at < count) {
        if (bytes[at] < 0x80) {
            units_[filled_++] = bytes[at++];
            continue;
        }
        u32 character = 0;
        const u32 length = DecodeUtf8(reinterpret_cast<const char*>(bytes + at), count - at, &character);
        if (length == 0) {
            break;
        }
        filled_ += EncodeUtf16(character, units_.data() + filled_);
        at += length;
    }
    return at;
}

} // namespace host
