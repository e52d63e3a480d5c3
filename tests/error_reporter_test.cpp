// Every failure code with its box, the boxes without memory or strings, and what is loaded for them at
// attach.
#include <functional>

#include "reporting/error_reporter.h"
#include "resources/resource_ids.h"
#include "tests/at_work.h"

namespace {

using namespace machines;

constexpr UINT plain = MB_SYSTEMMODAL | MB_ICONHAND;
constexpr UINT question = MB_YESNO | MB_ICONINFORMATION;
constexpr UINT notice = MB_OK | MB_ICONHAND;
constexpr const char* rename_failed = "There was an error renaming the COM port.";
constexpr const char* opened = "The port has been opened by another application. Close and try again.";
constexpr const char* board_caption = "Communications Port Properties";

struct Expected {
    u32 oerr;
    u32 serr;
    const char* text;
    UINT style = plain;
    const char* caption = "Error";
    u32 choice = IDNO;
};

// Reported for channel 7, COM8 and COM9.
const Expected all_codes[] = {
    {1, 0, no_memory, plain, "Communications Port"},
    {2, 0, "Load string failure."},
    {3, 0, "Create property page failure."},
    {4, 0, "Add property page failure."},
    {100, 101, "Get channel basic information failure. [serr:101]"},
    {101, 0, "KVR channle(7) not COM port type."},
    {102, 0, "Initiate COM port parameter failure."},
    {103, 100, "Get COM port name failure. [serr:100]"},
    {150, 0, "Initiate \"Parity\" combox failure."},
    {151, 0, "Initiate \"Stop bits\" combox failure."},
    {152, 0, "Initiate \"Flow control\" combox failure."},
    {200, 101, "Get COM port name failure. [serr:101]"},
    {201, 100, "Get COM port basic information failure. [serr:100]"},
    {202, 102, "Set COM port fifo settings failure. [serr:102]"},
    {203, 202, in_use_question, question, board_caption, IDYES},
    {203, 200, "Check COM port in use failure. [serr:200]"},
    {204, 3, opened},
    {204, 101, "Check COM port opened failure. [serr:101]"},
    {205, 300, rename_failed, notice, board_caption, IDOK},
    {250, 301, "Initiate \"COM Port Number\" combox failure. [serr:301]"},
    {300, 100, "Get BOARD basic information failure. [serr:100]"},
    {301, 2, "Initiate BOARD parameter failure. [serr:2]"},
    {302, 102, "Set COM8 fifo settings failure. [serr:102]"},
    {303, 202, "This COM name is being used by another device. Try another."},
    {303, 201, "Check COM port in use failure. [serr:201]"},
    {304, 3, opened},
    {304, 100, "Check COM port opened failure. [serr:100]"},
    {305, 200, rename_failed, notice, board_caption, IDOK},
    {400, 0, "Check COM port advance settings with capability failure."},
    {401, 102, "Set COM port advance settings failure. [serr:102]"},
    {402, 203, "Get COM port max number available failure. [serr:203]"},
    {403, 3, "COM8 has been opened by another application. Close and try again."},
    {403, 101, "COM8 check opened failure. [serr:101]"},
    {404, 300, "KVR channle(7), COM8 remap to temporary COM9 failure. [serr:300]"},
    {405, 300, "KVR channle(7), COM8 remap to COM9 failure. [serr:300]"},
    {406, 0xFFFFFFFF, "KVR channle(7), temporary COM8 remap to COM9 failure. [serr:-1]"},
};

// Reports a failure on a fresh machine, after `change`.
void ExpectBox(const Expected& expected, const std::function<void(sim::Machine&)>& change = {}) {
    SCOPED_TRACE(std::to_string(expected.oerr) + " with " + std::to_string(expected.serr));
    sim::Machine machine;
    const AtWork at_work(machine);
    if (change) {
        change(machine);
    }
    u32 choice = 0;
    ErrorBoxShow(expected.oerr, expected.serr, nullptr, 7, 8, 9, &choice);
    ASSERT_EQ(machine.boxes.size(), 1u);
    const sim::ShownBox& box = machine.boxes.front();
    EXPECT_EQ(sim::ToUtf8(box.text), expected.text);
    EXPECT_EQ(sim::ToUtf8(box.caption), expected.caption);
    EXPECT_EQ(box.style, expected.style);
    EXPECT_EQ(choice, expected.choice);
}

TEST(ErrorReporter, EveryCodeHasItsBox) {
    for (const Expected& expected : all_codes) {
        ExpectBox(expected);
    }
    const u32 undefined[] = {0,   5,   99,  104, 149, 153, 199,    206,        249,
                             251, 299, 306, 399, 407, 500, 202000, 0x7FFFFFFF, 0xFFFFFFFF};
    for (const u32 oerr : undefined) {
        const std::string text =
            "Undefine error. [oerr:" + std::to_string(static_cast<int>(oerr)) + ", serr:202]";
        ExpectBox({oerr, 202, text.c_str()});
    }
}

TEST(ErrorReporter, WithoutMemoryEveryCodeSaysSoAndAnswersNo) {
    for (const Expected& code : all_codes) {
        for (const std::size_t failing : {1, 2}) {
            ExpectBox({code.oerr, code.serr, no_memory, plain, "Communications Port"}, [=](auto& machine) {
                machine.faults.at_call = {{"LocalAlloc", failing}};
            });
        }
    }
}

TEST(ErrorReporter, AnAnswerIsTheUsersAndAMissingStringIsAnEmptyText) {
    const struct {
        const char* what;
        int answer;
        std::vector<UINT> missing;
        const char* text;
        const char* caption;
        u32 choice;
    } cases[] = {
        {"the user says yes", IDYES, {}, in_use_question, board_caption, IDYES},
        {"the user says no", IDNO, {}, in_use_question, board_caption, IDNO},
        {"no text", IDYES, {IDS_NAME_IN_USE_QUESTION}, "", board_caption, IDYES},
        {"no caption", IDNO, {IDS_BOX_CAPTION}, in_use_question, "", IDNO},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        ExpectBox({203, 202, each.text, question, each.caption, each.choice}, [&](auto& machine) {
            machine.missing_strings = each.missing;
            machine.user = [&](HWND box) {
                SendMessageW(box, WM_COMMAND, static_cast<WPARAM>(each.answer), 0);
            };
        });
    }
}

TEST(ErrorReporter, ABoxThatCantBeShownAndACallerWithoutInterestDoNoHarm) {
    sim::Machine machine;
    const AtWork at_work(machine);
    ErrorBoxShow(204, 3, nullptr, 0, 0, 0, nullptr);
    EXPECT_EQ(machine.boxes.front().owner, nullptr);
    EXPECT_EQ(Journal(machine, {sim::Reach::Memory}),
              (std::vector<std::string>{"LocalAlloc 1024 bytes", "LocalAlloc 1024 bytes", "LocalFree",
                                        "LocalFree"}));
    machine.faults.at_call = {{"MessageBoxW", 0}};
    u32 choice = IDYES;
    ErrorBoxShow(303, 202, nullptr, 0, 0, 0, &choice);
    EXPECT_EQ(choice, static_cast<u32>(IDNO));
    choice = IDYES;
    ErrorBoxShow(203, 202, nullptr, 0, 0, 0, &choice);
    EXPECT_NE(choice, static_cast<u32>(IDYES));
}

TEST(ModuleEntry, LoadsWhatItNeedsAtAttachAndIsContentWithAnyReason) {
    sim::Machine machine;
    const AtWork at_work(machine);
    for (const DWORD reason : {DLL_PROCESS_ATTACH, DLL_PROCESS_DETACH, 2, 3, 77}) {
        Forget(machine);
        EXPECT_TRUE(DllMain(sim::LibraryInstance(), reason, nullptr));
        const std::vector<std::string> loaded = {"DisableThreadLibraryCalls", "LoadStringW 0",
                                                 "LoadStringW 1"};
        EXPECT_EQ(Journal(machine, {sim::Reach::Memory, sim::Reach::Screen}),
                  reason == DLL_PROCESS_ATTACH ? loaded : std::vector<std::string>());
    }
}

} // namespace
