// The simulated platform where the pages do not lead today: what it refuses and cuts, as Windows does, and
// that it tells what a library must not do. Each other test relies on that.
#include "resources/resource_ids.h"
#include "tests/at_work.h"

namespace {

using namespace machines;

const auto no_window = reinterpret_cast<HWND>(1);

HKEY MapKey(REGSAM access) {
    HKEY key = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, TEXT("Hardware\\DeviceMap\\SerialComm"), 0, access, &key);
    return key;
}

HCOMDB Database() {
    HCOMDB database = nullptr;
    ComDBOpen(&database);
    return database;
}

template <class Close, class Handle> void CloseTwice(Close close, Handle handle) {
    close(handle);
    close(handle);
}

TEST(Platform, TellsWhatALibraryMustNotDo) {
    static const BYTE letters[] = {'a', 0, 'b', 0};
    const struct {
        std::function<void()> act;
        const char* told;
    } cases[] = {
        {[] { CloseTwice(RegCloseKey, MapKey(KEY_READ)); }, "RegCloseKey: no open key"},
        {[] { CloseTwice(LocalFree, LocalAlloc(LPTR, 8)); }, "LocalFree: no open memory"},
        {[] { CloseTwice(ComDBClose, Database()); }, "ComDBClose: no open database"},
        {[] {
             SP_DEVINFO_DATA data{};
             CloseTwice(SetupDiDestroyDeviceInfoList, sim::OpenDeviceSet(1, data));
         },
         "SetupDiDestroyDeviceInfoList: no open set"},
        {[] { DestroyPropertySheetPage(nullptr); }, "DestroyPropertySheetPage: no open page"},
        {[] { GetWindowTextLengthW(no_window); }, "GetWindowTextLengthW: no open window"},
        {[] { SendMessageW(nullptr, WM_GETTEXTLENGTH, 1, 0); }, "WM_GETTEXTLENGTH: a parameter"},
        {[] {
             const HKEY key = MapKey(KEY_WRITE);
             RegSetValueExW(key, TEXT("a"), 0, REG_SZ, letters, sizeof letters);
             RegCloseKey(key);
         },
         "RegSetValueExW: a text whose size"},
        {[] { // a key of another machine
             const HKEY key = MapKey(KEY_READ);
             sim::Machine other;
             {
                 const sim::Scope scope(other);
                 RegCloseKey(key);
             }
             sim::Current().misuse = other.misuse;
             RegCloseKey(key);
         },
         "RegCloseKey: no open key"},
        {[] {
             OpenDevice device(1);
             SP_DEVINSTALL_PARAMS_W params{};
             SetupDiGetDeviceInstallParamsW(device.set, &device.data, &params);
         },
         "SetupDiGetDeviceInstallParamsW: a structure without its size"},
        {[] {
             OpenDevice device(1), other(1);
             SetupDiCallClassInstaller(DIF_PROPERTYCHANGE, device.set, &other.data);
         },
         "SetupDiCallClassInstaller: a device that is not of this set"},
        {[] { // an interface behind the last
             const GUID uart = InterfaceClass(ClassUart);
             const HDEVINFO set =
                 SetupDiGetClassDevsW(&uart, nullptr, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
             SP_DEVICE_INTERFACE_DATA data{};
             data.cbSize = sizeof data;
             SetupDiEnumDeviceInterfaces(set, nullptr, &uart, 0, &data);
             ++data.Reserved;
             SetupDiGetDeviceInterfaceDetailW(set, &data, nullptr, 0, nullptr, nullptr);
             SetupDiDestroyDeviceInfoList(set);
         },
         "SetupDiGetDeviceInterfaceDetailW: an interface that is not of this set"},
        {[] { DefineDosDeviceW(0, TEXT("COM3"), TEXT("a")); }, "DefineDosDeviceW: neither"},
    };
    for (const auto& each : cases) {
        sim::Machine machine = BoardOn({3});
        const sim::Scope scope(machine);
        each.act();
        ASSERT_EQ(machine.misuse.size(), 1u) << each.told;
        EXPECT_TRUE(machine.misuse[0].starts_with(each.told)) << machine.misuse[0];
        EXPECT_TRUE(machine.open.empty()) << each.told;
    }
}

TEST(Platform, RefusesAndCutsAsWindowsDoes) {
    sim::Machine machine = BoardOn({3});
    const AtWork at_work(machine);
    const HCOMDB database = Database();
    for (const auto& [number, answer] : {std::pair{0u, ERROR_INVALID_PARAMETER},
                                         {1u, ERROR_SUCCESS},
                                         {3u, ERROR_SHARING_VIOLATION},
                                         {4096u, ERROR_SUCCESS},
                                         {4097u, ERROR_INVALID_PARAMETER}}) {
        EXPECT_EQ(ComDBClaimPort(database, number, FALSE, nullptr), answer) << number;
        EXPECT_EQ(ComDBReleasePort(database, number) != ERROR_SUCCESS, answer == ERROR_INVALID_PARAMETER)
            << number;
    }
    BYTE bits[2] = {0, 0xEE};
    DWORD count = 0;
    EXPECT_EQ(ComDBGetCurrentPortUsage(database, bits, 1, CDB_REPORT_BITS, &count), ERROR_SUCCESS);
    EXPECT_TRUE(count == 8 && bits[0] == 0 && bits[1] == 0xEE);
    EXPECT_EQ(ComDBGetCurrentPortUsage(database, nullptr, 0, CDB_REPORT_BITS, &count), ERROR_SUCCESS);
    EXPECT_EQ(count, 4096u);
    ComDBClose(database);

    const HKEY key = MapKey(KEY_READ);
    BYTE data[64];
    DWORD bytes = 2;
    const WCHAR* const name = TEXT("\\Device\\Serial1");
    EXPECT_EQ(RegQueryValueExW(key, name, nullptr, nullptr, data, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegQueryValueExW(key, name, nullptr, nullptr, data, &bytes), ERROR_MORE_DATA);
    EXPECT_EQ(bytes, 2 * sizeof "COM3");
    EXPECT_EQ(RegSetValueExW(key, name, 0, REG_BINARY, data, 0), ERROR_ACCESS_DENIED);
    RegCloseKey(key);

    WCHAR text[5];
    EXPECT_EQ(GetProfileStringW(TEXT("none"), TEXT("none"), TEXT("fallback"), text, 5), 4u);
    EXPECT_EQ(sim::ToUtf8(text), "fall");
    EXPECT_EQ(QueryDosDeviceW(TEXT("COM3"), text, 5), 0u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(LoadStringW(sim::LibraryInstance(), IDS_PARITY_LIST, text, 2), 1);
    EXPECT_EQ(LoadStringW(nullptr, IDS_PARITY_LIST, text, 5), 0); // of another program
    EXPECT_EQ(DialogBoxParamW(nullptr, MAKEINTRESOURCEW(IDD_PORT_SETTINGS), nullptr, nullptr, 0), -1);
    EXPECT_EQ(GetWindowTextW(nullptr, text, 5), 0);
    EXPECT_EQ(GetWindowTextLengthW(nullptr), 0);
    const OpenDevice device(1);
    SP_DEVINFO_DATA data_of_device = device.data;
    SP_DEVINSTALL_PARAMS_W params{};
    params.cbSize = sizeof params;
    params.Flags = 4;
    EXPECT_TRUE(SetupDiSetDeviceInstallParamsW(device.set, &data_of_device, &params));
    params.Flags = 0;
    EXPECT_TRUE(SetupDiGetDeviceInstallParamsW(device.set, &data_of_device, &params));
    EXPECT_EQ(params.Flags, 4u);
    MSG message{};
    EXPECT_FALSE(IsDialogMessageW(nullptr, &message));
}

TEST(Platform, JournalsWhatARuleMakesFail) {
    sim::Machine machine;
    const AtWork at_work(machine);
    machine.faults.when = [](const sim::JournalEntry& entry) { return entry.name == "LocalAlloc"; };
    EXPECT_EQ(LocalAlloc(LPTR, 8), nullptr);
    EXPECT_TRUE(machine.journal.back().failed);
}

} // namespace
