// What the library's work costs on the simulated machine: operations on the platform, and time.
#include <benchmark/benchmark.h>

#include "board_page/board_page_provider.h"
#include "com_numbers/com_sort.h"
#include "reporting/module_entry.h"
#include "tests/machines.h"
#include "uart_page/settings_line.h"

namespace {

constexpr machines::BoardPlace elsewhere{9, 9};

// A machine that journals no reads, because a long run would fill the memory with them.
struct AtWork {
    explicit AtWork(sim::Machine& machine) : scope(machine) {
        machine.journal_reads = false;
        DllMain(sim::LibraryInstance(), DLL_PROCESS_ATTACH, nullptr);
        machines::Forget(machine);
    }
    sim::Scope scope;
};

double PerRun(std::size_t count, const benchmark::State& state) {
    return static_cast<double>(count) / static_cast<double>(state.iterations());
}

std::vector<u32> Descending(u32 count) {
    std::vector<u32> numbers;
    for (u32 number = count; number != 0; --number) {
        numbers.push_back(number);
    }
    return numbers;
}

BOOL CALLBACK TakePage(HPROPSHEETPAGE page, LPARAM pages) {
    reinterpret_cast<std::vector<HPROPSHEETPAGE>*>(pages)->push_back(page);
    return TRUE;
}

// Opens the sheet of device 0 with its board page, and closes it by Cancel.
void OpenBoardPage(sim::Machine& machine) {
    machine.user = [](HWND sheet) { SendMessageW(sheet, WM_COMMAND, IDCANCEL, 0); };
    machines::OpenDevice device(0);
    SP_PROPSHEETPAGE_REQUEST request{sizeof request, SPPSR_ENUM_ADV_DEVICE_PROPERTIES, device.set,
                                     &device.data};
    std::vector<HPROPSHEETPAGE> pages;
    KvrBoardPropPageProvider(&request, TakePage, reinterpret_cast<LPARAM>(&pages));
    sim::RunSheet(u"Board", pages);
}

void MeasureBoardPage(benchmark::State& state, u32 uarts, u32 interfaces) {
    sim::Machine machine = machines::BoardOn(Descending(uarts));
    for (u32 i = uarts; i < interfaces; ++i) {
        machines::AddChannel(machine, elsewhere, ClassUart, i);
    }
    const AtWork at_work(machine);
    for ([[maybe_unused]] auto _ : state) {
        OpenBoardPage(machine);
        machine.journal.clear();
    }
    state.counters["operations"] = PerRun(machine.faults.count, state);
    state.SetComplexityN(interfaces);
}

void BoardPageByUarts(benchmark::State& state) {
    MeasureBoardPage(state, static_cast<u32>(state.range(0)), 512);
}
BENCHMARK(BoardPageByUarts)->Arg(16)->Arg(64)->Arg(256)->Unit(benchmark::kMicrosecond);

void BoardPageByInterfaces(benchmark::State& state) {
    MeasureBoardPage(state, 16, static_cast<u32>(state.range(0)));
}
BENCHMARK(BoardPageByInterfaces)
    ->RangeMultiplier(2)
    ->Range(128, 4096)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);

