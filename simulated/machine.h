// The simulated machine: everything outside the library that the logic can read, write, show or break.
//
// A `Machine` is plain data, and one machine is current at a time. Whoever makes it owns it; the operations
// of `windows_api.h` work on the current one. Every operation of the logic passes `Operation` once, which
// writes it into the journal and asks the fault plan whether it fails. Two things are neither journaled nor
// counted nor failed: what a host or an operator does while a window waits for it, and calls that cannot fail
// on an existing window (its slots, its number, its parent, the focus).
//
// Keys, sets, databases, pages, top-level windows and allocations are counted. `Machine::open` is empty again
// once the logic has given everything back. `Machine::misuse` has a line for every invalid handle (closed
// twice, never opened, of another kind), for memory freed twice, and for a parameter that must be 0.
#pragma once

#include <array>
#include <concepts>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/text.h"

namespace sim {

using Text = std::u16string;

// A registry value: its type and its raw bytes, of any length, with or without a terminator.
struct Value {
    Text name;
    DWORD type = REG_NONE;
    std::vector<BYTE> data;
    friend bool operator==(const Value&, const Value&) = default;
};

// The values of one key in their order. Lookup by name ignores case.
struct Values {
    std::vector<Value> list;
    const Value* Find(std::u16string_view name) const;
    void Set(std::u16string_view name, DWORD type, std::vector<BYTE> data);
    void SetDword(std::u16string_view name, DWORD number);
    void SetQword(std::u16string_view name, ULONGLONG number);
    void SetText(std::u16string_view name, std::u16string_view text); // REG_SZ with its terminator
    bool Erase(std::u16string_view name);
    friend bool operator==(const Values&, const Values&) = default;
};

struct Device {
    Text instance_id; // "PCI\VEN_...\3&11583659&0&20", the path below Enum
    Text class_name;  // "Ports", may be empty
    std::optional<GUID> class_guid;
    std::optional<Text> description; // what SPDRP_DEVICEDESC gives
    std::optional<Text> friendly_name;
    bool has_key = true;        // whether "Device Parameters" exists
    bool access_denied = false; // opening the hardware key with full access fails
    bool remote = false;        // its set belongs to another machine
    Values key;                 // the hardware key, the device store
    DWORD install_flags = 0;    // SP_DEVINSTALL_PARAMS_W.Flags
    friend bool operator==(const Device&, const Device&) = default;
};

// An interface of a device. The enumeration order of a class is the order in `Machine::interfaces`.
struct Interface {
    GUID class_guid{};
    Text path;              // the symbolic link, "\\?\..."
    std::size_t device = 0; // index in `Machine::devices`
    bool linked = true;     // present
    friend bool operator==(const Interface&, const Interface&) = default;
};

// The COM numbers in use, 1 to 4,096, as the database keeps them: see platform/port_usage.h.
using PortUsage = std::array<BYTE, 512>;
bool IsClaimed(const PortUsage& usage, unsigned number);
void SetClaimed(PortUsage& usage, unsigned number, bool claimed);

// --- Journal and faults ---------------------------------------------------------------------------------

enum class Reach {
    Memory, // allocations
    Screen, // windows, controls, resources
    Read,   // reading a store outside the library
    Write,  // changing a store outside the library, or telling others of a change
};

struct JournalEntry {
    Reach reach = Reach::Memory;
    std::string_view name; // the operation, "RegSetValueExW"; a literal
    std::string detail;    // the arguments that matter, UTF-8, as `journal` shows them
    bool failed = false;   // by the fault plan
};

// Decides whether the current operation fails. A rule may read the machine and its windows through the
// operations of `windows_api.h` and may change the machine's data; like an operator's, its calls are not
// journaled. Counts run from 1 and restart with `Machine::faults = {}`.
struct FaultPlan {
    std::vector<std::size_t> at;                              // the n-th operations of all
    std::vector<std::pair<std::string, std::size_t>> at_call; // the n-th call of a name; 0: each call
    std::function<bool(const JournalEntry&)> when;            // any other rule
    std::map<std::size_t, HCOMDB> databases; // the handle that the n-th ComDBOpen leaves, failed or not
    std::size_t count = 0;                   // operations seen so far
    std::unordered_map<std::string_view, std::size_t> count_by_name; // names are those of functions
    std::size_t hits = 0;                                            // operations failed so far
};

// --- The person in front of the screen --------------------------------------------------------------------

struct Machine;

// Called whenever a modal window waits for its user: a property sheet, a dialog, a message box. It operates
// the windows through `windows_api.h` and returns, and is called again until the window has ended. A window
// that is still open after 10,000 calls is cancelled, with a line in `misuse`.
using Operator = std::function<void(HWND front)>;

// A message box that was shown. The list is in the order in which the boxes closed.
struct ShownBox {
    Text text;
    Text caption;
    UINT style = 0;
    int answer = 0;
    HWND owner = nullptr;
};

// What a machine keeps: all that an operation of the logic can change.
struct MachineState {
    std::vector<Device> devices;
    std::vector<Interface> interfaces;
    std::vector<std::pair<Text, Text>> dos_names; // name and target
    Values serial_map;                            // Hardware\DeviceMap\SerialComm, in its order
    bool serial_map_exists = true;
    PortUsage port_usage{};
    std::vector<std::pair<Text, Values>> profile; // section and keys, all REG_SZ
    friend bool operator==(const MachineState&, const MachineState&) = default;
};

struct Machine : MachineState {
    Text decimal_separator = u".";
    LANGID language = 1033; // a language without resources falls back as Windows does, finally to 1033

