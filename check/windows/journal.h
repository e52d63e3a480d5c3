// What the check makes outside its own folder, a line a step, on disk before the step is done. The file lies
// in the folder for all users' data, so it is found by whoever starts the check next on this Windows, and by
// nobody elsewhere.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace check {

class Journal {
public:
    Journal();
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    // The lines of an earlier check, in their order; none if there is no journal. A line that its check had
    // no time to finish is left out: its step was not begun. False if there is one that can't be read.
    bool ReadEarlier(std::vector<std::string>& lines) const;

    // Begins a new journal. False if there is one already or none can be written.
    bool Begin();
    // True if the line is on the disk.
    bool Note(const std::string& line);
    // Takes the last line back: its step was refused and has made nothing.
    void Forget();

    // Deletes the file: all has been taken back.
    void Delete();

private:
    bool CutTo(long long size);

    std::wstring path_;
    HANDLE file_ = INVALID_HANDLE_VALUE;
    long long size_ = 0, size_before_ = 0; // with and without the last line
};

} // namespace check
