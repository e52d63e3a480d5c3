// A page on its sheet: calls a provider as the device manager does, runs the sheet with a user made of
// lambdas, and reads the controls. Texts are UTF-8.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/worlds/records.h"
#include "resources/resource_ids.h"
#include "tests/at_work.h"

namespace sheets {

using Lines = std::vector<std::string>;

// A change to the machine before the user starts: an operation that fails from then on (0: each call), a
// value that is missing.
using Fault = std::function<void(sim::Machine&)>;
Fault Fail(const char* operation, std::size_t call);
Fault Erase(std::size_t device, const char16_t* value);
Fault Lock(std::size_t device);
inline const Fault no_fault = [](sim::Machine&) {};

// The ways to leave a sheet.
inline constexpr WPARAM ok = PSBTN_OK;
inline constexpr WPARAM cancel = PSBTN_CANCEL;

using Page = host::Role;

// A language that a test makes up. No real one has this number.
constexpr LANGID made_up_language = 0x03F0;

// What the device manager asks for and answers; the defaults are the usual case.
struct Request {
    DWORD page_requested = SPPSR_ENUM_ADV_DEVICE_PROPERTIES;
    BOOL add_page = TRUE; // what the add-page function returns
};

// The person at the screen. Each function is called once per window, when that window is in front.
struct User {
    std::function<void(HWND page)> at_page = {};
    std::function<void(HWND dialog)> at_dialog = {}; // the advanced dialog, cancelled if still open
    WPARAM leaves_by = cancel;                       // leaves the sheet
    int answers = IDNO;                              // answers a question
};

// Opens the sheet on the current machine, with the library attached. The sheet's title ends with the port's
// name at that time. Returns "ok" or "left" as the sheet ended, or "no page", "no page, refused" or "not
// taken, refused" if it never opened.
std::string Open(Page page, std::size_t device, const User& user, const Request& request = {});

// The user's hand, in words: "tx9 rx2" moves the sliders, "select1" a list's selection (-1 for none), "com20"
// and "mode2" choose in the combos of numbers and modes, "baud0", "data0", "parity0", "stop0" and "flow0" in
// those of the port's page, "fifo", "termination" and "acs" click the boxes, "all", "apply", "defaults",
// "restore", "advanced", "sort", "ok" and "cancel" the buttons, "sheet-apply" that of the sheet. A control
// that is disabled or missing is not touched.
void Do(HWND dialog, std::string_view words);
void Choose(HWND dialog, int id, int index);

// What the controls show.
std::string Shown(HWND window);
std::string Shown(HWND dialog, int id); // of a list, the selected item
Lines Items(HWND dialog, int id);
Lines Rows(HWND dialog); // of the resource list, "label: setting", below its headings
int Selection(HWND dialog, int id);
bool IsOn(HWND dialog, int id);
bool IsEnabled(HWND dialog, int id);
// "on tx 5/128 High (5) rx 2 High (32) live"; "dead" means that all eight controls are disabled.
std::string Fifo(HWND dialog);

// The boxes shown since the last call.
Lines Boxes();
// What the logic has changed outside since the last call, each as "name detail" without the device's path.
Lines Changes();

// A device's values, separated by blanks; "-" for a missing one.
std::string Stored(std::size_t device, std::initializer_list<const char16_t*> names);
std::string StoredFifo(std::size_t device);
void StoreFifo(std::size_t device, const u32 (&values)[3]); // in the same order
std::string StoredMode(std::size_t device);                 // six digits, in the order of writing

} // namespace sheets