    std::vector<JournalEntry> journal;
    bool journal_reads = true; // false: only Reach::Write is journaled, for long runs; everything is counted
    std::function<void(std::string_view line)> trace; // hears each line of the library's trace
    FaultPlan faults;
    Operator user;
    std::vector<ShownBox> boxes;
    std::vector<UINT> missing_strings; // numbers of strings that LoadStringW does not find
    std::vector<int> missing_controls; // numbers of controls that no dialog has

    std::map<std::string, std::size_t, std::less<>>
        open; // what has not been given back, by kind; no zero entries
    std::vector<std::string> misuse;

    const Device* FindDevice(std::u16string_view instance_id) const;
    Values* ProfileSection(std::u16string_view section, bool create);
};

// The machine that the operations work on. It must outlive everything that is opened on it.
Machine& Current();
// Makes a machine current for the life of the scope. No window may be open when it begins or ends.
struct Scope {
    explicit Scope(Machine& machine);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

private:
    Machine* before_;
};

// The names of all operations, in the order of the alphabet.
std::span<const std::string_view> Operations();

// Journals an operation of the logic and asks the fault plan; true if the operation must fail. While an
// operator is at work it journals nothing and returns false. The name is a literal (or __func__).
bool Operation(Reach reach, std::string_view name, std::string detail = {});

// Whether the journal or a fault rule will read the detail of such an operation.
bool DetailIsRead(Reach reach);

// The same, with a detail that is computed only if it will be read.
template <std::invocable Detail> bool Operation(Reach reach, std::string_view name, const Detail& detail) {
    return Operation(reach, name, DetailIsRead(reach) ? std::string(detail()) : std::string());
}

// A set with one device, as the device manager passes it in a provider's request. Fills `data`. The caller
// closes the set with SetupDiDestroyDeviceInfoList.
HDEVINFO OpenDeviceSet(std::size_t device, SP_DEVINFO_DATA& data);

// The instance handle of the library's resources, for DllMain.
HINSTANCE LibraryInstance();

// --- The sheet: what the device manager does around a provider --------------------------------------------

// Runs a sheet with the given pages as a modal window until its user closes it: creates the pages
// (PSPCB_CREATE, WM_INITDIALOG with the page description), sends PSN_SETACTIVE, PSN_APPLY, PSN_RESET as the
// buttons are pressed, and releases the pages at the end (PSPCB_RELEASE). Buttons: IDOK, IDCANCEL,
// ID_APPLY_NOW, by PSM_PRESSBUTTON or a click; PSM_CHANGED enables Apply. Takes ownership of the pages. True
// if the sheet ended by OK.
bool RunSheet(std::u16string_view title, const std::vector<HPROPSHEETPAGE>& pages);

// The style that a message box was opened with; 0 for any other window.
UINT BoxStyle(HWND window);

// --- Text -------------------------------------------------------------------------------------------------

using ::FromUtf8;
using ::ToUtf8;
// The upper-case unit by which names are compared and ordered when case is ignored.
char16_t Upper(char16_t unit);
bool EqualNoCase(std::u16string_view left, std::u16string_view right);

} // namespace sim
