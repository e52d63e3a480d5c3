// What the diagnosis knows of the library, value by value against the library itself.
#include <algorithm>
#include <optional>
#include <set>
#include <sstream>

#include <rapidcheck.h>

#include "board_page/uart_modes.h"
#include "host/diagnosis/diagnosis.h"
#include "host/diagnosis/published_values.h"
#include "host/diagnosis/settings_reading.h"
#include "host/worlds/channel_classes.h"
#include "tests/random_check.h"
#include "tests/sheets.h"

namespace {

using namespace machines;

constexpr std::size_t board = 0, channel = 1; // devices

host::StoreValues StoreOf(const sim::Device& device) {
    host::StoreValues store;
    for (const sim::Value& value : device.key.list) {
        store.push_back({value.name, value.type, value.data});
    }
    return store;
}

// A board with one channel.
sim::Machine BoardWith(u32 channel_class) {
    sim::Machine machine;
    AddBoard(machine, {}, 2);
    if (channel_class == ClassUart) {
        AddUart(machine, {}, 1, 3);
    } else {
        AddChannel(machine, {}, channel_class, 1);
    }
    return machine;
}

// Compares what is found wrong with a device with whether the library can use it, for each value that either
// knows: missing, of the greatest size without a fault, and of one byte more.
template <class Faults, class IsUsable>
void CompareValues(const sim::Machine& machine, std::size_t device, const Faults& faults,
                   const IsUsable& is_usable) {
    std::set<sim::Text> names;
    for (const host::StoreValue& value : StoreOf(machine.devices[device])) {
        names.insert(value.name);
    }
    for (const host::ValueFault& fault : faults(host::StoreValues())) {
        names.insert(host::FromUtf8(fault.name));
    }
    for (const sim::Text& name : names) {
        const auto compare = [&](std::optional<std::size_t> size) {
            sim::Machine changed = machine;
            sim::Values& key = changed.devices[device].key;
            const sim::Value* const value = key.Find(name);
            std::vector<BYTE> data = value != nullptr ? value->data : std::vector<BYTE>();
            key.Erase(name);
            if (size) {
                data.resize(*size);
                key.Set(name, REG_BINARY, data);
            }
            const bool is_sound = faults(StoreOf(changed.devices[device])).empty();
            const AtWork at_work(changed);
            EXPECT_EQ(is_sound, is_usable())
                << sim::ToUtf8(name) << (size ? " of " + std::to_string(*size) + " bytes" : " missing");
            return is_sound;
        };
        compare({});
        for (const std::size_t most : {4, 8, 40, 128}) {
            compare(most);
            if (!compare(most + 1)) {
                break;
            }
        }
    }
}

TEST(DiagnosisTables, PublishedValuesAreThoseThatTheLibraryReads) {
    CompareValues(BoardWith(ClassUart), board, host::BoardFaults, [] { return OpenBoard().initiated; });
    EXPECT_EQ(host::WhyNoPage(host::Role::Board, StoreOf(BoardWith(ClassUart).devices[board])), "");
    EXPECT_NE(host::WhyNoPage(host::Role::Board, {}), "");
    for (u32 channel_class = ClassUart; channel_class <= ClassCan; ++channel_class) {
        EXPECT_EQ(host::ChannelClassOf(InterfaceClass(channel_class)), channel_class);
        CompareValues(
            BoardWith(channel_class), channel,
            [&](const host::StoreValues& store) { return host::ChannelFaults(store, channel_class); },
            [] { return OpenBoard().Channel(1) != nullptr; });
    }
    CompareValues(BoardWith(ClassUart), channel, host::PortFaults, [] {
        return sheets::Open(sheets::Page::Port, channel, {}) != "no page" && sheets::Boxes().empty();
    });
}

// The five fields of a line as the page of COM3 shows them, in the letters of a line.
std::vector<std::string> ShownFor(const std::string& line) {
    sim::Machine machine = BoardWith(ClassUart);
    SetLine(machine, 3, host::FromUtf8(line));
    const AtWork at_work(machine);
    std::vector<std::string> shown;
    const auto read = [&](HWND page) {
        const auto letter = [&](int combo, std::initializer_list<const char*> letters) {
            return letters.begin()[sheets::Selection(page, combo)];
        };
        shown = {sheets::Shown(page, IDC_BAUD_RATE), letter(IDC_PARITY, {"e", "o", "n", "m", "s"}),
                 sheets::Shown(page, IDC_DATA_BITS), letter(IDC_STOP_BITS, {"1", "1.5", "2"}),
                 letter(IDC_FLOW_CONTROL, {"x", "p", "none"})};
    };
    sheets::Open(sheets::Page::Port, channel, {.at_page = read});
    return shown;
}

// What the page shows for the first field that it shows differently; empty if there is none.
std::string FirstOther(const std::string& line) {
    const std::vector<std::string> shown = ShownFor(line);
    const auto trimmed = [](std::string text) {
        text.erase(0, text.find_first_not_of(' '));
        text.resize(text.find_last_not_of(' ') + 1);
        return text;
    };
    std::istringstream fields(trimmed(line));
    std::string field;
    for (std::size_t index = 0; index < shown.size() && std::getline(fields, field, ','); ++index) {
        const std::string text = index == 0 ? field : trimmed(field);
        if (text != shown[index] && (index == 0 || !text.empty())) {
            return shown[index];
        }
    }
    return {};
}

TEST(DiagnosisTables, SettingsLinesAreReadAsThePageReadsThem) {
    const std::vector<std::string> speeds = {
        "75",     "110",  "134",   "150",     "300",   "600",   "1200",   "1800",   "2400",   "4800",
        "7200",   "9600", "14400", "19200",   "38400", "57600", "115200", "128000", "230400", "460800",
        "921600", "1",    "96",    "1000000", "",      " 75",   "75 ",    "x"};
    const std::vector<std::string> parities = {"e", "o", "n", "m", "s", "E", "even", " o ", "", "x"};
    const std::vector<std::string> bits = {"4", "5", "6", "7", "8", "3", "9", "80", " 7", ""};
    const std::vector<std::string> stops = {"1", "1.5", "2", "2 ", "1.50", "3", "15", ""};
    const std::vector<std::string> flows = {"x", "p", " p", "xon", "X", "", "n"};
    // What the page shows and what is told of a line, if the two disagree.
    const auto disagreement = [](const std::string& line) {
        const std::string other = FirstOther(line), told = host::Misread(line);
        const bool agree = other.empty() ? told.empty()
                                         : told.ends_with(" shows " + other) ||
                                               (other == "n" && told.ends_with(" shows none"));
        return agree ? std::string() : line + " shows " + other + ", told " + told;
    };
    for (const std::string& speed : speeds) {
        EXPECT_EQ(disagreement(speed + ",n,8,1"), "");
    }
    for (const char* const line : {"9600", "9600,n,8,1,x,more", ",", "9600,e,7,2 ,x  "}) {
        EXPECT_EQ(disagreement(line), "");
    }
    Check(100, 100, [&] {
        std::string line = *rc::gen::elementOf(speeds);
        for (const auto* const list : {&parities, &bits, &stops, &flows}) {
            line += ',' + *rc::gen::elementOf(*list);
        }
        RC_ASSERT(disagreement(line) == "");
    });
}

TEST(DiagnosisTables, ModesAndLevelsArePossibleWhereTheLibraryAllowsThem) {
    for (u32 mode = 0; mode < 16; ++mode) {
        const UartMode* const known = FindUartMode(mode);
        const std::optional<unsigned long> needed = host::NeededBy(mode);
        EXPECT_EQ(host::ModeName(mode),
                  known != nullptr ? sim::ToUtf8(known->text) : "none (" + std::to_string(mode) + ")");
        for (u32 capability = 0; capability < 256; ++capability) {
            EXPECT_EQ(needed && (capability & *needed) == *needed,
                      known != nullptr && HasAll(capability, known->offered))
                << mode << ' ' << capability;
        }
    }
    sim::Machine machine = BoardWith(ClassUart);
    host::Records records;
    records.known = host::AllPlaces;
    records.devices.resize(1);
    records.devices[0].interfaces = {{ClassUart, true}};
    for (const u32 size : {0, 1, 15, 16, 17, 32, 64, 100, 128, 256}) {
        u32 stages[RxFifoStageCount];
        RxFifoStages(size, stages);
        for (u32 level = 0; level <= 260; ++level) {
            sim::Values& key = machine.devices[channel].key;
            const auto is_possible = [&](std::initializer_list<std::pair<const char16_t*, u32>> values) {
                for (const auto& [name, value] : values) {
                    key.SetDword(name, value);
                }
                records.devices[0].store = StoreOf(machine.devices[channel]);
                return std::ranges::none_of(host::Diagnose(records), [](const host::Finding& finding) {
                    return finding.rule == std::string("trigger-impossible");
                });
            };
            EXPECT_EQ(is_possible({{u"UartTxFifoSize", 128},
                                   {u"UartTxFifoLowHigh", 1},
                                   {u"UartRxFifoSize", size},
                                   {u"UartRxFifoLowHigh", level}}),
                      std::ranges::find(stages, level) != std::end(stages))
                << size << " receive " << level;
            EXPECT_EQ(is_possible({{u"UartRxFifoSize", 128},
                                   {u"UartRxFifoLowHigh", 1},
                                   {u"UartTxFifoSize", size},
                                   {u"UartTxFifoLowHigh", level}}),
                      level >= 1 && level <= size)
                << size << " transmit " << level;
        }
    }
}

} // namespace
