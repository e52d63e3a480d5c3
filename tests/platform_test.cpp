// The simulated platform where the pages do not lead today: what it refuses and cuts, as Windows does, and
// that it tells what a library must not do. Each other test relies on that.
#include "tests/at_work.h"
#include "tests/sheets.h"

namespace {

using namespace machines;

HKEY MapKey(REGSAM access) {
    HKEY key = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, TEXT("Hardware\\DeviceMap\\SerialComm"), 0, access, &key);
    return key;
}

void CloseAKeyOfAnotherMachine() {
    const HKEY key = MapKey(KEY_READ);
    sim::Machine other;
    {
        const sim::Scope scope(other);
        RegCloseKey(key);
    }
    sim::Current().misuse = other.misuse;
    RegCloseKey(key);
}

void StoreATextWithoutTerminator() {
    const HKEY key = MapKey(KEY_WRITE);
    RegSetValueExW(key, TEXT("a"), 0, REG_SZ, reinterpret_cast<const BYTE*>(TEXT("ab")), 4);
    RegCloseKey(key);
}

void AskForTheInterfaceBehindTheLast() {
    const GUID uart = InterfaceClass(ClassUart);
    const HDEVINFO set = SetupDiGetClassDevsW(&uart, nullptr, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
    SP_DEVICE_INTERFACE_DATA data{};
    data.cbSize = sizeof data;
    SetupDiEnumDeviceInterfaces(set, nullptr, &uart, 0, &data);
    ++data.Reserved;
    SetupDiGetDeviceInterfaceDetailW(set, &data, nullptr, 0, nullptr, nullptr);
    SetupDiDestroyDeviceInfoList(set);
}

TEST(Platform, TellsWhatALibraryMustNotDo) {
    const struct {
        void (*act)();
        const char* told;
    } cases[] = {
        {[] { LocalFree(LocalFree(reinterpret_cast<HLOCAL>(8))); }, "LocalFree: no open memory"},
        {&CloseAKeyOfAnotherMachine, "RegCloseKey: no open key"},
        {&StoreATextWithoutTerminator, "RegSetValueExW: a text whose size"},
        {&AskForTheInterfaceBehindTheLast, "SetupDiGetDeviceInterfaceDetailW: an interface that is not of"},
        {[] {
             OpenDevice device(1), other(1);
             SetupDiCallClassInstaller(DIF_PROPERTYCHANGE, device.set, &other.data);
         },
         "SetupDiCallClassInstaller: a device that is not of this set"},
        {[] { DestroyPropertySheetPage(nullptr); }, "DestroyPropertySheetPage: no open page"},
        {[] { IsWindowEnabled(reinterpret_cast<HWND>(1)); }, "IsWindowEnabled: no open window"},
        {[] { SendMessageW(nullptr, WM_GETTEXTLENGTH, 1, 0); }, "WM_GETTEXTLENGTH: a parameter"},
        {[] { sim::Operation(sim::Reach::Read, "None"); }, "None is missing in the list"},
        {[] { MessageBoxW(nullptr, TEXT("a"), nullptr, MB_OK); }, "the operator did not end"},
    };
    for (const auto& each : cases) {
        sim::Machine machine = BoardOn({3});
        machine.user = [](HWND) {};
        const sim::Scope scope(machine);
        each.act();
        ASSERT_FALSE(machine.misuse.empty()) << each.told;
        EXPECT_TRUE(machine.misuse[0].starts_with(each.told)) << machine.misuse[0];
        EXPECT_TRUE(machine.open.empty()) << each.told;
    }
}

TEST(Platform, RefusesAndCutsAsWindowsDoes) {
    sim::Machine machine = BoardOn({3});
    const AtWork at_work(machine);
    HCOMDB database = nullptr;
    ComDBOpen(&database);
    for (const auto& [number, answer] : {std::pair{0u, ERROR_INVALID_PARAMETER},
                                         {1u, ERROR_SUCCESS},
                                         {3u, ERROR_SHARING_VIOLATION},
                                         {4096u, ERROR_SUCCESS},
                                         {4097u, ERROR_INVALID_PARAMETER}}) {
        EXPECT_EQ(ComDBClaimPort(database, number, FALSE, nullptr), answer) << number;
        EXPECT_EQ(ComDBReleasePort(database, number) == ERROR_SUCCESS, answer != ERROR_INVALID_PARAMETER);
    }
    BYTE data[2] = {0, 0xEE};
    DWORD count = 0, bytes = 2;
    EXPECT_EQ(ComDBGetCurrentPortUsage(database, data, 1, CDB_REPORT_BITS, &count), ERROR_SUCCESS);
    EXPECT_TRUE(count == 8 && data[0] == 0 && data[1] == 0xEE);
    EXPECT_EQ(ComDBGetCurrentPortUsage(database, nullptr, 0, CDB_REPORT_BITS, &count), ERROR_SUCCESS);
    EXPECT_EQ(count, 4096u);
    ComDBClose(database);

    const HKEY key = MapKey(KEY_READ);
    const WCHAR* const name = TEXT("\\Device\\Serial1");
    EXPECT_EQ(RegQueryValueExW(key, name, nullptr, nullptr, data, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegQueryValueExW(key, name, nullptr, nullptr, data, &bytes), ERROR_MORE_DATA);
    EXPECT_EQ(bytes, sizeof TEXT("COM3"));
    EXPECT_EQ(RegSetValueExW(key, name, 0, REG_BINARY, data, 0), ERROR_ACCESS_DENIED);
    RegCloseKey(key);

    WCHAR text[5];
    const auto profile = [&](const WCHAR* line) {
        return GetProfileStringW(TEXT("none"), line, TEXT("fallback"), text, 5);
    };
    EXPECT_EQ(profile(TEXT("a")), 4u); // of eight
    EXPECT_EQ(QueryDosDeviceW(TEXT("COM3"), text, 5), 0u);
    for (const WCHAR* const line : {TEXT("\"ab\""), TEXT("''")}) {
        WriteProfileStringW(TEXT("none"), TEXT("a"), line);
        EXPECT_EQ(profile(TEXT("a")), sim::Text(line).size() - 2);
    }
    EXPECT_EQ(LoadStringW(nullptr, IDS_PARITY_LIST, text, 5), 0); // of another program
    EXPECT_EQ(LoadStringW(sim::LibraryInstance(), IDS_PARITY_LIST, text, 0), 0);
    EXPECT_EQ(GetWindowTextLengthW(nullptr), 0);

    OpenDevice device(1);
    SP_DEVINSTALL_PARAMS_W params{};
    params.cbSize = sizeof params;
    params.Flags = 4;
    EXPECT_TRUE(SetupDiSetDeviceInstallParamsW(device.set, &device.data, &params));
    EXPECT_EQ(machine.devices[1].install_flags, 4u);
    machine.devices[1].has_key = false;
    EXPECT_EQ(SetupDiOpenDevRegKey(device.set, &device.data, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ),
              INVALID_HANDLE_VALUE);
    machine.faults.when = [](const sim::JournalEntry& entry) { return entry.name == "LocalAlloc"; };
    EXPECT_EQ(LocalAlloc(LPTR, 8), nullptr);
    EXPECT_TRUE(machine.journal.back().failed);
}

} // namespace
