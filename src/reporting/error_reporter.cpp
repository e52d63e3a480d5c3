#include "reporting/error_reporter.h"

#include "reporting/module_entry.h"
#include "reporting/statuses.h"
#include "reporting/text_operations.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

constexpr u32 AnyStatus = 0xFFFFFFFF;
constexpr u32 BoxCapacity = 512;

enum class Box { OutOfMemory, Plain, Question, Notice };

// The values that a text can print. Those after the last that it prints are ignored.
enum Argument : u32 { Oerr, Serr, Channel, FirstNumber, SecondNumber, ArgumentKinds };

struct Failure {
    u32 oerr;
    u32 serr; // the status that the row is for; the rows of a code are in order
    Box box;
    const WCHAR* format;
    Argument arguments[4];
};

constexpr const WCHAR* PortOpenedText =
    TEXT("The port has been opened by another application. Close and try again.");
constexpr const WCHAR* CheckInUseText = TEXT("Check COM port in use failure. [serr:%d]");
constexpr const WCHAR* CheckOpenedText = TEXT("Check COM port opened failure. [serr:%d]");
constexpr const WCHAR* PortNameText = TEXT("Get COM port name failure. [serr:%d]");

// clang-format off
constexpr Failure Failures[] = {
    {FailureNoMemory, AnyStatus, Box::OutOfMemory, nullptr, {}},
    {FailureLoadString, AnyStatus, Box::Plain, TEXT("Load string failure."), {}},
    {FailureCreatePage, AnyStatus, Box::Plain, TEXT("Create property page failure."), {}},
    {FailureAddPage, AnyStatus, Box::Plain, TEXT("Add property page failure."), {}},
    {FailureChannelBasic, AnyStatus, Box::Plain,
     TEXT("Get channel basic information failure. [serr:%d]"), {Serr}},
    {FailureNotComPort, AnyStatus, Box::Plain, TEXT("KVR channle(%d) not COM port type."), {Channel}},
    {FailureInitPort, AnyStatus, Box::Plain, TEXT("Initiate COM port parameter failure."), {}},
    {FailurePagePortName, AnyStatus, Box::Plain, PortNameText, {Serr}},
    {FailureParityCombo, AnyStatus, Box::Plain, TEXT("Initiate \"Parity\" combox failure."), {}},
    {FailureStopBitsCombo, AnyStatus, Box::Plain, TEXT("Initiate \"Stop bits\" combox failure."), {}},
    {FailureFlowControlCombo, AnyStatus, Box::Plain, TEXT("Initiate \"Flow control\" combox failure."), {}},
    {FailureDialogPortName, AnyStatus, Box::Plain, PortNameText, {Serr}},
    {FailureUartBasic, AnyStatus, Box::Plain,
     TEXT("Get COM port basic information failure. [serr:%d]"), {Serr}},
    {FailurePortSetFifo, AnyStatus, Box::Plain,
     TEXT("Set COM port fifo settings failure. [serr:%d]"), {Serr}},
    {FailurePortNumberInUse, StatusNumberClaimed, Box::Question, nullptr, {}},
    {FailurePortNumberInUse, AnyStatus, Box::Plain, CheckInUseText, {Serr}},
    {FailurePortOpened, StatusPortOpened, Box::Plain, PortOpenedText, {}},
    {FailurePortOpened, AnyStatus, Box::Plain, CheckOpenedText, {Serr}},
    {FailurePortRemap, AnyStatus, Box::Notice, nullptr, {}},
    {FailurePortNumberCombo, AnyStatus, Box::Plain,
     TEXT("Initiate \"COM Port Number\" combox failure. [serr:%d]"), {Serr}},
    {FailureBoardBasic, AnyStatus, Box::Plain,
     TEXT("Get BOARD basic information failure. [serr:%d]"), {Serr}},
    {FailureInitBoard, AnyStatus, Box::Plain, TEXT("Initiate BOARD parameter failure. [serr:%d]"), {Serr}},
    {FailureBoardSetFifo, AnyStatus, Box::Plain,
     TEXT("Set COM%d fifo settings failure. [serr:%d]"), {FirstNumber, Serr}},
    {FailureBoardNumberInUse, StatusNumberClaimed, Box::Plain,
     TEXT("This COM name is being used by another device. Try another."), {}},
    {FailureBoardNumberInUse, AnyStatus, Box::Plain, CheckInUseText, {Serr}},
    {FailureBoardPortOpened, StatusPortOpened, Box::Plain, PortOpenedText, {}},
    {FailureBoardPortOpened, AnyStatus, Box::Plain, CheckOpenedText, {Serr}},
    {FailureBoardRemap, AnyStatus, Box::Notice, nullptr, {}},
    {FailureCapability, AnyStatus, Box::Plain,
     TEXT("Check COM port advance settings with capability failure."), {}},
    {FailureSetAdvance, AnyStatus, Box::Plain,
     TEXT("Set COM port advance settings failure. [serr:%d]"), {Serr}},
    {FailureSortNoNumber, AnyStatus, Box::Plain,
     TEXT("Get COM port max number available failure. [serr:%d]"), {Serr}},
    {FailureSortPortOpened, StatusPortOpened, Box::Plain,
     TEXT("COM%d has been opened by another application. Close and try again."), {FirstNumber}},
    {FailureSortPortOpened, AnyStatus, Box::Plain,
     TEXT("COM%d check opened failure. [serr:%d]"), {FirstNumber, Serr}},
    {FailureSortToTemporary, AnyStatus, Box::Plain,
     TEXT("KVR channle(%d), COM%d remap to temporary COM%d failure. [serr:%d]"),
     {Channel, FirstNumber, SecondNumber, Serr}},
    {FailureSortToFinal, AnyStatus, Box::Plain,
     TEXT("KVR channle(%d), COM%d remap to COM%d failure. [serr:%d]"),
     {Channel, FirstNumber, SecondNumber, Serr}},
    {FailureSortFromTemporary, AnyStatus, Box::Plain,
     TEXT("KVR channle(%d), temporary COM%d remap to COM%d failure. [serr:%d]"),
     {Channel, FirstNumber, SecondNumber, Serr}},
};
// clang-format on

