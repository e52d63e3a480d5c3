#include <iterator>

#include "check/windows/parts.h"
#include "check/windows/run_time_texts.h"
#include "host/worlds/windows/attendance.h"
#include "platform/platform.h"

namespace check {
namespace {

using Provider = BOOL(WINAPI*)(SP_PROPSHEETPAGE_REQUEST*, LPFNADDPROPSHEETPAGE, LPARAM);

std::string BoxText(HWND box) {
    WCHAR text[512] = {};
    GetDlgItemTextW(box, 0xFFFF, text, ARRAYSIZE(text));
    char utf8[ARRAYSIZE(text) * 3] = {};
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8, sizeof utf8, nullptr, nullptr);
    return utf8;
}

// What comes of a request: the answer, the pages and the boxes.
std::string Answer(Provider provider, SP_PROPSHEETPAGE_REQUEST request) {
    std::string boxes;
    int pages = 0;
    const host::Attendance attendance([&](HWND box) {
        boxes += "; box \"" + BoxText(box) + '"';
        SendMessageW(box, WM_CLOSE, 0, 0);
    });
    const BOOL given = provider(
        &request,
        [](HPROPSHEETPAGE page, LPARAM count) -> BOOL {
            ++*reinterpret_cast<int*>(count);
            DestroyPropertySheetPage(page);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&pages));
    return (given ? "taken, " : "refused, ") + std::to_string(pages) + " pages" + boxes;
}

} // namespace

void LookAtRequests(Report& report) {
    constexpr struct {
        const char* kind;
        const char* function;
        const char* refusal;
    } providers[] = {{"board", "KvrBoardPropPageProvider",
                      "refused, 0 pages; box \"Get BOARD basic information failure. [serr:100]\""},
                     {"port", "KvrUartPropPageProvider",
                      "refused, 0 pages; box \"Get channel basic information failure. [serr:100]\""}};
    const HDEVINFO empty = SetupDiCreateDeviceInfoList(nullptr, nullptr);
    SP_DEVINFO_DATA nobody{};
    nobody.cbSize = sizeof nobody;
    const HDEVINFO none = INVALID_HANDLE_VALUE;
    constexpr DWORD size = sizeof(SP_PROPSHEETPAGE_REQUEST), sheet = SPPSR_ENUM_ADV_DEVICE_PROPERTIES;
    const struct {
        const char* name;
        SP_PROPSHEETPAGE_REQUEST request;
    } requests[] = {{"no_device", {size, sheet, empty, &nobody}},
                    {"no_set", {size, sheet, none, &nobody}},
                    {"no_data", {size, sheet, empty, nullptr}},
                    {"no_size", {0, sheet, empty, &nobody}},
                    {"resources", {size, SPPSR_SELECT_DEVICE_RESOURCES, empty, &nobody}},
                    {"basic_pages", {size, SPPSR_ENUM_BASIC_DEVICE_PROPERTIES, empty, &nobody}},
                    {"unknown_pages", {size, 0xFFFFFFFF, empty, &nobody}}};
    for (const auto& [kind, function, refusal] : providers) {
        const auto provider =
            reinterpret_cast<Provider>(reinterpret_cast<void*>(GetProcAddress(library, function)));
        for (const auto& [name, request] : requests) {
            report.facts.push_back({std::string("requests.") + kind + '.' + name, refusal,
                                    provider != nullptr ? Answer(provider, request) : "no provider"});
        }
    }
    SetupDiDestroyDeviceInfoList(empty);
}

} // namespace check
