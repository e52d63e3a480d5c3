// Any bytes as a machine and the user in front of it: what stores, profile and translation hold, what fails,
// and what is done on the pages. Nothing crashes, leaks or is misused, what the pages store is sound, and a
// port of no board stays as it is.
#include <cstdio>
#include <cstdlib>
#include <deque>

#include "reporting/module_entry.h"
#include "reporting/text_operations.h"
#include "simulated/catalogue.h"
#include "tests/sheets.h"

namespace {

using namespace machines;
using namespace sheets;

constexpr std::size_t foreign = 8;  // the device
constexpr u32 foreign_number = 300; // beyond what the pages' lists offer

void Require(bool holds, const std::string& what) {
    if (!holds) {
        std::fprintf(stderr, "%s\n", what.c_str());
        std::abort();
    }
}

// What is left of the bytes; zeros at their end.
struct Script {
    const BYTE* next;
    const BYTE* end;

    u32 Byte() { return next != end ? *next++ : 0; }
    u32 Wide() {
        const u32 low = Byte();
        return low | Byte() << 8;
    }
    u32 Below(u32 bound) { return Byte() % bound; }
    template <class List> auto& Of(List& list) { return list[Below(static_cast<u32>(std::size(list)))]; }
    // Up to 63 units, narrow or wide, or one of them up to 1,008 times.
    sim::Text Text() {
        const u32 form = Byte();
        sim::Text text(form % 64, u'\0');
        for (char16_t& unit : text) {
            unit = static_cast<char16_t>(form < 128 ? Byte() : Wide());
        }
        return form < 192 ? text : sim::Text(text.size() * 16, text.empty() ? u'\0' : text.front());
    }
    // A small number, any number, a text with its terminator, or any type and bytes.
    sim::Value Value(sim::Text name) {
        sim::Values one;
        const u32 form = Below(4);
        if (form < 2) {
            const u32 low = form == 0 ? Byte() : Wide();
            one.SetDword(name, form == 0 ? low : low | Wide() << 16);
        } else {
            one.SetText(name, Text());
        }
        if (form == 3) {
            one.list[0].type = Below(13);
            one.list[0].data.resize(one.list[0].data.size() - Below(3));
        }
        return one.list[0];
    }
    // A word of the user's hand and its number, -1 to 254.
    void Say(std::string& said) {
        constexpr const char* words[] = {"tx",   "rx",     "select", "com",        "mode",    "baud",
                                         "data", "parity", "stop",   "flow",       "fifo",    "termination",
                                         "acs",  "all",    "apply",  "defaults",   "restore", "advanced",
                                         "sort", "ok",     "cancel", "sheet-apply"};
        const std::string word = Of(words);
        said += word + std::to_string(static_cast<int>(Byte()) - 1) + ' ';
    }
};

// A language whose texts are those of English until a script translates them.
struct Translation {
    std::vector<sim::CatalogueString> strings;
    std::vector<sim::DialogTemplate> dialogs;
    std::vector<std::vector<sim::ControlTemplate>> controls;
    std::deque<sim::Text> texts; // each stays where it is