// The operations of one move in their order, with no library code between them.
void ReplayMove(HDEVINFO set, SP_DEVINFO_DATA* data, u32 from, u32 to) {
    const sim::Text from_name = machines::PortName(from);
    const sim::Text to_name = machines::PortName(to);
    const sim::Text from_key = from_name + u":";
    const sim::Text to_key = to_name + u":";
    const auto bytes_of = [](const sim::Text& text) { return reinterpret_cast<const BYTE*>(text.c_str()); };
    const auto size_of = [](const sim::Text& text) { return static_cast<DWORD>(2 * text.size() + 2); };
    WCHAR target[81];
    const HLOCAL record = LocalAlloc(LPTR, 800);
    const HKEY device = SetupDiOpenDevRegKey(set, data, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_ALL_ACCESS);
    HCOMDB database = nullptr;
    ComDBOpen(&database);
    QueryDosDeviceW(from_name.c_str(), target, 80);
    QueryDosDeviceW(from_name.c_str(), target, 80);
    DefineDosDeviceW(DDD_REMOVE_DEFINITION, from_name.c_str(), nullptr);
    DefineDosDeviceW(DDD_RAW_TARGET_PATH, to_name.c_str(), target);
    HKEY map = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, u"Hardware\\DeviceMap\\SerialComm", 0, KEY_READ | KEY_WRITE, &map);
    WCHAR name[81];
    WCHAR value[81];
    for (DWORD index = 0, capacity = 81, bytes = 162, type = 0;
         RegEnumValueW(map, index, name, &capacity, nullptr, &type, reinterpret_cast<BYTE*>(value), &bytes) ==
         ERROR_SUCCESS;
         ++index, capacity = 81, bytes = 162) {
        if (from_name == value) {
            RegSetValueExW(map, name, 0, REG_SZ, bytes_of(to_name), size_of(to_name));
            break;
        }
    }
    RegCloseKey(map);
    ComDBReleasePort(database, from);
    ComDBClaimPort(database, to, TRUE, nullptr);
    WCHAR description[257] = {};
    SetupDiGetDeviceRegistryPropertyW(set, data, SPDRP_DEVICEDESC, nullptr,
                                      reinterpret_cast<BYTE*>(description), 512, nullptr);
    const sim::Text friendly = description + (u" (" + to_name + u")");
    SetupDiSetDeviceRegistryPropertyW(set, data, SPDRP_FRIENDLYNAME, bytes_of(friendly), size_of(friendly));
    RegSetValueExW(device, u"PortName", 0, REG_SZ, bytes_of(to_name), size_of(to_name));
    ComDBClose(database);
    RegCloseKey(device);
    LocalFree(record);
    SP_DEVINSTALL_PARAMS_W install{};
    install.cbSize = sizeof install;
    SetupDiGetDeviceInstallParamsW(set, data, &install);
    SetupDiSetDeviceInstallParamsW(set, data, &install);
    SP_PROPCHANGE_PARAMS change{
        {sizeof change.ClassInstallHeader, DIF_PROPERTYCHANGE}, DICS_PROPCHANGE, DICS_FLAG_GLOBAL, 0};
    SetupDiSetClassInstallParamsW(set, data, &change.ClassInstallHeader, sizeof change);
    SetupDiCallClassInstaller(DIF_PROPERTYCHANGE, set, data);
    const HLOCAL old_key = LocalAlloc(LPTR, size_of(from_key));
    const HLOCAL new_key = LocalAlloc(LPTR, size_of(to_key));
    WCHAR line[81];
    GetProfileStringW(u"Ports", from_key.c_str(), u"", line, 81);
    WriteProfileStringW(u"Ports", to_key.c_str(), line);
    SendNotifyMessageW(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(u"Ports"));
    WriteProfileStringW(u"Ports", from_key.c_str(), nullptr);
    LocalFree(old_key);
    LocalFree(new_key);
}

// The renames of Sort UART on ports in reverse order: each exchange brings the lowest number to its place.
void ReplaySort(const machines::OpenBoard& board, u32 uarts) {
    for (u32 low = 1, high = uarts; low < high; ++low, --high) {
        BPPCHL* channel = board.Channel(low);
        BPPCHL* partner = board.Channel(high);
        ReplayMove(partner->DeviceInfoSet, &partner->DeviceInfoData, low, 256);
        ReplayMove(channel->DeviceInfoSet, &channel->DeviceInfoData, high, low);
        ReplayMove(partner->DeviceInfoSet, &partner->DeviceInfoData, 256, high);
    }
}

// Measures one of the two on a board in reverse order. The board is new each time, and making it is not
// measured.
template <class Work> void MeasureSort(benchmark::State& state, const Work& work) {
    const u32 uarts = static_cast<u32>(state.range(0));
    const sim::Machine fresh = machines::BoardOn(Descending(uarts));
    std::size_t operations = 0;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        sim::Machine machine = fresh;
        {
            const AtWork at_work(machine);
            const machines::OpenBoard board;
            machines::Forget(machine);
            state.ResumeTiming();
            work(board, uarts);
            state.PauseTiming();
            operations += machine.faults.count;
        }
        state.ResumeTiming();
    }
    state.counters["operations"] = PerRun(operations, state);
}

void SortInReverse(benchmark::State& state) {
    MeasureSort(state,
                [](const machines::OpenBoard& board, u32) { _SortCOMClicked(nullptr, board.Channel(1)); });
}
BENCHMARK(SortInReverse)->Arg(16)->Arg(64)->Arg(255)->Unit(benchmark::kMicrosecond);

// The platform's share of the sort: the time of this divided by the time of SortInReverse.
void SortReplayed(benchmark::State& state) {
    MeasureSort(state, ReplaySort);
}
BENCHMARK(SortReplayed)->Arg(16)->Arg(64)->Arg(255)->Unit(benchmark::kMicrosecond);

void ReadSettingsLine(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        WCHAR line[SettingsLineCapacity] = u" 115200 , e, 7, 1.5, p";
        const WCHAR* baud = nullptr;
        benchmark::DoNotOptimize(ParseSettingsLine(line, baud));
    }
}
BENCHMARK(ReadSettingsLine);

} // namespace

BENCHMARK_MAIN();
