// The device store with hostile contents, and how a board finds its channels and releases everything.
#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <span>
#include <sstream>

#include "device_model/board_discovery.h"
#include "device_model/device_store.h"
#include "reporting/statuses.h"
#include "tests/at_work.h"

namespace {

using namespace machines;
using sim::Reach;

// --- The device store -----------------------------------------------------------------------------------

struct Field {
    std::string name;
    std::size_t bytes;
    std::size_t offset;
    bool IsText() const { return bytes > sizeof(u64); }
};

struct Reading {
    const char* what;
    u32 (*read)(HDEVINFO, SP_DEVINFO_DATA*, void*);
    std::size_t record_bytes;
    std::vector<Field> fields; // in the order of reading, which is the order in the record
};

// Fields of 4 bytes, or of the number after a colon; the first one is at `offset`.
std::vector<Field> Fields(std::size_t offset, const std::string& names) {
    std::vector<Field> fields;
    std::istringstream words(names);
    for (std::string word; words >> word;) {
        const std::size_t colon = word.find(':');
        const std::size_t bytes = colon == std::string::npos ? 4 : std::stoul(word.substr(colon + 1));
        offset += bytes == 8 ? offset % 8 : 0;
        fields.push_back({word.substr(0, colon), bytes, offset});
        offset += bytes;
    }
    return fields;
}

#define OF(record, operation)                                                                                \
#operation,                                                                                              \
        [](HDEVINFO set, SP_DEVINFO_DATA * data,                                                             \
           void* to) { return Kavro_Reg##operation(set, data, static_cast<record*>(to)); }, sizeof(record)
#define NAME(bytes)                                                                                          \
    "GetCOMName, " #bytes " bytes",                                                                          \
        [](HDEVINFO set, SP_DEVINFO_DATA* data, void* to) {                                                  \
            return Kavro_RegUartGetCOMName(set, data, static_cast<WCHAR*>(to), bytes);                       \
        },                                                                                                   \
        bytes

const Reading readings[] = {
    {OF(BoardBasicInfo, BoardGetBasic), Fields(0, "BoardPciBusNumber BoardIrq")},
    {OF(BoardOtherInfo, BoardGetOther),
     Fields(0, "BoardMajorVersion BoardMinorVersion BoardNrController BoardModelName:128")},
    {OF(ChlBasicInfo, ChlGetBasic),
     Fields(0, "ChlNumber ChlType ChlVersion ChlEventAddr:8 ChlEventLength ChlMemAddr:8 ChlMemLength "
               "ChlPortAddr:8 ChlPortLength ChlOpened")},
    {OF(ConfigBasicInfo, ConfigGetBasic), Fields(0, "ConfigModel ConfigBrand")},
    {OF(DioBasicInfo, DioGetBasic),
     Fields(0, "DioNrBank DioCapability DioDiSamplingFreq DioDiFilterLowerBound")},
    {OF(Mcp251xBasicInfo, Mcp251xGetBasic),
     Fields(0, "Mcp251xSpiNrDevice Mcp251xSpiClkRate Mcp251xName:128 Mcp251xNumber Mcp251xCS "
               "Mcp251xGpioInputBits Mcp251xGpioOutputBits")},
    {OF(Mcp251xFdBasicInfo, Mcp251xFdGetBasic),
     Fields(0, "Mcp251xFdSpiNrDevice Mcp251xFdSpiClkRate Mcp251xFdName:128 Mcp251xFdNumber Mcp251xFdCS "
               "Mcp251xFdGpioInputBits Mcp251xFdGpioOutputBits")},
    {OF(CanBasicInfo, CanGetBasic),
     Fields(0, "KvrCanCapability KvrCanTxMsgQueueSize KvrCanTxEventQueueSize KvrCanRxMsgQueueSize "
               "KvrCanNrRxFilterGroup KvrCanSystemClkRate KvrCanReferenceClkRate KvrCanFifoTXMMax "
               "KvrCanFifoTXEMax KvrCanFifoRXMMax")},
    {OF(UartBasicInfo, UartGetBasic), // after the name, which is read separately
     Fields(128, "UartTxFifoSize UartRxFifoSize UartClkRate UartCapability UartDefCntFifoSettings "
                 "UartDefCntAdvanceSettings UartFifoEnable UartTxFifoLowHigh UartRxFifoLowHigh UartMode "
                 "UartAHDC UartCS UartAutoRS422485 UartRS422Termination UartRS485Termination")},
    {NAME(128), Fields(0, "PortName:128")},
    {NAME(40), Fields(0, "PortName:40")},
};

std::vector<BYTE> Pattern(std::size_t length, std::size_t seed) {
    std::vector<BYTE> bytes(length);
    for (std::size_t i = 0; i < length; ++i) {
        bytes[i] = static_cast<BYTE>(1 + (seed * 31 + i * 7) % 255);
    }
    return bytes;
}

// A device with all values of a reading. Each fills its field to the last byte.
sim::Machine MachineFor(const Reading& reading) {
    sim::Machine machine;
    machine.devices.emplace_back().instance_id = u"D";
    for (const Field& field : reading.fields) {
        machine.devices[0].key.Set(sim::FromUtf8(field.name), REG_BINARY, Pattern(field.bytes, field.offset));
    }
    return machine;
}

bool HasTerminator(const std::vector<BYTE>& text) {
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
        if (text[i] == 0 && text[i + 1] == 0) {
            return true;
        }
    }
    return false;
}

// What the record holds after the first `count` fields were read into a block that was filled with 0xAA.
std::vector<BYTE> ExpectedRecord(const Reading& reading, const sim::Machine& machine, std::size_t count) {
    std::vector<BYTE> record(reading.record_bytes, 0xAA);
    for (const Field& field : std::span(reading.fields).first(count)) {
        const std::vector<BYTE>& stored = machine.devices[0].key.Find(sim::FromUtf8(field.name))->data;
        std::ranges::copy(stored, record.begin() + static_cast<std::ptrdiff_t>(field.offset));
        if (field.IsText() && !HasTerminator(stored)) {
            const std::size_t end = 2 * std::min(stored.size() / 2, field.bytes / 2 - 1);
            std::fill_n(record.begin() + static_cast<std::ptrdiff_t>(field.offset + end), 2, BYTE{0});
        }
    }
    return record;
}

// Reads into a heap block of exactly the record's size, so that a byte written after it is detected.
void ExpectReading(const Reading& reading, sim::Machine& machine, u32 status, std::size_t count,
                   const std::string& what) {
    const AtWork at_work(machine);
    const auto record = std::make_unique<BYTE[]>(reading.record_bytes);
    std::memset(record.get(), 0xAA, reading.record_bytes);
    {
        OpenDevice device(0);
        EXPECT_EQ(reading.read(device.set, &device.data, record.get()), status) << what;
    }
    EXPECT_TRUE(std::ranges::equal(std::span(record.get(), reading.record_bytes),
                                   ExpectedRecord(reading, machine, count)))
        << what;
    std::vector<std::string> expected;
    for (std::size_t i = 0; status != StatusNoKey && i < std::min(count + 1, reading.fields.size()); ++i) {
        expected.push_back("RegQueryValueExW D " + reading.fields[i].name);
    }
    std::vector<std::string> queries = Journal(machine, {Reach::Read});
    std::erase_if(queries, [](const std::string& line) { return !line.starts_with("RegQueryValueExW"); });
    EXPECT_EQ(queries, expected) << what;
}

TEST(DeviceStore, EachReadingTakesItsValuesInOrderWhateverTheirTypeAndLength) {
    for (const Reading& reading : readings) {
        sim::Machine whole = MachineFor(reading);
        ExpectReading(reading, whole, 0, reading.fields.size(), reading.what);
        whole.devices[0].access_denied = true;
        ExpectReading(reading, whole, StatusNoKey, 0, std::string(reading.what) + " without write access");
        whole.devices[0].has_key = false;
        ExpectReading(reading, whole, StatusNoKey, 0, std::string(reading.what) + " without a key");
        for (std::size_t i = 0; i < reading.fields.size(); ++i) {
            const Field& field = reading.fields[i];
            const std::string what = std::string(reading.what) + ", " + field.name;
            sim::Machine missing = MachineFor(reading);
            missing.devices[0].key.Erase(sim::FromUtf8(field.name));
            ExpectReading(reading, missing, StatusReadFailed, i, what + " missing");
            DWORD type = REG_NONE;
            for (const std::size_t length :
                 {0, 1, 2, 3, 4, 5, 7, 8, 9, 39, 40, 41, 126, 127, 128, 129, 200}) {
                sim::Machine machine = MachineFor(reading);
                machine.devices[0].key.Set(sim::FromUtf8(field.name), type++ % 12, Pattern(length, i));
                const bool fits = length <= field.bytes;
                const std::string of = what + " of " + std::to_string(length) + " bytes";
                ExpectReading(reading, machine, fits ? 0 : StatusReadFailed, fits ? reading.fields.size() : i,
                              of);
                if (field.IsText() && fits && length >= 2) {
                    std::vector<BYTE> text = Pattern(length, i);
                    std::fill_n(text.begin() + static_cast<std::ptrdiff_t>(length / 2 * 2 - 2), 2, BYTE{0});
                    machine.devices[0].key.Set(sim::FromUtf8(field.name), type, text);
                    ExpectReading(reading, machine, 0, reading.fields.size(), of + " with a terminator");
                }
            }
        }
    }
}

TEST(DeviceStore, AFieldTooSmallForATerminatorGetsNone) {
    for (const u32 bytes : {0u, 1u}) {
        sim::Machine machine;
        machine.devices.emplace_back().key.Set(u"PortName", REG_SZ, Pattern(bytes, 0));
        const AtWork at_work(machine);
        OpenDevice device(0);
        WCHAR around[] = u"\xAAAA\xAAAA";
        EXPECT_EQ(Kavro_RegUartGetCOMName(device.set, &device.data, around, bytes), 0u);
        EXPECT_EQ(around[0], bytes == 0 ? u'\xAAAA' : u'\xAA01');
        EXPECT_EQ(around[1], u'\xAAAA');
    }
}

// --- The FIFO ---------------------------------------------------------------------------------------------

TEST(FifoStages, APositionIsAStageAndATriggerLevelTheHighestThatItReaches) {
    constexpr u32 stages[] = {7, 20, 40, 60};
    constexpr u32 stage_of_position[] = {1, 7, 20, 40, 60, 1};
    for (u32 position = 0; position < std::size(stage_of_position); ++position) {
        EXPECT_EQ(RxStageOfPosition(stages, position), stage_of_position[position]);
    }
    constexpr std::pair<u32, u32> positions[] = {{0, 1},  {7, 1},  {19, 1}, {20, 2},
                                                 {59, 3}, {60, 4}, {~0u, 4}};
    for (const auto& [trigger, position] : positions) {
        EXPECT_EQ(RxPositionOfTrigger(stages, trigger, true), position);
        EXPECT_EQ(RxPositionOfTrigger(stages, trigger, false), 1u);
    }
}

// --- Discovery ------------------------------------------------------------------------------------------

// Two lines: the channels in the order of enumeration, and those that the walk visits, as "class:number".
std::string Channels(const BoardParams& params) {
    std::string text;
    const auto add = [&](const BPPCHL* chl) {
        text += ' ' + std::to_string(chl->Class) + ':' + std::to_string(chl->CurrentInfo.ChlBasic.ChlNumber);
    };
    u32 count = 0;
    for (const ChlListEntry* entry = params.ChlList.Next; entry != &params.ChlList; entry = entry->Next) {
        EXPECT_EQ(entry->Next->Prev, entry);
        add(static_cast<const BPPCHL*>(entry));
        ++count;
    }
    EXPECT_EQ(params.ChlCount, count);
    text += " |";
    for (const BPPCHL* chl = params.WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        EXPECT_EQ(BoardChlByNumber(&params, chl->CurrentInfo.ChlBasic.ChlNumber), chl);
        add(chl);
    }
    return text;
}

// The board is device 0. Its channels 5 to 1 are the devices 1 to 5, one of each class, and the UART has the
// highest device number. A mainboard port follows.
sim::Machine OneOfEach() {
    sim::Machine machine;
    AddBoard(machine, {}, 6);
    AddUart(machine, {}, 5, 7);
    for (u32 channel_class = ClassDio; channel_class <= ClassCan; ++channel_class) {
        AddChannel(machine, {}, channel_class, 6 - channel_class);
    }
    AddMainboardPort(machine, 1);
    std::ranges::reverse(machine.interfaces); // the classes decide the order, not the machine
    return machine;
}
constexpr const char* all_of_each = " 1:5 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4 1:5";

TEST(BoardDiscovery, ARecordIsMadeFromTheStoreAndTheClassOfItsInterface) {
    sim::Machine machine = OneOfEach();
    machine.devices[3].key.SetDword(u"ChlType", 1);           // the driver's type has no influence
    machine.devices[2].key.Set(u"DioNrBank", REG_BINARY, {}); // nothing is left of the channel before
    const AtWork at_work(machine);
    const OpenBoard board;
    EXPECT_TRUE(board.initiated);
    EXPECT_EQ(board.status, 0u);
    EXPECT_EQ(Channels(board.params), all_of_each);
    for (BPPCHL* chl = board.params.WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        EXPECT_EQ(chl->Board, &board.params);
        EXPECT_EQ(chl->ListIndex, NotListed);
        EXPECT_EQ(chl->DeviceInfoSet, board.params.InterfaceSet[chl->Class - ClassUart]);
        EXPECT_EQ(std::memcmp(&chl->SavedInfo, &chl->CurrentInfo, sizeof chl->SavedInfo), 0);
        EXPECT_EQ(chl->CurrentInfo.BoardBasic.BoardIrq, BoardPlace().irq);
        EXPECT_EQ(chl->Fifo.RxFifo4Stage[0], chl->Class == ClassUart ? 1u : 0u);
        EXPECT_EQ(chl->DevicePath, machine.interfaces[6 - chl->Class].path);
        EXPECT_EQ(BoardChlByListIndex(&board.params, static_cast<u32>(-1)), nullptr);
        EXPECT_EQ(BoardChlByNumber(&board.params, 0), nullptr);
    }
    const ChannelInfo& uart = board.Channel(5)->CurrentInfo;
    EXPECT_EQ(sim::ToUtf8(uart.Uart.PortName), "COM7");
    EXPECT_EQ(board.Channel(4)->CurrentInfo.Dio.DioNrBank, 0u);
    EXPECT_EQ(uart.ChlBasic.ChlMemAddr, 0x1FEC05000u);
    EXPECT_EQ(sim::ToUtf8(board.Channel(3)->CurrentInfo.Mcp251x.Mcp251xName), "Mcp251x 3");
    EXPECT_EQ(sim::ToUtf8(board.Channel(2)->CurrentInfo.Mcp251xFd.Mcp251xFdName), "Mcp251xFd 2");
}

TEST(BoardDiscovery, AChannelIsKeptIfItCanBeReadAndBelongsToTheBoard) {
    const auto number = [](std::size_t device, const char16_t* name, u32 value) {
        return [=](sim::Machine& machine) { machine.devices[device].key.SetDword(name, value); };
    };
    const auto without = [](std::size_t device, const char16_t* name) {
        return [=](sim::Machine& machine) { machine.devices[device].key.Erase(name); };
    };
    const auto name_of = [](std::size_t bytes) {
        return [=](sim::Machine& machine) {
            machine.devices[1].key.Set(u"PortName", REG_SZ, Pattern(bytes, 0));
        };
    };
    // The path of an interface such that the detail needs so many bytes.
    const auto path_of = [](std::size_t needed, std::size_t place = 5) {
        return [=](sim::Machine& machine) {
            const std::size_t before = offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_W, DevicePath);
            machine.interfaces[place].path = sim::Text((needed - before) / 2 - 1, u'p');
        };
    };
    const struct {
        const char* what;
        std::function<void(sim::Machine&)> change;
        const char* channels;
    } cases[] = {
        {"a path that needs 1024 bytes", path_of(1024), all_of_each},
        {"a path that needs 1026 bytes", path_of(1026), " 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4"},
        {"such a path before the UART's", path_of(1026, 0), all_of_each},
        {"another bus", number(1, u"BoardPciBusNumber", 4), " 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4"},
        {"another IRQ", number(2, u"BoardIrq", 18), " 1:5 3:3 4:2 5:1 | 5:1 4:2 3:3 1:5"},
        {"no board in the key", without(3, u"BoardIrq"), " 1:5 2:4 4:2 5:1 | 5:1 4:2 2:4 1:5"},
        {"no channel version, which nothing uses", without(4, u"ChlVersion"),
         " 1:5 2:4 3:3 5:1 | 5:1 3:3 2:4 1:5"},
        {"no value of its class", without(5, u"KvrCanFifoRXMMax"), " 1:5 2:4 3:3 4:2 | 4:2 3:3 2:4 1:5"},
        {"a port name that fills its field", name_of(128), all_of_each},
        {"a port name beyond its field", name_of(130), " 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4"},
        {"no port name", without(1, u"PortName"), " 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4"},
        {"no access", [](auto& machine) { machine.devices[2].access_denied = true; },
         " 1:5 3:3 4:2 5:1 | 5:1 4:2 3:3 1:5"},
        {"not present", [](auto& machine) { machine.interfaces.back().linked = false; },
         " 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4"},
        {"no interface at all", [](auto& machine) { machine.interfaces.clear(); }, " |"},
        {"number 0", number(1, u"ChlNumber", 0), " 1:0 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4"},
        {"a number at the bound", number(1, u"ChlNumber", 6), " 1:6 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4"},
        {"the highest number", number(1, u"ChlNumber", 0xFFFFFFFF),
         " 1:4294967295 2:4 3:3 4:2 5:1 | 5:1 4:2 3:3 2:4"},
        {"of one number twice the first is walked", number(2, u"ChlNumber", 5),
         " 1:5 2:5 3:3 4:2 5:1 | 5:1 4:2 3:3 1:5"},
        {"a board of two numbers", number(0, u"BoardNrController", 3), " 1:5 2:4 3:3 4:2 5:1 | 5:1 4:2"},
    };
    for (const auto& each : cases) {
        sim::Machine machine = OneOfEach();
        each.change(machine);
        const AtWork at_work(machine);
        const OpenBoard board;
        EXPECT_TRUE(board.initiated) << each.what;
        EXPECT_EQ(Channels(board.params), each.channels) << each.what;
    }
}

