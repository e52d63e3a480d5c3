// Who is at work on the machine, and what is open: for the files of this folder only.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/simulated/machine.h"

namespace sim {

// While it lasts, the calls come from whoever sits in front of the screen: they are not journaled, counted or
// failed. A modal window opens one around its operator.
struct OperatorAtWork {
    OperatorAtWork();
    ~OperatorAtWork();

private:
    bool before_;
};

// While it lasts, the calls come from the logic again: around each dialog procedure, page callback and
// add-page function that is called.
struct LogicAtWork {
    LogicAtWork();
    ~LogicAtWork();

private:
    bool before_;
};

// Counts a thing that the logic has taken and given back, by its kind: "memory", "key", "set", "database",
// "page".
void Opened(std::string_view kind);
void Closed(std::string_view kind);
// A line in `Machine::misuse`.
void Misuse(std::string line);
// The same for a handle that the operation can't take.
void MisuseOfHandle(std::string_view operation, std::string_view kind, const void* handle);

// A value that no handle of the program has had before. Fits in 32 bits.
ULONG_PTR NextHandle();

// The open things of one kind by their handles. As no handle is given twice, one that is used after it was
// closed, on another machine or in place of another kind is found out.
template <class Handle, class Thing> class Handles {
public:
    explicit Handles(std::string_view kind) : kind_(kind) {}

    Handle Open(Thing thing) {
        Opened(kind_);
        const auto handle = reinterpret_cast<Handle>(NextHandle());
        entries_.push_back({handle, &Current(), std::move(thing)});
        return handle;
    }
    // Null, with a line in `misuse`, if it is not open. Valid until the next Open or Close.
    Thing* Find(Handle handle, std::string_view operation) {
        const auto entry = Place(handle);
        if (entry != entries_.end()) {
            return &entry->thing;
        }
        MisuseOfHandle(operation, kind_, handle);
        return nullptr;
    }
    bool Close(Handle handle, std::string_view operation) {
        const auto entry = Place(handle);
        if (entry == entries_.end()) {
            MisuseOfHandle(operation, kind_, handle);
            return false;
        }
        entries_.erase(entry);
        Closed(kind_);
        return true;
    }

private:
    struct Entry {
        Handle handle;
        const Machine* machine;
        Thing thing;
    };
    auto Place(Handle handle) {
        return std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return entry.handle == handle && entry.machine == &Current();
        });
    }
    std::string_view kind_;
    std::vector<Entry> entries_;
};

// The hardware key of a device, to be closed with RegCloseKey.
HKEY OpenDeviceKey(std::size_t device, REGSAM access);

// The device that a member of a set stands for; null, with the last error set, if it stands for none.
Device* DeviceOf(HDEVINFO set, const SP_DEVINFO_DATA* data, std::string_view operation);

// Sets the last error and gives FALSE.
BOOL Fail(DWORD error);
// Whether a structure states its size; else a line in `misuse` and the last error.
template <class Structure> bool HasItsSize(const Structure* structure, std::string_view operation) {
    if (structure && structure->cbSize == sizeof *structure) {
        return true;
    }
    Misuse(std::string(operation) + ": a structure without its size");
    return Fail(ERROR_INVALID_USER_BUFFER);
}
// What a buffer of text holds: up to its terminator, at the longest all of it.
Text TextIn(const void* data, std::size_t bytes);
// A text with its terminator, as bytes.
std::vector<BYTE> BytesOf(std::u16string_view text);
std::string Quoted(std::u16string_view text);

} // namespace sim
