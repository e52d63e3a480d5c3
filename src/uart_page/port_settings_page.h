// The Port Settings page's dialog procedure.
#pragma once

#include "platform/platform.h"

// For dialog IDD_PORT_SETTINGS as a property page whose description's lParam is the UartPageParams record.
INT_PTR CALLBACK UartBasicDlgProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam);