constexpr Failure UndefinedFailure = {
    {}, AnyStatus, Box::Plain, TEXT("Undefine error. [oerr:%d, serr:%d]"), {Oerr, Serr}};

constexpr UINT ErrorStyle = MB_SYSTEMMODAL | MB_ICONHAND;

const Failure& FindFailure(u32 oerr, u32 serr) {
    for (const Failure& failure : Failures) {
        if (failure.oerr == oerr && (failure.serr == AnyStatus || failure.serr == serr)) {
            return failure;
        }
    }
    return UndefinedFailure;
}

void ShowOutOfMemory(HWND owner) {
    MessageBoxW(owner, OutOfMemoryText, OutOfMemoryCaption, ErrorStyle);
}

// Shows a box whose text and caption come from the resources, and passes on its answer. One that can't be
// loaded stays empty: the user still learns that something failed, and a question is still asked.
void ShowFromStrings(HWND owner, UINT stringId, UINT style, WCHAR* text, WCHAR* caption,
                     u32* nUserDialogChoice) {
    LoadStringW(ModuleInstance, stringId, text, BoxCapacity);
    LoadStringW(ModuleInstance, IDS_BOX_CAPTION, caption, BoxCapacity);
    *nUserDialogChoice = static_cast<u32>(MessageBoxW(owner, text, caption, style));
}

} // namespace

void ErrorBoxShow(u32 oerr, u32 serr, HWND parent, u32 channel, u32 firstNumber, u32 secondNumber,
                  u32* nUserDialogChoice) {
    TraceScope trace;
    if (nUserDialogChoice != nullptr) {
        *nUserDialogChoice = IDNO;
    }
    const HWND owner = parent != nullptr ? parent : GetFocus();
    auto* text = static_cast<WCHAR*>(LocalAlloc(LPTR, BoxCapacity * sizeof(WCHAR)));
    auto* caption = static_cast<WCHAR*>(LocalAlloc(LPTR, BoxCapacity * sizeof(WCHAR)));
    const Failure& failure = FindFailure(oerr, serr);
    if (text == nullptr || caption == nullptr || failure.box == Box::OutOfMemory) {
        ShowOutOfMemory(owner);
    } else if (failure.box == Box::Plain) {
        const u32 values[ArgumentKinds] = {oerr, serr, channel, firstNumber, secondNumber};
        const Argument* arguments = failure.arguments;
        FormatText(text, BoxCapacity, failure.format, values[arguments[0]], values[arguments[1]],
                   values[arguments[2]], values[arguments[3]]);
        MessageBoxW(owner, text, TEXT("Error"), ErrorStyle);
    } else if (failure.box == Box::Question) {
        ShowFromStrings(owner, IDS_NAME_IN_USE_QUESTION, MB_YESNO | MB_ICONINFORMATION, text, caption,
                        nUserDialogChoice);
    } else {
        ShowFromStrings(owner, IDS_RENAME_FAILED, MB_OK | MB_ICONHAND, text, caption, nUserDialogChoice);
    }
    if (text != nullptr) {
        LocalFree(text);
    }
    if (caption != nullptr) {
        LocalFree(caption);
    }
}
