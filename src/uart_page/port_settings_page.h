// The dialog procedure of the Port Settings page.
#pragma once

#include "platform/platform.h"

// Serves dialog IDD_PORT_SETTINGS as a property page. The lParam of the page's description is the
// UartPageParams record.
INT_PTR CALLBACK UartBasicDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam);
