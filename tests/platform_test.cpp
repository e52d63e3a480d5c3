// The simulated platform where the pages do not lead today: what it refuses and cuts, as Windows does, and
// that it tells what a library must not do. Each other test relies on that.
#include "tests/at_work.h"
#include "tests/sheets.h"

namespace {

using namespace machines;

TEST(Platform, TellsWhatALibraryMustNotDo) {
    const struct {
        void (*act)();
        const char* told;
    } cases[] = {
        {[] { LocalFree(reinterpret_cast<HLOCAL>(8)); }, "LocalFree: no open memory"},
        {[] { DestroyPropertySheetPage(nullptr); }, "DestroyPropertySheetPage: no open page"},
        {[] { IsWindowEnabled(reinterpret_cast<HWND>(1)); }, "IsWindowEnabled: no open window"},
        {[] { SendMessageW(nullptr, WM_GETTEXTLENGTH, 1, 0); }, "WM_GETTEXTLENGTH: a parameter"},
        {[] { sim::Operation(sim::Reach::Read, "None"); }, "None is missing in the list"},
        {[] { MessageBoxW(nullptr, TEXT("a"), nullptr, MB_OK); }, "the operator did not end"},
        {[] { // one interface behind the last
             const OpenDevice device(1);
             SP_DEVICE_INTERFACE_DATA data{sizeof data, {}, 0, device.data.Reserved << 32 | 1};
             SetupDiGetDeviceInterfaceDetailW(device.set, &data, nullptr, 0, nullptr, nullptr);
         },
         "SetupDiGetDeviceInterfaceDetailW: an interface that is not of this set"},
        {[] {
             OpenDevice device(1);
             SetupDiOpenDevRegKey(device.set, &device.data, DICS_FLAG_GLOBAL, 1, DIREG_DEV, KEY_ALL_ACCESS);
         },
         "SetupDiOpenDevRegKey: only the global hardware key"},
    };
    for (const auto& each : cases) {
        sim::Machine machine = BoardOn({3});
        machine.user = [](HWND) {};
        const sim::Scope scope(machine);
        each.act();
        ASSERT_FALSE(machine.misuse.empty()) << each.told;
        EXPECT_TRUE(machine.misuse[0].starts_with(each.told)) << machine.misuse[0];
    }
}

TEST(Platform, RefusesAndCutsAsWindowsDoes) {
    sim::Machine machine = BoardOn({3});
    const AtWork at_work(machine);
    HCOMDB database = nullptr;
    ComDBOpen(&database);
    for (const auto& [number, answer] : {std::pair{0u, ERROR_INVALID_PARAMETER},
                                         {1u, ERROR_SUCCESS},
                                         {4096u, ERROR_SUCCESS},
                                         {4097u, ERROR_INVALID_PARAMETER}}) {
        EXPECT_EQ(ComDBClaimPort(database, number, FALSE, nullptr), answer) << number;
        EXPECT_EQ(ComDBReleasePort(database, number), answer) << number;
    }
    BYTE bits[1];
    DWORD count = 0;
    ComDBGetCurrentPortUsage(database, bits, 1, CDB_REPORT_BITS, &count);
    EXPECT_EQ(count, 8u);
    ComDBClose(database);

    OpenDevice device(1);
    SP_DEVINSTALL_PARAMS_W params{};
    params.cbSize = sizeof params;
    params.Flags = 4;
    EXPECT_TRUE(SetupDiSetDeviceInstallParamsW(device.set, &device.data, &params));
    EXPECT_EQ(machine.devices[1].install_flags, 4u);
    const HKEY key = SetupDiOpenDevRegKey(device.set, &device.data, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ);
    EXPECT_EQ(RegQueryValueExW(key, TEXT("PortName"), nullptr, nullptr, bits, nullptr),
              ERROR_INVALID_PARAMETER);
    RegCloseKey(key);

    WCHAR text[5];
    for (const WCHAR* const line : {TEXT("\"ab\""), TEXT("''")}) {
        WriteProfileStringW(TEXT("none"), TEXT("a"), line);
        GetProfileStringW(TEXT("none"), TEXT("a"), nullptr, text, 5);
        EXPECT_EQ(text, sim::Text(line).substr(1, sim::Text(line).size() - 2));
    }
    EXPECT_EQ(LoadStringW(nullptr, IDS_PARITY_LIST, text, 5), 0); // of another program
    EXPECT_EQ(LoadStringW(sim::LibraryInstance(), IDS_PARITY_LIST, text, 0), 0);
    EXPECT_EQ(GetWindowTextLengthW(nullptr), 0);
    machine.faults.when = [](const sim::JournalEntry& entry) { return entry.name == "LocalAlloc"; };
    EXPECT_EQ(LocalAlloc(LPTR, 8), nullptr);
    EXPECT_TRUE(machine.journal.back().failed);
}

// The sweeps fail what is counted here: an operation that does not ask would silently be left out of them.
// The rest can't fail, or belongs to failures and to the loading.
TEST(Platform, CountsEveryOperationOfThePages) {
    sim::Machine machine = BoardOn({3, 4});
    const AtWork at_work(machine);
    sheets::Open(sheets::Page::Board, 0,
                 {.at_page = [](HWND page) { sheets::Do(page, "select0 fifo tx5 apply com9 advanced"); },
                  .at_dialog = [](HWND dialog) { sheets::Do(dialog, "mode1 sort ok"); },
                  .leaves_by = sheets::ok});
    sheets::Open(sheets::Page::Port, 1,
                 {.at_page = [](HWND page) { sheets::Do(page, "baud3 advanced"); },
                  .at_dialog = [](HWND dialog) { sheets::Do(dialog, "com20 ok"); },
                  .leaves_by = sheets::ok,
                  .answers = IDYES});
    std::string not_counted;
    for (const std::string_view name : sim::Operations()) {
        if (!machine.faults.count_by_name.contains(name)) {
            not_counted += std::string(name) + ' ';
        }
    }
    EXPECT_EQ(not_counted, "DestroyPropertySheetPage DisableThreadLibraryCalls GetDlgCtrlID GetParent "
                           "GetWindowLongPtrW MessageBoxW SetWindowLongPtrW ");
}

} // namespace
