// The Port Control page's dialog procedure: what each message and command leads to.
#pragma once

#include "platform/platform.h"

// For dialog IDD_PORT_CONTROL as a property page whose description's lParam is the BoardParams record.
INT_PTR CALLBACK BoardBasicDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam);
