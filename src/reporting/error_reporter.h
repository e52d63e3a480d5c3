// The one error reporter. Whoever meets a failure passes its code and a status; the text, the caption and the
// kind of box are decided here.
#pragma once

#include "platform/platform.h"

// The failure codes. Codes below 100 belong to both pages, 100 to 299 to the port page and its dialog, 300 to
// 399 to the board page, 400 upwards to its dialog.
enum FailureCode : u32 {
    FailureNoMemory = 1,
    FailureLoadString = 2,
    FailureCreatePage = 3,
    FailureAddPage = 4,
    FailureChannelBasic = 100,
    FailureNotComPort = 101,
    FailureInitPort = 102,
    FailurePagePortName = 103,
    FailureParityCombo = 150,
    FailureStopBitsCombo = 151,
    FailureFlowControlCombo = 152,
    FailureDialogPortName = 200,
    FailureUartBasic = 201,
    FailurePortSetFifo = 202,
    FailurePortNumberInUse = 203,
    FailurePortOpened = 204,
    FailurePortRemap = 205,
    FailurePortNumberCombo = 250,
    FailureBoardBasic = 300,
    FailureInitBoard = 301,
    FailureBoardSetFifo = 302,
    FailureBoardNumberInUse = 303,
    FailureBoardPortOpened = 304,
    FailureBoardRemap = 305,
    FailureCapability = 400,
    FailureSetAdvance = 401,
    FailureSortNoNumber = 402,
    FailureSortPortOpened = 403,
    FailureSortToTemporary = 404,
    FailureSortToFinal = 405,
    FailureSortFromTemporary = 406,
};

// Shows the box for a failure and returns when it has closed.
//
// oerr: the failure code. serr: the status of the failed operation, 0 if there is none. parent: the owner of
// the box; if null, the window with the focus. channel, firstNumber, secondNumber: the channel and COM
// numbers for the texts that print them. nUserDialogChoice: receives the answer, IDYES, IDNO or IDOK, 0 if
// the box can't be shown, and IDNO from a box that asks nothing, also for want of memory. It must not be null
// for the codes that ask or notify: 203, 205 and 305.
void ErrorBoxShow(u32 oerr, u32 serr, HWND parent, u32 channel = 0, u32 firstNumber = 0, u32 secondNumber = 0,
                  u32* nUserDialogChoice = nullptr);
