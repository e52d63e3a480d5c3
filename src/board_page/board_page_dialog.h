// The dialog procedure of the Port Control page.
#pragma once

#include "platform/platform.h"

// Serves dialog IDD_PORT_CONTROL as a property page. The lParam of the page's description is the BoardParams
// record.
INT_PTR CALLBACK BoardBasicDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam);