TEST(BoardDiscovery, ARecordCanBeFilledAgainAndHoldsNothingInBetween) {
    sim::Machine machine = OneOfEach();
    const AtWork at_work(machine);
    OpenBoard board;
    BoardDeinitiate(&board.params);
    EXPECT_EQ(Channels(board.params), " |");
    std::ranges::fill(board.params.InterfaceSet, static_cast<HDEVINFO>(INVALID_HANDLE_VALUE));
    BPPCHL left_over = {};
    board.params.WalkFirst = &left_over;
    EXPECT_TRUE(BoardInitiate(&board.params, &board.status));
    EXPECT_EQ(Channels(board.params), all_of_each);
}

TEST(BoardDiscovery, AClassTellsHowManyChannelsItHasAndOnlyFiveAreClasses) {
    sim::Machine machine = OneOfEach();
    AddUart(machine, {}, 4, 8);
    AddUart(machine, {.bus = 4, .irq = 17}, 3, 9);
    const AtWork at_work(machine);
    OpenBoard board;
    BYTE buffer[DetailBufferBytes];
    const auto channels_of = [&](u32 set, u32 channel_class) {
        const GUID id = InterfaceClass(set);
        return BoardEnumClass(&board.params, buffer, sizeof buffer, board.params.InterfaceSet[set - 1], &id,
                              channel_class);
    };
    EXPECT_EQ(channels_of(ClassUart, ClassUart), 2u);
    EXPECT_EQ(channels_of(ClassCan, ClassCan), 1u);
    EXPECT_EQ(channels_of(ClassCan, ChannelClassCount + 1), 0u);
    EXPECT_EQ(channels_of(ClassCan, 0), 0u);
}