    Translation() {
        static sim::Catalogue catalogue = {made_up_language, {}, {}};
        static const bool entered = sim::EnterCatalogue(catalogue);
        Require(entered, "no language");
        const sim::Catalogue& english = sim::CatalogueFor(1033);
        strings.assign(english.strings.begin(), english.strings.end());
        dialogs.assign(english.dialogs.begin(), english.dialogs.end());
        for (sim::DialogTemplate& dialog : dialogs) {
            controls.emplace_back(dialog.controls.begin(), dialog.controls.end());
            dialog.controls = controls.back();
        }
        catalogue.strings = strings;
        catalogue.dialogs = dialogs;
    }
    void Translate(Script& script) {
        const WCHAR*& text = script.Below(2) ? script.Of(script.Of(controls)).text : script.Of(strings).text;
        text = texts.emplace_back(script.Text()).c_str();
    }
};

// A board with a channel of each class, and behind it the foreign port.
sim::Machine SoundMachine() {
    sim::Machine machine = BoardOn({3, 4, 200});
    for (const u32 channel_class : {ClassDio, ClassMcp251x, ClassMcp251xFd, ClassCan}) {
        AddChannel(machine, {}, channel_class, channel_class);
    }
    Require(AddMainboardPort(machine, foreign_number) == foreign, "the foreign port has another place");
    machine.journal_reads = false;
    return machine;
}

struct Session {
    sim::Machine machine;
    Translation translation = {};
    User user = {};
    Request request = {};
    std::string at_page = {}, at_dialog = {};
    u32 opened = 0;
};

// Whether a port of the board is told that its number is the foreign one, which it then takes along.
bool IsClaimedByBoard(sim::Machine& machine) {
    for (std::size_t device = 0; device < foreign; ++device) {
        const sim::Text name = PlacesOf(machine, device).port_name;
        if (ComNumberFromName(name.c_str()) == foreign_number) {
            return true;
        }
    }
    return false;
}

// Whether the page could have meant the value: of modes and switches there are few. Names in the profile and
// in the serial map are anyone's.
bool IsSound(const std::string& change) {
    if (!change.starts_with("RegSetValueExW ") || change.starts_with("RegSetValueExW SERIALCOMM ")) {
        return true;
    }
    const std::string value = change.substr(change.rfind('=') + 1);
    const auto writes = [&](const char* name) { return change.find(name) != std::string::npos; };
    if (writes(" UartMode = ")) {
        return value == " 1" || value == " 2" || value == " 4" || value == " 6";
    }
    const bool is_switch = writes(" Uart") && !writes("LowHigh");
    return !is_switch || value == " 0" || value == " 1";
}

// Opens a page with what was said for its user.
void OpenPage(Session& session, std::size_t device) {
    sim::Machine& machine = session.machine;
    session.user.at_page = [&](HWND page) { Do(page, session.at_page); };
    session.user.at_dialog = [&](HWND dialog) { Do(dialog, session.at_dialog); };
    const Places before = PlacesOf(machine, foreign);
    const bool may_change = IsClaimedByBoard(machine);
    Open(device == 0 ? Page::Board : Page::Port, device, session.user, session.request);
    Require(may_change || PlacesOf(machine, foreign) == before, "the foreign port has changed");
    for (const std::string& change : Changes()) {
        Require(IsSound(change), change);
    }
    Require(machine.open.empty(),
            "not given back: " + (machine.open.empty() ? "" : machine.open.begin()->first));
    Require(machine.misuse.empty(), machine.misuse.empty() ? "" : machine.misuse.front());
    session.at_page.clear();
    session.at_dialog.clear();
    ++session.opened;
}

// One step: of the machine's making, or of its user.
void Take(Session& session, Script& script) {
    sim::Machine& machine = session.machine;
    sim::Device& device = machine.devices[script.Below(u32{foreign})];
    std::vector<sim::Value>& map = machine.serial_map.list;
    const u32 step = script.Below(32);
    // clang-format off
    switch (step) {
    case 0: script.Of(device.key.list).name = u"?"; break;
    case 1: device.description = script.Text(); break;
    case 2: device.has_key = false; break;
    case 3: device.access_denied = true; break;
    case 4: device.remote = true; break;
    case 5: script.Of(machine.interfaces).linked = false; break;
    case 6: map.insert(map.begin(), script.Value(u"?" + script.Text())); break;
    case 7: machine.dos_names.emplace_back(PortName(script.Byte()), u"?" + script.Text()); break;
    case 8: machine.port_usage[script.Byte()] = static_cast<BYTE>(script.Byte()); break;
    case 9: SetLine(machine, script.Byte(), script.Text()); break;
    case 10: machine.decimal_separator = script.Text(); break;
    case 11: machine.language = static_cast<LANGID>(script.Wide()); break;
    case 12: session.translation.Translate(script); machine.language = made_up_language; break;
    case 13: machine.missing_strings.push_back(script.Of(session.translation.strings).id); break;
    case 14: machine.missing_controls.push_back(script.Of(script.Of(session.translation.controls)).id); break;
    case 15: machine.faults.at.push_back(script.Wide()); break;
    case 16: machine.trace = [](std::string_view) {}; break;
    case 17: session.user.answers = IDYES; break;
    case 18: session.user.leaves_by = ok; break;
    case 19: session.request.add_page = FALSE; break;
    case 20: OpenPage(session, static_cast<std::size_t>(&device - machine.devices.data())); break;
    default:
        if (step < 25) {
            sim::Value& value = script.Of(device.key.list);
            value = script.Value(value.name);
        } else {
            script.Say(step < 28 ? session.at_page : session.at_dialog);
        }
    }
    // clang-format on
    sim::SetClaimed(machine.port_usage, foreign_number, true);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* data, SIZE_T size) {
    static const sim::Machine sound = SoundMachine();
    Session session{sound};
    const sim::Scope scope(session.machine);
    Script script{data, data + size};
    const std::size_t device = script.Below(4);
    DllMain(sim::LibraryInstance(), DLL_PROCESS_ATTACH, nullptr);
    while (script.next != script.end && session.opened < 2) {
        Take(session, script);
    }
    OpenPage(session, device);
    return 0;
}
