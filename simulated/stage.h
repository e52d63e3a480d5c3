// Who is at work on the machine, and what is open: for the files of this folder only.
#pragma once

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

#include "simulated/machine.h"

namespace sim {

// Marks the calls made during its life as those of the person at the screen: they are not journaled, counted
// or failed. A modal window opens one around its operator.
struct OperatorAtWork {
    OperatorAtWork();
    ~OperatorAtWork();

private:
    bool before_;
};

// Marks the calls made during its life as those of the logic again: opened around each dialog procedure, page
// callback and add-page function.
struct LogicAtWork {
    LogicAtWork();
    ~LogicAtWork();

private:
    bool before_;
};

// Counts what the logic takes and gives back, by kind: "memory", "key", "set", "database",
// "page".
void Opened(std::string_view kind);
void Closed(std::string_view kind);
// Adds a line to `Machine::misuse`.
void Misuse(std::string line);
// The same for a handle that the operation does not accept.
void MisuseOfHandle(std::string_view operation, std::string_view kind, const void* handle);

// A value that no handle of this program has had before. It fits in 32 bits.
ULONG_PTR NextHandle();

// The open objects of one kind by their handles. No handle is given out twice, so using one after it was
// closed, on another machine or as another kind is detected.
template <class Handle, class Thing> class Handles {
public:
    explicit Handles(std::string_view kind) : kind_(kind) {}

    Handle Open(Thing thing) {
        Opened(kind_);
        const auto handle = reinterpret_cast<Handle>(NextHandle());
        entries_.push_back({handle, &Current(), std::move(thing)});
        return handle;
    }
    // Null, with a line in `misuse`, if the handle is not open. Valid until the next Open or Close.
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

// Sets the last error and returns FALSE.
BOOL Fail(DWORD error);
// Whether a structure states its own size; if not, adds a line to `misuse` and sets the last error.
template <class Structure> bool HasItsSize(const Structure* structure, std::string_view operation) {
    if (structure != nullptr && structure->cbSize == sizeof *structure) {
        return true;
    }
    Misuse(std::string(operation) + ": a structure without its size");
    return Fail(ERROR_INVALID_USER_BUFFER);
}
// Adds a line to `misuse` unless a text to be stored ends with its terminator and has nothing after it.
void ExpectItsTerminator(std::span<const BYTE> data, std::string_view operation);
// A text with its terminator, as bytes.
std::vector<BYTE> BytesOf(std::u16string_view text);
std::string Quoted(std::u16string_view text);

} // namespace sim