TEST(BoardDiscovery, TheBoardsOwnValuesMustAllBeReadable) {
    for (const Reading& reading : std::span(readings).first(4)) {
        for (const Field& field : reading.fields) {
            sim::Machine machine = OneOfEach();
            ASSERT_TRUE(machine.devices[0].key.Erase(sim::FromUtf8(field.name)));
            const AtWork at_work(machine);
            const OpenBoard board;
            EXPECT_FALSE(board.initiated);
            EXPECT_EQ(board.status, StatusReadFailed) << field.name;
            EXPECT_EQ(Channels(board.params), " |");
        }
    }
}

// What a failing operation of OneOfEach costs. The first row that fits a call applies.
constexpr std::size_t any = ~std::size_t{0};
const struct Cost {
    std::string_view operation;
    std::size_t last_call;
    u32 status; // if 0, at most a channel
} costs[] = {
    {"SetupDiGetClassDevsW", any, StatusNoInterfaceSet},
    {"LocalAlloc", 1, StatusNoMemory}, // the buffer; then a record and its path for each channel
    {"LocalAlloc", any, 0},
    {"SetupDiOpenDevRegKey", 4, StatusNoKey}, // the board's own
    {"RegQueryValueExW", 18, StatusReadFailed},
    {"SetupDiOpenDevRegKey", any, 0}, // of an interface, which may be nobody's channel
    {"RegQueryValueExW", any, 0},
    {"SetupDiGetDeviceInterfaceDetailW", any, 0},
    {"SetupDiEnumDeviceInterfaces", any, 0},
};

