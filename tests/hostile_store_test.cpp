// Both pages on machines whose stores hold anything: values of any type and length under every name, half
// surrogate pairs, texts without terminators, lines of any length, any usage of the numbers. Nothing crashes,
// leaks or is misused, and what is stored afterwards is valid in a sound store.
#include <algorithm>
#include <cstring>
#include <random>

#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

// The same seed gives the same machine.
struct Hostility {
    std::mt19937 random;

    u32 Below(u32 bound) { return static_cast<u32>(random() % bound); }
    bool Once(u32 in) { return Below(in) == 0; }

    char16_t Unit() {
        constexpr std::u16string_view favourites = u"0123456789COM,,:. eonmsxp%d\xD800\xDC00\xFFFF\0\t\"&";
        return Once(8) ? static_cast<char16_t>(random())
                       : favourites[Below(static_cast<u32>(favourites.size()))];
    }
    sim::Text Text(u32 bound) {
        sim::Text text(Below(bound + 1), u'\0');
        std::ranges::generate(text, [&] { return Unit(); });
        return text;
    }
    u32 Number() {
        constexpr u32 favourites[] = {0,      1,      2,       3,          4,          6,
                                      15,     16,     128,     255,        256,        0x7FFF,
                                      0x8000, 0xFFFF, 0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
        return Once(4) ? random() : favourites[Below(std::size(favourites))];
    }
    // A third of the values keep their form, so that most machines have a page.
    void Spoil(sim::Value& value) {
        const bool is_number = value.data.size() == 4;
        if (is_number && !Once(12)) {
            const u32 number = Number();
            std::memcpy(value.data.data(), &number, sizeof number);
            return;
        }
        const u32 longest = Once(4) ? 300 : static_cast<u32>(value.data.size());
        value.data.resize(Below(longest + 1));
        for (BYTE& byte : value.data) {
            byte = static_cast<BYTE>(Unit() >> (is_number || Once(2) ? 0 : 8));
        }
        value.type = Below(13);
    }
};

sim::Machine HostileMachine(Hostility& by) {
    sim::Machine machine = BoardOn({3, 4, 200});
    for (const u32 channel_class : {ClassDio, ClassMcp251x, ClassMcp251xFd, ClassCan}) {
        AddChannel(machine, {}, channel_class, by.Below(8));
    }
    for (std::size_t device = 0; device < machine.devices.size(); ++device) {
        for (sim::Value& value : machine.devices[device].key.list) {
            const bool keeps_it_on_the_board =
                value.name.starts_with(u"BoardPci") || value.name.starts_with(u"BoardIrq");
            if (!keeps_it_on_the_board && by.Once(4)) {
                by.Spoil(value);
            }
        }
        if (by.Once(20)) {
            machine.devices[device].description = by.Text(600);
        }
    }
    for (BYTE& byte : machine.port_usage) {
        byte = static_cast<BYTE>(by.Once(2) ? by.random() : 0xFF);
    }
    for (int i = 0; i < 4; ++i) {
        machine.serial_map.Set(by.Text(100), by.Below(3), {});
        by.Spoil(machine.serial_map.list.back());
        machine.dos_names.emplace_back(PortName(by.Below(8)), by.Text(100));
    }
    std::ranges::shuffle(machine.serial_map.list, by.random);
    for (const u32 number : {3u, 4u, 200u}) {
        SetLine(machine, number, by.Once(4) ? sim::Text(by.Below(120), u',') : by.Text(120));
    }
    machine.decimal_separator = by.Text(3);
    return machine;
}

std::string RandomWords(Hostility& by, std::initializer_list<const char*> words) {
    std::string said;
    for (u32 left = by.Below(12); left-- > 0;) {
        said += *(words.begin() + by.Below(static_cast<u32>(words.size())));
        said += std::to_string(by.Once(3) ? by.Below(260) : by.Below(5)) + ' ';
    }
    return said;
}

// The pages write only what their controls can express.
void ExpectSoundWrites() {
    for (const std::string& change : Changes()) {
        const std::string value = change.substr(change.rfind('=') + 1);
        const auto writes = [&](const char* name) { return change.find(name) != std::string::npos; };
        if (writes(" UartMode = ")) {
            EXPECT_TRUE(value == " 1" || value == " 2" || value == " 4" || value == " 6") << change;
        } else if (change.starts_with("RegSetValueExW") && writes(" Uart") && !writes("LowHigh")) {
            EXPECT_TRUE(value == " 0" || value == " 1") << change;
        }
    }
}

TEST(HostileStores, NothingBreaksThePages) {
    constexpr u32 machines_tried = 400;
    u32 pages = 0;
    for (u32 seed = 1; seed <= machines_tried && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        Hostility by{std::mt19937(seed)};
        sim::Machine machine = HostileMachine(by);
        machine.journal_reads = false;
        const AtWork at_work(machine);
        User user;
        user.at_page = [&](HWND page) {
            ++pages;
            Items(page, IDC_PORT_NUMBER);
            Do(page, RandomWords(by, {"tx", "rx", "select", "com", "fifo", "all", "apply", "defaults",
                                      "advanced", "sheet-apply", "restore"}));
            Do(page, "advanced");
        };
        user.at_dialog = [&](HWND dialog) {
            Do(dialog, RandomWords(by, {"tx", "rx", "com", "mode", "fifo", "termination", "acs", "sort",
                                        "defaults"}));
            Do(dialog, "ok");
        };
        user.leaves_by = ok;
        for (std::size_t device = 0; device < 4; ++device) {
            user.answers = by.Once(2) ? IDYES : IDNO;
            Open(device == 0 ? Page::Board : Page::Port, device, user);
            ExpectSoundWrites();
        }
    }
    EXPECT_GT(pages, machines_tried); // not all machines are so bad that no page opens
}

} // namespace