// Fails the operations at these positions. Returns how many of them there were.
std::size_t ExpectTheirCost(const std::vector<std::size_t>& at) {
    sim::Machine machine = OneOfEach();
    const AtWork at_work(machine);
    machine.faults.at = at;
    const OpenBoard board;
    const auto failed = FailedCalls(machine);
    SCOPED_TRACE(testing::PrintToString(failed));
    u32 status = 0;
    std::size_t may_lose = 0;
    std::size_t lost = 5 - board.params.ChlCount; // or without the copy of its path
    for (const BPPCHL* chl = board.params.WalkFirst; chl != nullptr; chl = chl->WalkNext) {
        lost += chl->DevicePath == nullptr ? 1 : 0;
    }
    for (const auto& [name, call] : failed) {
        const auto* cost = std::begin(costs);
        while (cost != std::end(costs) && (cost->operation != name || cost->last_call < call)) {
            ++cost;
        }
        const bool listed = cost != std::end(costs);
        status = status == 0 && listed ? cost->status : status;
        may_lose += listed ? 1 : 0;
    }
    EXPECT_EQ(board.status, status);
    EXPECT_EQ(board.initiated, status == 0);
    EXPECT_GE(lost, status == 0 ? 0u : 5u);
    EXPECT_LE(lost, status == 0 ? may_lose : 5u);
    return failed.size();
}

// Of the pairs a run takes one in forty, a long one all.
TEST(BoardDiscovery, EveryOneAndTwoOperationsMayFailAndAllIsGivenBack) {
    const std::size_t step = IsLongRun() ? 1 : 40;
    std::size_t one = 1;
    for (; ExpectTheirCost({one}) == 1; ++one) {
        for (std::size_t two = one + 1 + one % step; ExpectTheirCost({one, two}) == 2;) {
            two += step;
        }
    }
    EXPECT_GT(one, 150u);
}

} // namespace
